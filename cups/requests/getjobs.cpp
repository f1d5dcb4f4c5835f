#include "getjobs.h"

namespace Requests {

GetJobs::GetJobs()
    : IPPRequest(IPP_OP_GET_JOBS)
{
    setResource(QStringLiteral("/"));
    const QByteArray uri = QByteArray("ipp://") + cupsServer() + "/jobs/";
    addURI("printer-uri", uri.constData());
}

} // namespace Requests
