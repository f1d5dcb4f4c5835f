#ifndef QUEUEWIZ_REQUESTS_PRINTFILE_H
#define QUEUEWIZ_REQUESTS_PRINTFILE_H

#include "ipprequest.h"

namespace Requests {

// Print-Job to a queue; the caller adds "printer-uri", "job-name",
// "document-format" and sets the file to upload.
class PrintFile : public IPPRequest
{
public:
    explicit PrintFile(const char *printerName);
};

} // namespace Requests

#endif
