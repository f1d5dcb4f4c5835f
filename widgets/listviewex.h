#ifndef QUEUEWIZ_LISTVIEWEX_H
#define QUEUEWIZ_LISTVIEWEX_H

#include <QMetaType>
#include <QPointer>
#include <QTreeWidget>

#include "listviewitemex.h"

// A tree view whose ListViewItemEx items are renamed in place, and which
// tells its listeners about every keystroke of a rename and about a rename
// given up with Escape. All renames, whoever starts them, go through the
// item's startRename/okRename/cancelRename.
class ListViewEx : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ListViewEx(QWidget *parent = nullptr);
    ~ListViewEx() override;

    bool isRenaming() const;
    // The item whose rename is open, or null.
    ListViewItemEx *renamingItem() const { return m_renamingItem; }

public slots:
    void emitItemRenaming(const QString &text);

signals:
    void itemRenaming(ListViewItemEx *item, int column, const QString &text);
    void renameCanceled(ListViewItemEx *item, int column);

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;

protected slots:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    friend class ListViewItemEx;

    // What the toolkit itself does for a rename, used by the item.
    void openEditor(QTreeWidgetItem *item, int column);
    void storeAndCloseEditor(QTreeWidgetItem *item, int column);
    void discardEditor(QTreeWidgetItem *item, int column);

    ListViewItemEx *m_renamingItem = nullptr;
    // An editor already closed by its item; the delegate's own close request
    // that follows is then void.
    QPointer<QWidget> m_closedEditor;
};

Q_DECLARE_METATYPE(ListViewItemEx *)

#endif
