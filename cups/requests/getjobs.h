#ifndef QUEUEWIZ_REQUESTS_GETJOBS_H
#define QUEUEWIZ_REQUESTS_GETJOBS_H

#include "ipprequest.h"

namespace Requests {

// Get-Jobs of the whole scheduler.
class GetJobs : public IPPRequest
{
public:
    GetJobs();
};

} // namespace Requests

#endif
