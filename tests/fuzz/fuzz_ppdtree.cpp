// A driver file of any content as the options dialog shows it: libcups reads
// it, the option tree walks its groups, options and choices, and the
// conflicts among the default choices are named.
#include "fuzztarget.h"
#include "offscreenapp.h"
#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"

#include <cups/ppd.h>

#include <sys/mman.h>
#include <unistd.h>

namespace {

void walkItems(PPDTree::BaseItem *item, const QPalette &palette)
{
    (void)item->labelRuns(palette, false);
    (void)item->labelRuns(palette, true);
    for (PPDTree::BaseItem *child : item->childItems())
        walkItems(child, palette);
}

} // namespace

QW_FUZZ_TARGET
{
    ensureOffscreenApplication("fuzz_ppdtree");

    // libcups reads a PPD through a file descriptor, which a memory stream
    // does not have.
    const int fd = memfd_create("ppd", 0);
    require(fd >= 0 && write(fd, data, size) == static_cast<ssize_t>(size) && lseek(fd, 0, SEEK_SET) == 0);
    ppd_file_t *ppd = ppdOpenFd(fd);
    close(fd);
    if (!ppd)
        return 0;
    ppdMarkDefaults(ppd);
    {
        PPDTreeView view;
        view.setPPD(ppd);
        if (PPDTree::BaseItem *root = view.rootItem()) {
            walkItems(root, view.palette());
            root->reload(ppd);
        }
        (void)view.conflictMessage();
        view.setPPD(nullptr);
    }
    ppdClose(ppd);
    return 0;
}
