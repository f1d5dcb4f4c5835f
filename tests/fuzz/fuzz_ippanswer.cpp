// An answer of the scheduler, any bytes that libcups reads as an IPP message,
// walked the way the listings walk it: one record per attribute group, for
// printers, classes, drivers and jobs alike, each attribute also logged.
#include "fuzztarget.h"
#include "cupsclass.h"
#include "cupsdriver.h"
#include "cupsjob.h"
#include "cupsprinter.h"
#include "ipplog.h"

#include <cups/ipp.h>

#include <algorithm>
#include <cstdio>

namespace {

struct Reader
{
    const uint8_t *data;
    size_t left;
};

ssize_t readBytes(void *context, ipp_uchar_t *buffer, size_t bytes)
{
    auto *reader = static_cast<Reader *>(context);
    const size_t n = std::min(bytes, reader->left);
    memcpy(buffer, reader->data, n);
    reader->data += n;
    reader->left -= n;
    return static_cast<ssize_t>(n);
}

FILE *nullLog()
{
    static FILE *log = fopen("/dev/null", "w");
    return log;
}

// The records end where an attribute has no name, as in a listing.
template <class Record, class Finish>
void walk(ipp_t *answer, Record fresh, Finish finish)
{
    Record record = fresh;
    for (ipp_attribute_t *attr = ippFirstAttribute(answer); attr; attr = ippNextAttribute(answer)) {
        record.fillFrom(attr);
        if (!ippGetName(attr)) {
            finish(record);
            record = fresh;
        }
    }
    finish(record);
}

} // namespace

QW_FUZZ_TARGET
{
    Reader reader{ data, size };
    ipp_t *answer = ippNew();
    if (ippReadIO(&reader, readBytes, 1, nullptr, answer) != IPP_STATE_DATA) {
        ippDelete(answer);
        return 0;
    }
    for (ipp_attribute_t *attr = ippFirstAttribute(answer); attr; attr = ippNextAttribute(answer))
        IPPLog::dumpAttribute(nullLog(), attr);

    walk(answer, CUPSPrinter(), [](const CUPSPrinter &p) { (void)p.dump(), (void)p.stateText(); });
    walk(answer, CUPSClass(), [](const CUPSClass &c) {
        (void)c.dump();
        (void)c.MemberNames().indexOf(c.Name());
    });
    walk(answer, CUPSDriver(), [](const CUPSDriver &d) { (void)d.toString(), (void)d.matchesVendor(d.Model()); });
    walk(answer, CUPSJob(), [](const CUPSJob &) {});
    ippDelete(answer);
    return 0;
}
