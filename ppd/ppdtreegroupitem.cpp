#include "ppdtreegroupitem.h"

#include "mimesourcefactory_ppdwidgets.h"
#include "ppdtreeoptionitem.h"

#include <cstring>

namespace PPDTree {

namespace {

bool mentionsInstall(const char *text)
{
    return QString::fromUtf8(text).toLower().contains(QLatin1String("install"));
}

} // namespace

GroupItem::GroupItem(ppd_file_t *ppd, ppd_group_t *group, BaseItem *parent)
    : BaseItem(ppd, parent)
    , m_group(group)
{
    setPicture(groupPictureName(group->text));
    setExpanded(true);
    setText(0, QString::fromUtf8(group->text));

    // Installed hardware is the printer's, not a per-job choice: its options
    // are read-only unless the dialog allows them.
    const bool editable = !mentionsInstall(group->text);

    // Every child goes to the top, so building from the last keeps PPD order.
    for (int i = group->num_options - 1; i >= 0; --i) {
        ppd_option_t *option = &group->options[i];
        if (std::strcmp(option->keyword, "PageRegion") == 0)
            continue;
        new OptionItem(ppd, option, this, editable);
    }
    for (int i = group->num_subgroups - 1; i >= 0; --i)
        new GroupItem(ppd, &group->subgroups[i], this);
}

QString GroupItem::groupPictureName(const char *text)
{
    if (std::strcmp(text, "Extra") == 0)
        return QStringLiteral("printer_extra.png");
    if (std::strcmp(text, "JCL") == 0)
        return QStringLiteral("printer_jcl.png");
    if (mentionsInstall(text))
        return QStringLiteral("printer_install.png");
    return QStringLiteral("printer_general.png");
}

QPixmap GroupItem::groupPicture(const char *text)
{
    return pixmapFromMimeSource(groupPictureName(text));
}

} // namespace PPDTree
