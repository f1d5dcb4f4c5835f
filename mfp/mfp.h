#ifndef MFP_H
#define MFP_H

/*
 * libmfp: the package's device library.
 *
 * It lists the printers attached to this machine by USB or parallel cable,
 * as the kernel sees them (no root needed), and carries the small text and
 * file helpers the wizard uses on the package's configuration files.
 *
 * Device i of the list is the package's device /dev/mfp<i>; the queue URI
 * "mfp:/dev/mfp<i>" is printed through by the package's "mfp" backend, which
 * hands the job to the scheduler's own usb or parallel backend.
 *
 * The environment variable MFP_SYSROOT, when set, is put in front of "/sys"
 * and "/proc" when the devices are looked up (tests use fixture trees).
 */

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define MFP_EXPORT __attribute__((visibility("default")))
#else
#define MFP_EXPORT
#endif

/* Record layout: byte offsets and field sizes (strings include their NUL). */
enum {
    MFP_RECORD_SIZE = 380,
    MFP_TYPE_OFFSET = 0,
    MFP_MAKE_OFFSET = 4,
    MFP_MAKE_SIZE = 64,
    MFP_MODEL_OFFSET = 68,
    MFP_MODEL_SIZE = 64,
    MFP_URI_OFFSET = 132,
    MFP_URI_SIZE = 128,
    MFP_DEVICE_ID_OFFSET = 260,
    MFP_DEVICE_ID_SIZE = 120
};

/* Values of the type field. Greater than 0: a printer that can be used. */
enum {
    MFP_DEVICE_NONE = 0,
    MFP_DEVICE_PARALLEL = 1,
    MFP_DEVICE_USB = 2
};

/*
 * One device. Every string is NUL-terminated within its field; a longer
 * value is cut (at a UTF-8 character boundary). Control characters and
 * bytes that are not UTF-8 are dropped and '"' becomes '\'', so each field
 * fits a quoted line. The
 * device ID of a device whose full ID does not fit keeps the keys a driver
 * is chosen by (maker, model, command set, class, description) and ends
 * after a ';'.
 */
typedef struct mfp_device {
    int32_t type;                         /* MFP_DEVICE_* */
    char make[MFP_MAKE_SIZE];             /* manufacturer, may be empty */
    char model[MFP_MODEL_SIZE];           /* model name, may be empty */
    char uri[MFP_URI_SIZE];               /* "usb://MAKE/MODEL?serial=..." or "parallel:/dev/lpN";
                                             empty when it would not fit */
    char device_id[MFP_DEVICE_ID_SIZE];   /* IEEE 1284 device ID */
} mfp_device;

#ifdef __cplusplus
static_assert(sizeof(mfp_device) == MFP_RECORD_SIZE, "device record is 380 bytes");
static_assert(offsetof(mfp_device, model) == MFP_MODEL_OFFSET, "model name at byte 68");
static_assert(offsetof(mfp_device, uri) == MFP_URI_OFFSET, "URI offset");
static_assert(offsetof(mfp_device, device_id) == MFP_DEVICE_ID_OFFSET, "device ID offset");
#else
_Static_assert(sizeof(mfp_device) == MFP_RECORD_SIZE, "device record is 380 bytes");
_Static_assert(offsetof(mfp_device, model) == MFP_MODEL_OFFSET, "model name at byte 68");
_Static_assert(offsetof(mfp_device, uri) == MFP_URI_OFFSET, "URI offset");
_Static_assert(offsetof(mfp_device, device_id) == MFP_DEVICE_ID_OFFSET, "device ID offset");
#endif

/*
 * The attached devices: parallel ports by number, then USB printers by bus
 * path, numbered from 0 without gaps.
 *
 * With buffer NULL (count is then ignored) answers how many devices there
 * are. Otherwise fills at most count records of buffer and answers how many
 * it filled. Never negative.
 */
MFP_EXPORT int mfp_get_devices(mfp_device *buffer, int count);

/*
 * Looks up a setting in a text file of the site configuration's syntax:
 * lines of at most 511 characters (the rest of a longer line is ignored, it
 * does not count as a line of its own), no sections, comments or quoting;
 * the key may stand anywhere in a line.
 *
 * key is the setting's name with or without its '=': "SNMP_COMMUNITY" and
 * "SNMP_COMMUNITY=" both look for "SNMP_COMMUNITY=", so a longer name that
 * merely begins with the key ("SNMP_COMMUNITY_V3=") does not match. The
 * value is the rest of the line after the '=', without its line end, cut to
 * size - 1 characters.
 *
 * When the key occurs on several lines the last one wins, as it does for
 * every key the site configuration reader knows: an edition appends its
 * overrides below the defaults.
 *
 * Returns 1 and fills value when the key was found; otherwise returns 0 and
 * leaves value empty (a file that can't be read is such a case; errno then
 * tells why).
 */
MFP_EXPORT int textfile_process(const char *path, const char *key, char *value, size_t size);

/* 1 when something (a file, directory, socket, ...) exists at path, else 0. */
MFP_EXPORT int file_exists(const char *path);

/* Removes every line-end character ('\n', '\r') at the end of s; returns s. */
MFP_EXPORT char *chomp(char *s);

/*
 * Copies at most size - 1 bytes of src to dst and always terminates dst
 * (nothing is written when size is 0). A NULL src copies as "". Returns dst.
 */
MFP_EXPORT char *strzcpy(char *dst, const char *src, size_t size);

#ifdef __cplusplus
}
#endif

#endif
