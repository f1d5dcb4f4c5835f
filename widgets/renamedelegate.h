#ifndef QUEUEWIZ_RENAMEDELEGATE_H
#define QUEUEWIZ_RENAMEDELEGATE_H

#include <QStyledItemDelegate>

// Makes the line edit of an in-place rename, for the columns that the item
// lets be renamed, and for no other.
class RenameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit RenameDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

#endif
