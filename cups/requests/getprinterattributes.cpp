#include "getprinterattributes.h"

namespace Requests {

GetPrinterAttributes::GetPrinterAttributes()
    : IPPRequest(IPP_OP_GET_PRINTER_ATTRIBUTES)
{
    setResource(QStringLiteral("/printers/"));
}

} // namespace Requests
