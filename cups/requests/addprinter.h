#ifndef QUEUEWIZ_REQUESTS_ADDPRINTER_H
#define QUEUEWIZ_REQUESTS_ADDPRINTER_H

#include "ipprequest.h"

namespace Requests {

// CUPS-Add-Printer (also modifies); the caller adds the queue's attributes.
class AddPrinter : public IPPRequest
{
public:
    AddPrinter();
};

} // namespace Requests

#endif
