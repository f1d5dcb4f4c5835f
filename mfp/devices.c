#include "mfpinternal.h"

#include <dirent.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Kernel views the devices are read from, below $MFP_SYSROOT. */
#define USB_DEVICES_DIR "/sys/bus/usb/devices"
#define PARPORT_DIR "/proc/sys/dev/parport"

enum {
    NAME_MAX_LEN = 256,
    PATH_LEN = 4096,
    ATTR_LEN = 256,
    USB_CLASS_PRINTER = 0x07,
    USB_PROTOCOL_IPP = 0x04
};

/* A growing list of directory entry names. */
struct name_list {
    char (*names)[NAME_MAX_LEN];
    size_t count, capacity;
};

static void names_free(struct name_list *list)
{
    free(list->names);
    list->names = NULL;
    list->count = list->capacity = 0;
}

static int names_add(struct name_list *list, const char *name)
{
    if (list->count == list->capacity) {
        size_t capacity = list->capacity ? list->capacity * 2 : 16;
        void *grown = realloc(list->names, capacity * sizeof *list->names);
        if (!grown)
            return 0;
        list->names = grown;
        list->capacity = capacity;
    }
    strzcpy(list->names[list->count++], name, NAME_MAX_LEN);
    return 1;
}

static void root_path(char *out, size_t size, const char *path)
{
    const char *root = getenv("MFP_SYSROOT");
    snprintf(out, size, "%s%s", root ? root : "", path);
}

/* dir/name into out; 0 when it does not fit (such a path names nothing we want). */
static int join_path(char *out, size_t size, const char *dir, const char *name)
{
    return snprintf(out, size, "%s/%s", dir, name) < (int)size;
}

/*
 * Reads the attribute file dir/name into buf, without trailing white space
 * (the kernel's line end); a NUL byte ends the text. 1 when the file could
 * be read. An empty dir is a path that did not fit: nothing to read.
 */
static int read_attr(const char *dir, const char *name, char *buf, size_t size)
{
    char path[PATH_LEN];
    buf[0] = '\0';
    if (!*dir || !join_path(path, sizeof path, dir, name))
        return 0;
    FILE *f = fopen(path, "r");
    if (!f)
        return 0;
    size_t n = fread(buf, 1, size - 1, f);
    fclose(f);
    buf[n] = '\0';
    n = strlen(buf);
    while (n && (buf[n - 1] == '\n' || buf[n - 1] == '\r' || buf[n - 1] == ' ' || buf[n - 1] == '\t'))
        buf[--n] = '\0';
    return 1;
}

/* A hexadecimal attribute such as bInterfaceClass; -1 when missing. */
static long read_hex_attr(const char *dir, const char *name)
{
    char buf[32];
    if (!read_attr(dir, name, buf, sizeof buf) || !buf[0])
        return -1;
    char *end;
    long value = strtol(buf, &end, 16);
    return *end ? -1 : value;
}

/*
 * Bus path order: by device ("1-1" before "1-1.2" before "1-2"), then by
 * interface. Plain names ("parport2") compare as devices.
 */
static int compare_bus_paths(const void *pa, const void *pb)
{
    const char *a = pa, *b = pb;
    char da[NAME_MAX_LEN], db[NAME_MAX_LEN];
    strzcpy(da, a, sizeof da);
    strzcpy(db, b, sizeof db);
    da[strcspn(da, ":")] = '\0';
    db[strcspn(db, ":")] = '\0';
    int diff = mfp_natural_compare(da, db);
    return diff ? diff : mfp_natural_compare(a, b);
}

/* Directory entries of dir that accept() takes, in bus path order. */
static void list_dir(const char *dir, int (*accept)(const char *dir, const char *name),
                     struct name_list *out)
{
    DIR *d = opendir(dir);
    if (!d)
        return;
    struct dirent *e;
    while ((e = readdir(d)) != NULL) {
        if (strlen(e->d_name) < NAME_MAX_LEN && accept(dir, e->d_name) && !names_add(out, e->d_name))
            break;
    }
    closedir(d);
    if (out->count > 1)
        qsort(out->names, out->count, sizeof *out->names, compare_bus_paths);
}

/* ---- parallel ports ---- */

static int is_probed_parport(const char *dir, const char *name)
{
    if (strncmp(name, "parport", 7) != 0 || !name[7] || strspn(name + 7, "0123456789") != strlen(name + 7))
        return 0;
    char path[PATH_LEN], text[MFP_ID_MAX];
    return join_path(path, sizeof path, dir, name) && read_attr(path, "autoprobe", text, sizeof text)
        && strchr(text, ':') != NULL;
}

static void fill_parallel(const char *dir, const char *name, mfp_device *device)
{
    static const char *const make_keys[] = { "MANUFACTURER", "MFG", NULL };
    static const char *const model_keys[] = { "MODEL", "MDL", "DESCRIPTION", "DES", NULL };
    char path[PATH_LEN], text[MFP_ID_MAX], id[MFP_ID_MAX];

    text[0] = '\0';
    if (join_path(path, sizeof path, dir, name))
        read_attr(path, "autoprobe", text, sizeof text);
    mfp_id_from_autoprobe(text, id, sizeof id);

    device->type = MFP_DEVICE_PARALLEL;
    mfp_id_value(id, make_keys, device->make, sizeof device->make);
    mfp_id_value(id, model_keys, device->model, sizeof device->model);
    /* a cut number would name another port */
    if (snprintf(device->uri, sizeof device->uri, "parallel:/dev/lp%s", name + 7) >= (int)sizeof device->uri)
        device->uri[0] = '\0';
    mfp_id_fit(id, device->device_id, sizeof device->device_id);
}

/* ---- USB printers ---- */

/* An interface ("1-1:1.0") of the printer class that the usb backend drives. */
static int is_printer_interface(const char *dir, const char *name)
{
    if (!strchr(name, ':'))
        return 0;
    char path[PATH_LEN];
    if (!join_path(path, sizeof path, dir, name))
        return 0;
    /* IPP over USB interfaces belong to an IPP daemon, not to the usb backend */
    return read_hex_attr(path, "bInterfaceClass") == USB_CLASS_PRINTER
        && read_hex_attr(path, "bInterfaceProtocol") != USB_PROTOCOL_IPP;
}

/* The device part of an interface name: "1-1.2" of "1-1.2:1.0". */
static void device_of(const char *interface, char *out, size_t size)
{
    strzcpy(out, interface, size);
    out[strcspn(out, ":")] = '\0';
}

static void fill_usb(const char *dir, const char *interface, mfp_device *device)
{
    static const char *const make_keys[] = { "MANUFACTURER", "MFG", NULL };
    static const char *const model_keys[] = { "MODEL", "MDL", NULL };
    static const char *const des_keys[] = { "DESCRIPTION", "DES", NULL };
    static const char *const serial_keys[] = { "SERIALNUMBER", "SERN", "SN", NULL };
    char ifpath[PATH_LEN], devpath[PATH_LEN], name[NAME_MAX_LEN];
    char id[MFP_ID_MAX], serial[ATTR_LEN], text[ATTR_LEN];

    device_of(interface, name, sizeof name);
    if (!join_path(ifpath, sizeof ifpath, dir, interface))
        ifpath[0] = '\0';
    if (!join_path(devpath, sizeof devpath, dir, name))
        devpath[0] = '\0';

    device->type = MFP_DEVICE_USB;
    read_attr(ifpath, "ieee1284_id", id, sizeof id);

    if (!mfp_id_value(id, make_keys, device->make, sizeof device->make) || !device->make[0]) {
        read_attr(devpath, "manufacturer", text, sizeof text);
        mfp_copy_text(device->make, text, sizeof device->make);
    }
    if (!mfp_id_value(id, model_keys, device->model, sizeof device->model) || !device->model[0]) {
        if (read_attr(devpath, "product", text, sizeof text) && text[0])
            mfp_copy_text(device->model, text, sizeof device->model);
        else
            mfp_id_value(id, des_keys, device->model, sizeof device->model);
    }
    if (!mfp_id_value(id, serial_keys, serial, sizeof serial) || !serial[0]) {
        read_attr(devpath, "serial", text, sizeof text);
        mfp_copy_text(serial, text, sizeof serial);
    }

    long iface = read_hex_attr(ifpath, "bInterfaceNumber");
    mfp_usb_uri(device->make, device->model, serial, iface > 0 ? (int)iface : 0,
                device->uri, sizeof device->uri);

    if (!strchr(id, ':')) {
        /* usblp is not bound: describe the device by its USB strings */
        size_t n = 0;
        id[0] = '\0';
        if (device->make[0])
            n += (size_t)snprintf(id + n, sizeof id - n, "MFG:%s;", device->make);
        if (device->model[0])
            n += (size_t)snprintf(id + n, sizeof id - n, "MDL:%s;", device->model);
        snprintf(id + n, sizeof id - n, "CLS:PRINTER;");
    }
    mfp_id_fit(id, device->device_id, sizeof device->device_id);
}

/* ---- the list ---- */

/* Devices seen so far and the records still to fill. */
struct scan {
    mfp_device *buffer;
    int count;   /* records the buffer holds */
    int found;   /* devices seen */
};

static void take(struct scan *scan, const char *dir, const char *name,
                 void (*fill)(const char *, const char *, mfp_device *))
{
    if (scan->buffer && scan->found < scan->count) {
        mfp_device *device = &scan->buffer[scan->found];
        memset(device, 0, sizeof *device);
        fill(dir, name, device);
    }
    ++scan->found;
}

int mfp_get_devices(mfp_device *buffer, int count)
{
    struct scan scan = { buffer, count > 0 ? count : 0, 0 };
    char dir[PATH_LEN];
    struct name_list names = { NULL, 0, 0 };

    root_path(dir, sizeof dir, PARPORT_DIR);
    list_dir(dir, is_probed_parport, &names);
    for (size_t i = 0; i < names.count; ++i)
        take(&scan, dir, names.names[i], fill_parallel);
    names_free(&names);

    root_path(dir, sizeof dir, USB_DEVICES_DIR);
    list_dir(dir, is_printer_interface, &names);
    char last[NAME_MAX_LEN] = "";
    for (size_t i = 0; i < names.count; ++i) {
        char device[NAME_MAX_LEN];
        device_of(names.names[i], device, sizeof device);
        /* one record per printer, for its first printer interface */
        if (strcmp(device, last) == 0)
            continue;
        strzcpy(last, device, sizeof last);
        take(&scan, dir, names.names[i], fill_usb);
    }
    names_free(&names);

    if (!buffer)
        return scan.found;
    return scan.found < scan.count ? scan.found : scan.count;
}
