#ifndef QUEUEWIZ_REQUESTS_GETPRINTERS_H
#define QUEUEWIZ_REQUESTS_GETPRINTERS_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Get-Printers. A type or mask other than 0 asks only for the queues
// whose "printer-type" bits under mask equal type; 0 and 0 ask for all.
class GetPrinters : public IPPRequest
{
public:
    GetPrinters(int type, int mask);
};

} // namespace Requests

#endif
