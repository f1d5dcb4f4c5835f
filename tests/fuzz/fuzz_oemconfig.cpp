// "OEM.ini" of any content: every string field stays terminated within its
// width and the counts within their arrays.
#include "oemconfig.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const std::string &packageRoot()
{
    static const std::string root = [] {
        char dir[] = "/tmp/qw-fuzz-oem-XXXXXX";
        if (!mkdtemp(dir))
            abort();
        const std::string r = dir;
        mkdir((r + "/share").c_str(), 0700);
        mkdir((r + "/bin").c_str(), 0700);
        return r;
    }();
    return root;
}

template <size_t N>
void terminated(const char (&field)[N])
{
    if (!memchr(field, '\0', N))
        abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string ini = packageRoot() + "/share/OEM.ini";
    FILE *f = fopen(ini.c_str(), "wb");
    if (!f)
        abort();
    fwrite(data, 1, size, f);
    fclose(f);

    memset(&actx, 0, sizeof actx);
    if (readOemConfig((packageRoot() + "/bin/queuewiz").c_str()) != 0)
        abort();
    terminated(actx.vendor);
    terminated(actx.vendorLower);
    terminated(actx.vendorUpper);
    terminated(actx.url);
    if (actx.modelCount < 0 || actx.modelCount > OEM_MODEL_COUNT || actx.pluginCount < 0
        || actx.pluginCount > OEM_PLUGIN_COUNT)
        abort();
    for (int i = 0; i < actx.modelCount; ++i)
        terminated(actx.models[i]);
    for (int i = 0; i < actx.pluginCount; ++i)
        terminated(actx.plugins[i]);
    isVendorModel(reinterpret_cast<const char *>(actx.url));
    return 0;
}
