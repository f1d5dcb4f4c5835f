#ifndef MFP_INTERNAL_H
#define MFP_INTERNAL_H

/* Helpers shared by the library's sources and the mfp backend; not exported. */

#include "mfp.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Longest IEEE 1284 device ID the kernel hands out (usblp keeps 1024 bytes). */
enum { MFP_ID_MAX = 1024 };

/*
 * Copies text for display: control characters and bytes that are not UTF-8
 * are dropped and '"' becomes '\'' (the scheduler's device list quotes these
 * fields), then the result is cut to size - 1 bytes without splitting a
 * UTF-8 character.
 */
void mfp_copy_text(char *dst, const char *src, size_t size);

/*
 * Value of the first of keys (a NULL-terminated list, compared without
 * regard to case) found in the device ID id, cut and cleaned as by
 * mfp_copy_text. 1 when found (the value may be empty), else 0 with out "".
 */
int mfp_id_value(const char *id, const char *const *keys, char *out, size_t size);

/*
 * Puts id into out. When it does not fit, only the pairs a driver is chosen
 * by are kept, and the result is cut after the last ';' that fits.
 */
void mfp_id_fit(const char *id, char *out, size_t size);

/*
 * Turns the kernel's parallel autoprobe text (one "KEY:value;" per line)
 * into a one-line device ID.
 */
void mfp_id_from_autoprobe(const char *text, char *out, size_t size);

/*
 * Device URI of the scheduler's usb backend for a printer of this maker,
 * model and serial number (each may be empty) on interface iface. 1 when it
 * fit into uri, else 0 with uri "".
 */
int mfp_usb_uri(const char *make, const char *model, const char *serial, int iface,
                char *uri, size_t size);

/* "MAKE MODEL", without the maker twice when the model begins with it. */
void mfp_make_and_model(const mfp_device *device, char *out, size_t size);

/* Numeric-aware comparison: "1-2" < "1-10", "1-1" < "1-1.2". */
int mfp_natural_compare(const char *a, const char *b);

#ifdef __cplusplus
}
#endif

#endif
