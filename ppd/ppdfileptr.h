#ifndef QUEUEWIZ_PPDFILEPTR_H
#define QUEUEWIZ_PPDFILEPTR_H

#include <cups/ppd.h>

#include <memory>

// Owns an open PPD; ppdClose() when it goes. Out of line, so that users of
// the dialog's headers do not compile a call into the deprecated interface.
struct PpdFileCloser
{
    void operator()(ppd_file_t *ppd) const;
};
using PpdFilePtr = std::unique_ptr<ppd_file_t, PpdFileCloser>;

#endif
