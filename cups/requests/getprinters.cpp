#include "getprinters.h"

namespace Requests {

GetPrinters::GetPrinters(int type, int mask)
    : IPPRequest(IPP_OP_CUPS_GET_PRINTERS)
{
    setResource(QStringLiteral("/printers/"));
    if (type != 0 || mask != 0) {
        addInteger("printer-type", type, IPP_TAG_ENUM);
        addInteger("printer-type-mask", mask, IPP_TAG_ENUM);
    }
}

} // namespace Requests
