// An answer of the scheduler, any bytes that libcups reads as an IPP message,
// parsed and walked the way the listings do it: one record per attribute
// group, for printers, classes, drivers and jobs alike, each attribute also
// logged.
#include "fuzztarget.h"
#include "cupsclass.h"
#include "cupsdriver.h"
#include "cupsjob.h"
#include "cupsprinter.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "listingrecords.h"

#include <cstdio>

namespace {

FILE *nullLog()
{
    static FILE *log = fopen("/dev/null", "w");
    return log;
}

} // namespace

QW_FUZZ_TARGET
{
    // Parsed as the listings parse the answer they read in blocks.
    ipp_t *answer = IPPRequest::answerFromBytes(QByteArrayView(data, qsizetype(size)));
    if (!answer)
        return 0;
    for (ipp_attribute_t *attr = ippFirstAttribute(answer); attr; attr = ippNextAttribute(answer))
        IPPLog::dumpAttribute(nullLog(), attr);

    forEachRecord<CUPSPrinter>(answer, [](const CUPSPrinter &p) { (void)p.dump(), (void)p.stateText(); });
    forEachRecord<CUPSClass>(answer, [](const CUPSClass &c) {
        (void)c.dump();
        (void)c.MemberNames().indexOf(c.Name());
    });
    forEachRecord<CUPSDriver>(answer, [](const CUPSDriver &d) { (void)d.toString(), (void)d.matchesVendor(d.Model()); });
    forEachRecord<CUPSJob>(answer, [](const CUPSJob &) {});
    ippDelete(answer);
    return 0;
}
