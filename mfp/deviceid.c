#include "mfpinternal.h"

#include <cups/cups.h>
#include <ctype.h>
#include <stdio.h>
#include <string.h>
#include <strings.h>

/*
 * Length of the well-formed UTF-8 character at s, or 0 when s begins none:
 * a stray byte, a cut sequence, an overlong form (which a lenient reader
 * could take for a control character) or a surrogate.
 */
static size_t utf8_length(const unsigned char *s)
{
    size_t len = *s < 0x80 ? 1 : *s < 0xc2 ? 0 : *s < 0xe0 ? 2 : *s < 0xf0 ? 3 : *s < 0xf5 ? 4 : 0;
    /* the second byte's range for the lead bytes that restrict it */
    unsigned char low = *s == 0xe0 ? 0xa0 : *s == 0xf0 ? 0x90 : 0x80;
    unsigned char high = *s == 0xed ? 0x9f : *s == 0xf4 ? 0x8f : 0xbf;
    for (size_t i = 1; i < len; ++i) {
        if (s[i] < (i == 1 ? low : 0x80) || s[i] > (i == 1 ? high : 0xbf))
            return 0;
    }
    return len;
}

void mfp_copy_text(char *dst, const char *src, size_t size)
{
    if (!size)
        return;
    size_t out = 0;
    const unsigned char *s = (const unsigned char *)(src ? src : "");
    while (*s) {
        /* what a device sends need not be UTF-8: a stray byte is dropped,
           as are the C0 and C1 controls and DEL */
        size_t len = utf8_length(s);
        if (!len || (len == 1 && (*s < 0x20 || *s == 0x7f)) || (len == 2 && *s == 0xc2 && s[1] < 0xa0)) {
            ++s;
            continue;
        }
        if (out + len > size - 1)
            break;
        for (size_t i = 0; i < len; ++i)
            dst[out++] = (char)(s[i] == '"' ? '\'' : s[i]);
        s += len;
    }
    dst[out] = '\0';
}

static const char *skip_space(const char *s, const char *end)
{
    while (s < end && isspace((unsigned char)*s))
        ++s;
    return s;
}

static const char *trim_end(const char *begin, const char *end)
{
    while (end > begin && isspace((unsigned char)end[-1]))
        --end;
    return end;
}

/* One "KEY:value" pair of a device ID, as pointers into the ID. */
struct id_pair {
    const char *key, *key_end;
    const char *value, *value_end;
    const char *begin, *end; /* the whole pair, trimmed */
};

/* Reads the pair that starts at *cursor and moves *cursor past its ';'. */
static int next_pair(const char **cursor, struct id_pair *pair)
{
    const char *s = *cursor;
    while (*s) {
        const char *semi = strchr(s, ';');
        const char *end = semi ? semi : s + strlen(s);
        *cursor = semi ? semi + 1 : end;
        const char *colon = memchr(s, ':', (size_t)(end - s));
        if (colon) {
            pair->begin = pair->key = skip_space(s, colon);
            pair->key_end = trim_end(pair->key, colon);
            pair->value = skip_space(colon + 1, end);
            pair->end = pair->value_end = trim_end(pair->value, end);
            if (pair->key_end > pair->key)
                return 1;
        }
        s = *cursor;
    }
    return 0;
}

static int key_is(const struct id_pair *pair, const char *key)
{
    size_t len = (size_t)(pair->key_end - pair->key);
    return strlen(key) == len && strncasecmp(pair->key, key, len) == 0;
}

static int find_pair(const char *id, const char *const *keys, struct id_pair *found)
{
    for (; *keys; ++keys) {
        const char *cursor = id;
        struct id_pair pair;
        while (next_pair(&cursor, &pair)) {
            if (key_is(&pair, *keys)) {
                *found = pair;
                return 1;
            }
        }
    }
    return 0;
}

int mfp_id_value(const char *id, const char *const *keys, char *out, size_t size)
{
    struct id_pair pair;
    if (size)
        out[0] = '\0';
    if (!id || !find_pair(id, keys, &pair))
        return 0;
    char value[MFP_ID_MAX];
    size_t len = (size_t)(pair.value_end - pair.value);
    if (len >= sizeof value)
        len = sizeof value - 1;
    memcpy(value, pair.value, len);
    value[len] = '\0';
    mfp_copy_text(out, value, size);
    return 1;
}

/* Appends the n bytes at s to out (holding *len bytes) when they fit. */
static int append(char *out, size_t size, size_t *len, const char *s, size_t n)
{
    if (*len + n + 1 > size)
        return 0;
    memcpy(out + *len, s, n);
    *len += n;
    out[*len] = '\0';
    return 1;
}

void mfp_id_fit(const char *id, char *out, size_t size)
{
    if (!size)
        return;
    /* a device's own ID may hold anything; the backend prints it on one line */
    char clean[MFP_ID_MAX];
    mfp_copy_text(clean, id, sizeof clean);
    id = clean;
    out[0] = '\0';
    if (strlen(id) < size) {
        memcpy(out, id, strlen(id) + 1);
        return;
    }
    /* What the scheduler matches drivers by, most telling first. */
    static const char *const wanted[][3] = {
        { "MFG", "MANUFACTURER", NULL },
        { "MDL", "MODEL", NULL },
        { "CMD", "COMMAND SET", NULL },
        { "CLS", "CLASS", NULL },
        { "DES", "DESCRIPTION", NULL },
    };
    size_t len = 0;
    for (size_t i = 0; i < sizeof wanted / sizeof wanted[0]; ++i) {
        struct id_pair pair;
        if (!find_pair(id, wanted[i], &pair))
            continue;
        size_t n = (size_t)(pair.end - pair.begin);
        if (append(out, size, &len, pair.begin, n) && !append(out, size, &len, ";", 1))
            out[len -= n] = '\0';
    }
}

void mfp_id_from_autoprobe(const char *text, char *out, size_t size)
{
    if (!size)
        return;
    out[0] = '\0';
    size_t len = 0;
    const char *cursor = text ? text : "";
    struct id_pair pair;
    while (next_pair(&cursor, &pair)) {
        size_t n = (size_t)(pair.end - pair.begin);
        if (!append(out, size, &len, pair.begin, n))
            break;
        if (!append(out, size, &len, ";", 1)) {
            out[len -= n] = '\0';
            break;
        }
    }
}

/* The usb backend shortens these two makers in its URIs. */
static const char *uri_make(const char *make)
{
    if (strcasecmp(make, "Hewlett-Packard") == 0)
        return "HP";
    if (strcasecmp(make, "Lexmark International") == 0)
        return "Lexmark";
    return make;
}

/* model less a leading "make " */
static const char *model_without_make(const char *model, const char *make)
{
    size_t n = strlen(make);
    if (n && strncasecmp(model, make, n) == 0 && isspace((unsigned char)model[n])) {
        model += n;
        while (isspace((unsigned char)*model))
            ++model;
    }
    return model;
}

int mfp_usb_uri(const char *make, const char *model, const char *serial, int iface,
                char *uri, size_t size)
{
    char host[MFP_MAKE_SIZE];
    if (make && *make) {
        strzcpy(host, uri_make(make), sizeof host);
    } else {
        /* no maker: the usb backend names the first word of the model */
        strzcpy(host, model && *model ? model : "Unknown", sizeof host);
        host[strcspn(host, " \t")] = '\0';
    }
    const char *path = model && *model ? model_without_make(model, host) : "Unknown Model";
    if (!*path)
        path = "Unknown Model";

    /* a cut serial number would name no device, or another one */
    char query[256];
    int n = 0;
    if (serial && *serial)
        n = snprintf(query, sizeof query, iface > 0 ? "?serial=%s&interface=%d" : "?serial=%s", serial, iface);
    else if (iface > 0)
        n = snprintf(query, sizeof query, "?interface=%d", iface);
    else
        query[0] = '\0';

    if (n < 0 || n >= (int)sizeof query
        || httpAssembleURIf(HTTP_URI_CODING_ALL, uri, (int)size, "usb", NULL, host, 0, "/%s%s", path, query)
        < HTTP_URI_STATUS_OK) {
        uri[0] = '\0';
        return 0;
    }
    return 1;
}

void mfp_make_and_model(const mfp_device *device, char *out, size_t size)
{
    const char *make = device->make;
    const char *model = device->model;
    if (!*make && !*model)
        snprintf(out, size, "Unknown");
    else if (!*make || model_without_make(model, make) != model
             || model_without_make(model, uri_make(make)) != model)
        snprintf(out, size, "%s", model);
    else if (!*model)
        snprintf(out, size, "%s", make);
    else
        snprintf(out, size, "%s %s", make, model);
}

int mfp_natural_compare(const char *a, const char *b)
{
    while (*a && *b) {
        if (isdigit((unsigned char)*a) && isdigit((unsigned char)*b)) {
            while (*a == '0')
                ++a;
            while (*b == '0')
                ++b;
            size_t na = strspn(a, "0123456789");
            size_t nb = strspn(b, "0123456789");
            if (na != nb)
                return na < nb ? -1 : 1;
            int diff = strncmp(a, b, na);
            if (diff)
                return diff;
            a += na;
            b += nb;
            continue;
        }
        if (*a != *b)
            return (unsigned char)*a < (unsigned char)*b ? -1 : 1;
        ++a;
        ++b;
    }
    return *a ? 1 : (*b ? -1 : 0);
}
