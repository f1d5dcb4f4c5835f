// "OEM.ini" of any content: text is read, anything else is no file and leaves
// the configuration alone; string fields stay terminated, counts in bounds.
#include "fuzztarget.h"
#include "oemconfig.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const std::string &packageRoot()
{
    static const std::string root = [] {
        char dir[] = "/tmp/qw-fuzz-oem-XXXXXX";
        require(mkdtemp(dir) != nullptr);
        const std::string r = dir;
        mkdir((r + "/share").c_str(), 0700);
        mkdir((r + "/bin").c_str(), 0700);
        require(access("OEM.ini", F_OK) != 0); // the reader's last resort
        return r;
    }();
    return root;
}

} // namespace

QW_FUZZ_TARGET
{
    const std::string ini = packageRoot() + "/share/OEM.ini";
    FILE *f = fopen(ini.c_str(), "wb");
    require(f != nullptr);
    fwrite(data, 1, size, f);
    fclose(f);

    memset(&actx, 0, sizeof actx);
    const bool text = std::none_of(data, data + size,
                                   [](uint8_t c) { return (c < 0x20 && !memchr("\t\n\r", c, 3)) || c == 0x7f; });
    const int read = readOemConfig((packageRoot() + "/bin/queuewiz").c_str());
    require(read == (text ? 0 : -1) && (text || (!actx.vendor[0] && !actx.modelCount && !actx.parPort)));
    requireTerminated(actx.vendor);
    requireTerminated(actx.vendorLower);
    requireTerminated(actx.vendorUpper);
    requireTerminated(actx.url);
    require(actx.modelCount >= 0 && actx.modelCount <= OEM_MODEL_COUNT && actx.pluginCount >= 0
            && actx.pluginCount <= OEM_PLUGIN_COUNT);
    for (int i = 0; i < actx.modelCount; ++i)
        requireTerminated(actx.models[i]);
    for (int i = 0; i < actx.pluginCount; ++i)
        requireTerminated(actx.plugins[i]);
    isVendorModel(reinterpret_cast<const char *>(actx.url));
    return 0;
}
