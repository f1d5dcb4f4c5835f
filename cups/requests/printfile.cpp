#include "printfile.h"

namespace Requests {

PrintFile::PrintFile(const char *printerName)
    : IPPRequest(IPP_OP_PRINT_JOB)
{
    setResource(QStringLiteral("/printers/") + QString::fromUtf8(printerName));
    addName("requesting-user-name", cupsUser());
}

} // namespace Requests
