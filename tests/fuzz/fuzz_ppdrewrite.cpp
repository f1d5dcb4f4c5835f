// The rewrite of a PPD's "*Default" lines on any file content: lines of any
// length, line ends of any kind, NUL bytes.
#include "fuzztarget.h"
#include "ppdrewriter.h"

#include <cups/ppd.h>

#include <cstdio>

namespace {

ppd_file_t *samplePpd()
{
    static ppd_file_t *ppd = [] {
        const char *path = getenv("QW_FUZZ_PPD");
        ppd_file_t *p = ppdOpenFile(path ? path : QW_FUZZ_DEFAULT_PPD);
        require(p != nullptr);
        ppdMarkDefaults(p);
        return p;
    }();
    return ppd;
}

} // namespace

QW_FUZZ_TARGET
{
    FILE *in = fmemopen(const_cast<uint8_t *>(data), size, "rb");
    if (!in)
        return 0;
    FILE *out = fopen("/dev/null", "wb");
    if (out) {
        PPDRewriter(samplePpd()).rewriteDefaults(in, out);
        fclose(out);
    }
    fclose(in);
    return 0;
}
