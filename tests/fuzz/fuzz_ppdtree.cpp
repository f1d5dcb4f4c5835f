// A driver file of any content as the options dialog shows it: libcups reads
// it, the option tree walks its groups, options and choices, and the
// conflicts among the default choices are named.
#include "offscreenapp.h"
#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"

#include <cups/ppd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
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

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    ensureOffscreenApplication("fuzz_ppdtree");

    // libcups reads a PPD through a file descriptor, which a memory stream
    // does not have.
    const int fd = memfd_create("ppd", 0);
    if (fd < 0)
        abort();
    if (write(fd, data, size) != static_cast<ssize_t>(size) || lseek(fd, 0, SEEK_SET) != 0)
        abort();
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
