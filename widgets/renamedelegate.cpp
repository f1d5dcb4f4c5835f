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
    // Addresses and paths read left to right on a mirrored desktop too.
    editor->setLayoutDirection(Qt::LeftToRight);
    return editor;
}

void RenameDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Marks keep the slashes of "/dev/lp0" and "ipp://" where they belong.
    const QString &text = option->text;
    if (option->direction == Qt::RightToLeft && (text.startsWith(QLatin1Char('/')) || text.contains(QLatin1Char(':'))))
        option->text = QChar(0x200E) + text + QChar(0x200E);
}
