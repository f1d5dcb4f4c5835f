#ifndef QUEUEWIZ_REQUESTS_SETDEFAULTPRINTER_H
#define QUEUEWIZ_REQUESTS_SETDEFAULTPRINTER_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Set-Default: makes the queue of uri the default destination.
class SetDefaultPrinter : public IPPRequest
{
public:
    explicit SetDefaultPrinter(const char *uri);
};

} // namespace Requests

#endif
