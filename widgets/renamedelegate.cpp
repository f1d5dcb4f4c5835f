#include "renamedelegate.h"

#include "listviewitemex.h"

#include <QLineEdit>

RenameDelegate::RenameDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QWidget *RenameDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                      const QModelIndex &index) const
{
    Q_UNUSED(option);
    if (!index.data(ListViewItemEx::RenameEnabledRole).toBool())
        return nullptr;
    auto *editor = new QLineEdit(parent);
    editor->setFrame(false);
    return editor;
}
