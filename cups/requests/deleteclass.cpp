#include "deleteclass.h"

namespace Requests {

DeleteClass::DeleteClass(const char *uri)
    : IPPRequest(IPP_OP_CUPS_DELETE_CLASS)
{
    setResource(QStringLiteral("/admin/"));
    addURI("printer-uri", uri);
}

} // namespace Requests
