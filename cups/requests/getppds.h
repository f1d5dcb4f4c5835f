#ifndef QUEUEWIZ_REQUESTS_GETPPDS_H
#define QUEUEWIZ_REQUESTS_GETPPDS_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Get-PPDs: the drivers the scheduler knows, only those of make
// when make is not null.
class GetPPDs : public IPPRequest
{
public:
    explicit GetPPDs(const char *make = nullptr);
};

} // namespace Requests

#endif
