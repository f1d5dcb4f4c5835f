// IEEE 1284 device IDs as printers report them: field look-up, fitting into
// the record's field, the usb URI made of a value, and the parallel port's
// autoprobe text. Output buffers sit between guard bytes that must stay
// untouched; what goes into the backend's quoted device list stays clean.
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
    void check() const
    {
        for (size_t i = 0; i < 16; ++i)
            require(before[i] == 0x5a && after[i] == 0x5a);
        requireTerminated(buf);
    }
    void checkClean() const
    {
        check();
        for (const char *c = buf; *c; ++c)
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
    value.checkClean();

    Guarded<128> uri;
    mfp_usb_uri(value.buf, value.buf, value.buf, 1, uri.buf, sizeof uri.buf);
    uri.checkClean();

    Guarded<120> fitted;
    mfp_id_fit(id.c_str(), fitted.buf, sizeof fitted.buf);
    fitted.checkClean();

    Guarded<1024> probed;
    mfp_id_from_autoprobe(id.c_str(), probed.buf, sizeof probed.buf);
    probed.check();
    return 0;
}
