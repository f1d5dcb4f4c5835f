#ifndef QUEUEWIZ_REQUESTS_ADDCLASS_H
#define QUEUEWIZ_REQUESTS_ADDCLASS_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Add-Class (also modifies); the caller adds the class's attributes.
class AddClass : public IPPRequest
{
public:
    AddClass();
};

} // namespace Requests

#endif
