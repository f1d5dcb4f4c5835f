#ifndef QUEUEWIZ_FORMATTEDLISTITEM_H
#define QUEUEWIZ_FORMATTEDLISTITEM_H

#include "listviewitemex.h"

// An item whose stored text is always what its column's validator made of
// it, so a port entry keeps its scheme prefix however it was edited.
class FormattedListItem : public ListViewItemEx
{
public:
    static constexpr int RTTI = 1001;
    static_assert(RTTI == QTreeWidgetItem::UserType + 1, "item type id is shared with other code");

    explicit FormattedListItem(QTreeWidget *view);
    explicit FormattedListItem(QTreeWidgetItem *parent);

    // Every way of storing text (setText, the rename editor) ends here.
    void setData(int column, int role, const QVariant &value) override;
};

#endif
