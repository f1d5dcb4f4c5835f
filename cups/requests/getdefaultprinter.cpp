#include "getdefaultprinter.h"

namespace Requests {

GetDefaultPrinter::GetDefaultPrinter()
    : IPPRequest(IPP_OP_CUPS_GET_DEFAULT)
{
    setResource(QStringLiteral("/printers/"));
}

} // namespace Requests
