// IEEE 1284 device IDs as printers report them: field look-up, fitting into
// the record's field, and the parallel port's autoprobe text. Output buffers
// sit between guard bytes that must stay untouched; fields stay clean text.
#include "fuzztarget.h"
#include "mfpinternal.h"

#include <string>

namespace {

template <size_t N>
struct Guarded
{
    char before[16];
    char buf[N];
    char after[16];
    Guarded()
    {
        memset(before, 0x5a, sizeof before);
        memset(after, 0x5a, sizeof after);
    }
    void check(bool clean = true) const
    {
        for (size_t i = 0; i < 16; ++i)
            require(before[i] == 0x5a && after[i] == 0x5a);
        requireTerminated(buf);
        for (const char *c = buf; clean && *c; ++c)
            require(static_cast<unsigned char>(*c) >= 0x20 && *c != 0x7f && *c != '"');
    }
};

} // namespace

QW_FUZZ_TARGET
{
    const std::string id(reinterpret_cast<const char *>(data), size);
    static const char *const keys[] = { "MANUFACTURER", "MFG", "MODEL", "MDL", nullptr };

    Guarded<64> value;
    mfp_id_value(id.c_str(), keys, value.buf, sizeof value.buf);
    value.check();

    Guarded<120> fitted;
    mfp_id_fit(id.c_str(), fitted.buf, sizeof fitted.buf);
    fitted.check();

    Guarded<1024> probed;
    mfp_id_from_autoprobe(id.c_str(), probed.buf, sizeof probed.buf);
    probed.check(false); // raw: the look-ups clean it
    return 0;
}
