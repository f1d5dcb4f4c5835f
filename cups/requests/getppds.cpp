#include "getppds.h"

namespace Requests {

GetPPDs::GetPPDs(const char *make)
    : IPPRequest(IPP_OP_CUPS_GET_PPDS)
{
    setResource(QStringLiteral("/"));
    addURI("printer-uri", "ipp://localhost/printers/");
    if (make)
        addText("ppd-make", make);
}

} // namespace Requests
