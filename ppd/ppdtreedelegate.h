#ifndef QUEUEWIZ_PPDTREEDELEGATE_H
#define QUEUEWIZ_PPDTREEDELEGATE_H

#include <QStyledItemDelegate>

class PPDTreeView;

// Paints a row of the option tree: the background, the item's picture
// vertically centred between two item margins, then the coloured runs of
// its label.
class PPDTreeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PPDTreeDelegate(PPDTreeView *view);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    // Space on each side of the picture.
    static int itemMargin(const QWidget *widget);

private:
    PPDTreeView *m_view;
};

#endif
