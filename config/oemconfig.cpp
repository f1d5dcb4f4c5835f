#include "oemconfig.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

struct AppContext actx;

namespace {

// Copies at most size - 1 characters and always terminates.
void copyCut(char *dst, const char *src, size_t size)
{
    size_t n = strlen(src);
    if (n > size - 1)
        n = size - 1;
    memcpy(dst, src, n);
    dst[n] = '\0';
}

void cutAtLastSlash(char *dst, const char *path, size_t size)
{
    copyCut(dst, path, size);
    if (char *slash = strrchr(dst, '/'))
        *slash = '\0';
}

void makeAbsolute(const char *argv0, char *out, size_t size)
{
    if (argv0[0] == '/') {
        copyCut(out, argv0, size);
        return;
    }
    char cwd[OEM_PATH_MAX];
    if (!getcwd(cwd, sizeof cwd))
        cwd[0] = '\0';
    size_t len = strlen(cwd);
    const char *rel = strncmp(argv0, "./", 2) == 0 ? argv0 + 2 : argv0;
    snprintf(out, size, "%s%s%s", cwd, (len && cwd[len - 1] == '/') ? "" : "/", rel);
}

struct FileCloser {
    void operator()(FILE *f) const { fclose(f); }
};
using FilePtr = std::unique_ptr<FILE, FileCloser>;

// A directory or binary garbage (a byte that is neither text nor a line
// or tab character) is no configuration file: it counts as missing.
FilePtr openIfText(const char *path)
{
    FilePtr file(fopen(path, "r"));
    struct stat st;
    if (!file || fstat(fileno(file.get()), &st) != 0 || !S_ISREG(st.st_mode))
        return FilePtr();
    for (int c; (c = fgetc(file.get())) != EOF;) {
        if ((c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7f)
            return FilePtr();
    }
    rewind(file.get());
    return file;
}

FilePtr openFirstConfig()
{
    char path[OEM_PATH_MAX + 16];
    const char *dirs[] = { actx.shareDir, actx.rootDir };
    for (const char *dir : dirs) {
        snprintf(path, sizeof path, "%s/%s", dir, "OEM.ini");
        if (FilePtr f = openIfText(path))
            return f;
    }
    return openIfText("OEM.ini");
}

void setDefaults()
{
    actx.vendor[0] = actx.vendorLower[0] = actx.vendorUpper[0] = '\0';
    actx.url[0] = '\0';
    actx.modelCount = 0;
    actx.pluginCount = 0;
    actx.multiVendor = 0;
    actx.parPort = 1;
    actx.portPlugin = 1;
    actx.scanner = 1;
    actx.updatePrinterGroup = 1;
}

int toInt(const char *value)
{
    return static_cast<int>(strtol(value, nullptr, 10));
}

void setVendor(const char *value)
{
    copyCut(actx.vendor, value, sizeof actx.vendor);
    for (size_t i = 0; i < sizeof actx.vendor; ++i) {
        const unsigned char c = static_cast<unsigned char>(actx.vendor[i]);
        actx.vendorLower[i] = static_cast<char>(tolower(c));
        actx.vendorUpper[i] = static_cast<char>(toupper(c));
        if (!c)
            break;
    }
}

// The longer keys come first: "MULTIVENDOR=" holds "VENDOR=" and
// "PORTPLUGIN=" holds "PLUGIN=".
void applyLine(const char *line)
{
    enum Key { MultiVendor, ParPort, PortPlugin, Scanner, UpdateGroup, Vendor, Url, Model, Plugin };
    static const struct { const char *name; Key key; } keys[] = {
        { "MULTIVENDOR=", MultiVendor },
        { "PARPORT=", ParPort },
        { "PORTPLUGIN=", PortPlugin },
        { "SCANNER=", Scanner },
        { "UPDATE_PRINTER_GROUP=", UpdateGroup },
        { "VENDOR=", Vendor },
        { "URL=", Url },
        { "MODEL=", Model },
        { "PLUGIN=", Plugin },
    };
    for (const auto &k : keys) {
        const char *at = strstr(line, k.name);
        if (!at)
            continue;
        const char *value = at + strlen(k.name);
        switch (k.key) {
        case MultiVendor: actx.multiVendor = toInt(value); break;
        case ParPort: actx.parPort = toInt(value); break;
        case PortPlugin: actx.portPlugin = toInt(value); break;
        case Scanner: actx.scanner = toInt(value); break;
        case UpdateGroup: actx.updatePrinterGroup = toInt(value); break;
        case Vendor: setVendor(value); break;
        case Url: copyCut(actx.url, value, sizeof actx.url); break;
        case Model:
            if (actx.modelCount < OEM_MODEL_COUNT)
                copyCut(actx.models[actx.modelCount++], value, OEM_MODEL_MAX);
            break;
        case Plugin:
            if (actx.pluginCount < OEM_PLUGIN_COUNT)
                copyCut(actx.plugins[actx.pluginCount++], value, OEM_PATH_MAX);
            break;
        }
        return;
    }
}

} // namespace

int readOemConfig(const char *argv0)
{
    char exe[OEM_PATH_MAX];
    makeAbsolute(argv0 ? argv0 : "", exe, sizeof exe);
    cutAtLastSlash(actx.binDir, exe, sizeof actx.binDir);
    cutAtLastSlash(actx.rootDir, actx.binDir, sizeof actx.rootDir);
    snprintf(actx.shareDir, sizeof actx.shareDir, "%.*s/share", OEM_PATH_MAX - 7, actx.rootDir);

    FilePtr file = openFirstConfig();
    if (!file)
        return -1;

    setDefaults();
    char line[OEM_LINE_MAX];
    while (fgets(line, sizeof line, file.get())) {
        line[strcspn(line, "\r\n")] = '\0';
        applyLine(line);
    }
    return 0;
}

int isVendorModel(const char *text)
{
    if (text && strcasestr(text, actx.vendor))
        return 1;
    return actx.multiVendor ? 1 : 0;
}
