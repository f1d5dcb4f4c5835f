#ifndef QUEUEWIZ_OEMCONFIG_H
#define QUEUEWIZ_OEMCONFIG_H

// The package's site configuration: directories of the running package and
// the vendor edition read from "OEM.ini". Plain C layout on purpose: the
// device library and plug-ins loaded into the process read `actx` as well.

#ifdef __cplusplus
extern "C" {
#endif

enum {
    OEM_PATH_MAX = 4096,
    OEM_VENDOR_MAX = 32,
    OEM_URL_MAX = 256,
    OEM_MODEL_MAX = 16,
    OEM_MODEL_COUNT = 32,
    OEM_PLUGIN_COUNT = 5,
    OEM_LINE_MAX = 512
};

struct AppContext {
    char binDir[OEM_PATH_MAX];
    char rootDir[OEM_PATH_MAX];
    char shareDir[OEM_PATH_MAX];
    char vendor[OEM_VENDOR_MAX];
    char vendorLower[OEM_VENDOR_MAX];
    char vendorUpper[OEM_VENDOR_MAX];
    char url[OEM_URL_MAX];
    char models[OEM_MODEL_COUNT][OEM_MODEL_MAX];
    int modelCount;
    char plugins[OEM_PLUGIN_COUNT][OEM_PATH_MAX];
    int pluginCount;
    int multiVendor;
    int parPort;
    int portPlugin;
    int scanner;
    int updatePrinterGroup;
};

extern struct AppContext actx;

// Fixes the package directories from argv0 and reads the first "OEM.ini"
// found. 0 when a file was read, -1 when there was none.
int readOemConfig(const char *argv0);

// 1 when text names the configured vendor (or every vendor is welcome).
int isVendorModel(const char *text);

#ifdef __cplusplus
}
#endif

#endif
