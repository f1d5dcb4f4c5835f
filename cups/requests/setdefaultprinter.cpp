#include "setdefaultprinter.h"

namespace Requests {

SetDefaultPrinter::SetDefaultPrinter(const char *uri)
    : IPPRequest(IPP_OP_CUPS_SET_DEFAULT)
{
    setResource(QStringLiteral("/admin/"));
    addURI("printer-uri", uri);
}

} // namespace Requests
