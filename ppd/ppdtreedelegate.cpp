#include "ppdtreedelegate.h"

#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"

#include <QApplication>
#include <QPainter>

PPDTreeDelegate::PPDTreeDelegate(PPDTreeView *view)
    : QStyledItemDelegate(view)
    , m_view(view)
{
}

int PPDTreeDelegate::itemMargin(const QWidget *widget)
{
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget) + 1;
}

void PPDTreeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    PPDTree::BaseItem *item = m_view->baseItem(index);
    if (!item) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }

    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    const QWidget *widget = opt.widget;
    QStyle *style = widget ? widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &opt, painter, widget);

    painter->save();
    const QRect rect = opt.rect;
    const int margin = itemMargin(widget);
    int x = rect.left() + margin;
    const QPixmap picture = item->picture();
    if (!picture.isNull()) {
        const int height = qRound(picture.height() / picture.devicePixelRatio());
        painter->drawPixmap(x, rect.top() + (rect.height() - height) / 2, picture);
        x += qRound(picture.width() / picture.devicePixelRatio());
    }
    x += margin;

    const bool selected = opt.state & QStyle::State_Selected;
    painter->setFont(opt.font);
    const QFontMetrics metrics(opt.font);
    for (const PPDTree::LabelRun &run : item->labelRuns(opt.palette, selected)) {
        const int width = metrics.horizontalAdvance(run.text);
        painter->setPen(run.colour);
        painter->drawText(QRect(x, rect.top(), width, rect.height()), Qt::AlignLeft | Qt::AlignVCenter, run.text);
        x += width;
    }
    painter->restore();

    if (opt.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(opt);
        focus.rect = rect;
        focus.backgroundColor = opt.palette.color(selected ? QPalette::Highlight : QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, widget);
    }
}

QSize PPDTreeDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    PPDTree::BaseItem *item = m_view->baseItem(index);
    if (!item)
        return size;
    const QPixmap picture = item->picture();
    const int margin = itemMargin(option.widget);
    const QSize pictureSize = picture.isNull() ? QSize() : picture.deviceIndependentSize().toSize();
    size.rwidth() += pictureSize.width() + 2 * margin;
    size.setHeight(qMax(size.height(), pictureSize.height() + 2));
    return size;
}
