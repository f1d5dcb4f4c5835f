#include "addprinter.h"

namespace Requests {

AddPrinter::AddPrinter()
    : IPPRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER)
{
    setResource(QStringLiteral("/admin/"));
}

} // namespace Requests
