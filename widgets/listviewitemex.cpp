#include "listviewitemex.h"

#include "listviewex.h"
#include "softassert.h"

#include <QLineEdit>
#include <QValidator>

ListViewItemEx::ListViewItemEx(QTreeWidget *view, int type)
    : QTreeWidgetItem(view, type)
{
}

ListViewItemEx::ListViewItemEx(QTreeWidgetItem *parent, int type)
    : QTreeWidgetItem(parent, type)
{
}

ListViewItemEx::~ListViewItemEx()
{
    // The view drops the editor of a removed row by itself.
    if (ListViewEx *view = listViewEx(); view && view->m_renamingItem == this)
        view->m_renamingItem = nullptr;
}

ListViewEx *ListViewItemEx::listViewEx() const
{
    return qobject_cast<ListViewEx *>(treeWidget());
}

void ListViewItemEx::setRenameEnabled(int column, bool enabled)
{
    setData(column, RenameEnabledRole, enabled);
    if (enabled)
        setFlags(flags() | Qt::ItemIsEditable);
}

bool ListViewItemEx::renameEnabled(int column) const
{
    return data(column, RenameEnabledRole).toBool();
}

void ListViewItemEx::setValidator(int column, QValidator *validator)
{
    if (column < 0) {
        qWarning("setValidator: invalid column %d", column);
        return;
    }
    while (m_validators.size() <= column)
        m_validators.append(nullptr);
    m_validators[column] = validator;
    setText(column, text(column));
}

QValidator *ListViewItemEx::validator(int column) const
{
    return column >= 0 && column < m_validators.size() ? m_validators.at(column).data() : nullptr;
}

bool ListViewItemEx::isAcceptable(int column, const QString &text) const
{
    QValidator *v = validator(column);
    if (!v)
        return true;
    QString copy = text;
    int pos = 0;
    return v->validate(copy, pos) == QValidator::Acceptable;
}

bool ListViewItemEx::isAcceptable(int column) const
{
    if (m_editor && m_renameColumn == column)
        return isAcceptable(column, m_editor->text());
    return isAcceptable(column, text(column));
}

void ListViewItemEx::startRename(int column)
{
    QTreeWidget *lv = treeWidget();
    if (!QW_CHECK(lv, "listviewex", 25))
        return;
    if (!renameEnabled(column))
        return;
    ListViewEx *view = qobject_cast<ListViewEx *>(lv);
    if (!view) {
        lv->editItem(this, column);
        return;
    }

    if (ListViewItemEx *open = view->m_renamingItem) {
        if (open == this && m_renameColumn == column) {
            view->openEditor(this, column); // focuses the open editor
            return;
        }
        // One rename at a time; the open one is kept, as leaving its editor
        // would keep it.
        open->okRename(open->renameColumn());
    }

    view->openEditor(this, column);
    if (!view->isRenaming())
        return;

    // Editors already closed but not yet deleted are hidden.
    QList<QLineEdit *> editors;
    const QList<QLineEdit *> all = view->findChildren<QLineEdit *>();
    for (QLineEdit *e : all) {
        if (!e->isHidden())
            editors.append(e);
    }
    if (!softAssert(editors.size() == 1, "qtx_var_objList->count() == 1", "listviewex", 42))
        return;

    m_editor = editors.first();
    m_renameColumn = column;
    view->m_renamingItem = this;
    QObject::connect(m_editor, &QLineEdit::textChanged, view, &ListViewEx::emitItemRenaming);
}

void ListViewItemEx::okRename(int column)
{
    ListViewEx *view = listViewEx();
    forgetEditor();
    if (view)
        view->storeAndCloseEditor(this, column);
}

void ListViewItemEx::cancelRename(int column)
{
    ListViewEx *view = listViewEx();
    const bool attached = !m_editor.isNull();
    forgetEditor();
    if (view) {
        view->discardEditor(this, column);
        if (attached)
            emit view->renameCanceled(this, column);
    }
}

void ListViewItemEx::forgetEditor()
{
    ListViewEx *view = listViewEx();
    if (m_editor && view)
        QObject::disconnect(m_editor, &QLineEdit::textChanged, view, &ListViewEx::emitItemRenaming);
    m_editor = nullptr;
    m_renameColumn = -1;
    if (view && view->m_renamingItem == this)
        view->m_renamingItem = nullptr;
}
