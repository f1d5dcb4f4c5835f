#include "getclasses.h"

namespace Requests {

GetClasses::GetClasses()
    : IPPRequest(IPP_OP_CUPS_GET_CLASSES)
{
    setResource(QStringLiteral("/classes/"));
}

} // namespace Requests
