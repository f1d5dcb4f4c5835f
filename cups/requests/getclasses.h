#ifndef QUEUEWIZ_REQUESTS_GETCLASSES_H
#define QUEUEWIZ_REQUESTS_GETCLASSES_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Get-Classes.
class GetClasses : public IPPRequest
{
public:
    GetClasses();
};

} // namespace Requests

#endif
