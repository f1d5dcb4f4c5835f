#include "canceljob.h"

namespace Requests {

CancelJob::CancelJob(const char *jobUri)
    : IPPRequest(IPP_OP_CANCEL_JOB)
{
    setResource(QStringLiteral("/jobs/"));
    addURI("job-uri", jobUri);
    addName("requesting-user-name", cupsUser());
}

} // namespace Requests
