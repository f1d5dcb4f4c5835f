#include "getjobattributes.h"

namespace Requests {

GetJobAttributes::GetJobAttributes(const char *printerUri, int jobId)
    : IPPRequest(IPP_OP_GET_JOB_ATTRIBUTES)
{
    setResource(QStringLiteral("/jobs/"));
    addURI("printer-uri", printerUri);
    addInteger("job-id", jobId, IPP_TAG_INTEGER);
    addName("requesting-user-name", cupsUser());
    addKeywordList("requested-attributes",
                   {QStringLiteral("job-id"), QStringLiteral("job-state"), QStringLiteral("job-state-reasons"),
                    QStringLiteral("job-printer-uri"), QStringLiteral("job-uri")});
}

} // namespace Requests
