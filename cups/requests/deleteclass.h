#ifndef QUEUEWIZ_REQUESTS_DELETECLASS_H
#define QUEUEWIZ_REQUESTS_DELETECLASS_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Delete-Class for the class of uri.
class DeleteClass : public IPPRequest
{
public:
    explicit DeleteClass(const char *uri);
};

} // namespace Requests

#endif
