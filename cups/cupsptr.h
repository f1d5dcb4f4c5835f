#ifndef QUEUEWIZ_CUPSPTR_H
#define QUEUEWIZ_CUPSPTR_H

#include <cups/cups.h>

#include <memory>

// Owning holders for the libcups objects that the client keeps across a call.
// Each deleter accepts a null pointer, like the libcups functions it wraps.

struct IppDeleter
{
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using IppPtr = std::unique_ptr<ipp_t, IppDeleter>;

struct HttpDeleter
{
    void operator()(http_t *http) const { httpClose(http); }
};
using HttpPtr = std::unique_ptr<http_t, HttpDeleter>;

#endif
