#include "deleteprinter.h"

namespace Requests {

DeletePrinter::DeletePrinter(const char *uri)
    : IPPRequest(IPP_OP_CUPS_DELETE_PRINTER)
{
    setResource(QStringLiteral("/admin/"));
    addURI("printer-uri", uri);
}

} // namespace Requests
