#ifndef QUEUEWIZ_REQUESTS_GETDEFAULTPRINTER_H
#define QUEUEWIZ_REQUESTS_GETDEFAULTPRINTER_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Get-Default: the scheduler's default destination.
class GetDefaultPrinter : public IPPRequest
{
public:
    GetDefaultPrinter();
};

} // namespace Requests

#endif
