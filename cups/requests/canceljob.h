#ifndef QUEUEWIZ_REQUESTS_CANCELJOB_H
#define QUEUEWIZ_REQUESTS_CANCELJOB_H

#include "ipprequest.h"

namespace Requests {

// Cancel-Job for the job of jobUri.
class CancelJob : public IPPRequest
{
public:
    explicit CancelJob(const char *jobUri);
};

} // namespace Requests

#endif
