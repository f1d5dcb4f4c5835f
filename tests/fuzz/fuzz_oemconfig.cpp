// "OEM.ini" of any content: a text file is read, anything else counts as no
// file at all and leaves the configuration alone; every string field stays
// terminated within its width and the counts within their arrays.
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
        // the reader's last resort; one here would be read for a binary input
        require(access("OEM.ini", F_OK) != 0);
        return r;
    }();
    return root;
}

// Text as the reader takes it: no control character but tab and line ends.
bool isText(const uint8_t *data, size_t size)
{
    return std::none_of(data, data + size, [](uint8_t c) {
        return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7f;
    });
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
    const int read = readOemConfig((packageRoot() + "/bin/queuewiz").c_str());
    require(read == (isText(data, size) ? 0 : -1));
    require(read == 0 || (!actx.vendor[0] && !actx.modelCount && !actx.parPort));
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
