#ifndef QUEUEWIZ_REQUESTS_DELETEPRINTER_H
#define QUEUEWIZ_REQUESTS_DELETEPRINTER_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Delete-Printer for the printer of uri.
class DeletePrinter : public IPPRequest
{
public:
    explicit DeletePrinter(const char *uri);
};

} // namespace Requests

#endif
