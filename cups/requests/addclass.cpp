#include "addclass.h"

namespace Requests {

AddClass::AddClass()
    : IPPRequest(IPP_OP_CUPS_ADD_MODIFY_CLASS)
{
    setResource(QStringLiteral("/admin/"));
}

} // namespace Requests
