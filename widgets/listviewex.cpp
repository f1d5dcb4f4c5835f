#include "listviewex.h"

#include "renamedelegate.h"
#include "softassert.h"

ListViewEx::ListViewEx(QWidget *parent)
    : QTreeWidget(parent)
{
    setItemDelegate(new RenameDelegate(this));
    // Renames start from code (double-click handlers) or with F2.
    setEditTriggers(EditKeyPressed);
}

ListViewEx::~ListViewEx()
{
    m_renamingItem = nullptr;
}

bool ListViewEx::isRenaming() const
{
    return state() == EditingState;
}

void ListViewEx::emitItemRenaming(const QString &text)
{
    ListViewItemEx *item = m_renamingItem;
    if (!softAssert(item != nullptr, "currentItem()", "listviewex", 87))
        return;
    if (isRenaming())
        emit itemRenaming(item, item->renameColumn(), text);
}

bool ListViewEx::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    // AllEditTriggers is our own request (editItem); an editor already open
    // and triggers the view does not take are the toolkit's business.
    if (trigger == AllEditTriggers || !(editTriggers() & trigger) || indexWidget(index))
        return QTreeWidget::edit(index, trigger, event);
    auto *item = dynamic_cast<ListViewItemEx *>(itemFromIndex(index));
    if (!item || !item->renameEnabled(index.column()))
        return QTreeWidget::edit(index, trigger, event);
    item->startRename(index.column());
    return isRenaming();
}

void ListViewEx::commitData(QWidget *editor)
{
    if (m_renamingItem && m_renamingItem->editor() == editor) {
        m_renamingItem->okRename(m_renamingItem->renameColumn());
        return;
    }
    if (editor && editor == m_closedEditor)
        return;
    QTreeWidget::commitData(editor);
}

void ListViewEx::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // Reached without a commit first: Escape, or the editor went away.
    if (m_renamingItem && m_renamingItem->editor() == editor) {
        m_renamingItem->cancelRename(m_renamingItem->renameColumn());
        return;
    }
    if (editor && editor == m_closedEditor)
        return;
    QTreeWidget::closeEditor(editor, hint);
}

void ListViewEx::openEditor(QTreeWidgetItem *item, int column)
{
    editItem(item, column);
}

void ListViewEx::storeAndCloseEditor(QTreeWidgetItem *item, int column)
{
    QWidget *editor = indexWidget(indexFromItem(item, column));
    if (!editor)
        return;
    m_closedEditor = editor;
    QTreeWidget::commitData(editor);
    QTreeWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void ListViewEx::discardEditor(QTreeWidgetItem *item, int column)
{
    QWidget *editor = indexWidget(indexFromItem(item, column));
    if (!editor)
        return;
    m_closedEditor = editor;
    QTreeWidget::closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}
