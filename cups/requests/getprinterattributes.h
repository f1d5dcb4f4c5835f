#ifndef QUEUEWIZ_REQUESTS_GETPRINTERATTRIBUTES_H
#define QUEUEWIZ_REQUESTS_GETPRINTERATTRIBUTES_H

#include "ipprequest.h"

namespace Requests {

// Get-Printer-Attributes; the caller adds "printer-uri".
class GetPrinterAttributes : public IPPRequest
{
public:
    GetPrinterAttributes();
};

} // namespace Requests

#endif
