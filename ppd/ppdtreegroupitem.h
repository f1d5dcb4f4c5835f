#ifndef QUEUEWIZ_PPDTREEGROUPITEM_H
#define QUEUEWIZ_PPDTREEGROUPITEM_H

#include "ppdtreebaseitem.h"

namespace PPDTree {

// A PPD group with its options (in PPD order, "PageRegion" left out, since
// PageSize stands for it) and its subgroups.
class GroupItem : public BaseItem
{
public:
    // parent is the root or the enclosing group.
    GroupItem(ppd_file_t *ppd, ppd_group_t *group, BaseItem *parent);

    ppd_group_t *group() const { return m_group; }

    // "printer_extra.png", "printer_jcl.png", "printer_install.png" or
    // "printer_general.png" for a group text.
    static QString groupPictureName(const char *text);
    static QPixmap groupPicture(const char *text);

private:
    ppd_group_t *m_group;
};

} // namespace PPDTree

#endif
