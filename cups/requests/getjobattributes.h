#ifndef QUEUEWIZ_REQUESTS_GETJOBATTRIBUTES_H
#define QUEUEWIZ_REQUESTS_GETJOBATTRIBUTES_H

#include "ipprequest.h"

namespace Requests {

// Get-Job-Attributes of one job of a queue: its state and why.
class GetJobAttributes : public IPPRequest
{
public:
    GetJobAttributes(const char *printerUri, int jobId);
};

} // namespace Requests

#endif
