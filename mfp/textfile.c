#include "mfp.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <sys/stat.h>

/* Lines are read like the site configuration reads them: 511 characters. */
enum { LINE_SIZE = 512, KEY_SIZE = 256 };

char *strzcpy(char *dst, const char *src, size_t size)
{
    if (!dst || !size)
        return dst;
    size_t n = src ? strnlen(src, size - 1) : 0;
    if (n)
        memcpy(dst, src, n);
    dst[n] = '\0';
    return dst;
}

char *chomp(char *s)
{
    if (!s)
        return s;
    size_t n = strlen(s);
    while (n && (s[n - 1] == '\n' || s[n - 1] == '\r'))
        s[--n] = '\0';
    return s;
}

int file_exists(const char *path)
{
    struct stat st;
    return path && *path && stat(path, &st) == 0;
}

/* Drops what is left of a line that did not fit into the buffer. */
static void skip_rest_of_line(FILE *f)
{
    int c;
    while ((c = getc(f)) != EOF && c != '\n') {
    }
}

int textfile_process(const char *path, const char *key, char *value, size_t size)
{
    if (value && size)
        value[0] = '\0';

    char needle[KEY_SIZE];
    size_t keylen = key ? strlen(key) : 0;
    if (keylen && key[keylen - 1] == '=')
        --keylen;
    if (!path || !keylen || keylen + 2 > sizeof needle) {
        errno = EINVAL;
        return 0;
    }
    memcpy(needle, key, keylen);
    needle[keylen] = '=';
    needle[keylen + 1] = '\0';

    FILE *f = fopen(path, "r");
    if (!f)
        return 0;

    int found = 0;
    char line[LINE_SIZE];
    while (fgets(line, sizeof line, f)) {
        if (!strchr(line, '\n'))
            skip_rest_of_line(f);
        chomp(line);
        const char *at = strstr(line, needle);
        if (!at)
            continue;
        found = 1;
        strzcpy(value, at + keylen + 1, size);
    }
    if (ferror(f)) {
        int error = errno;
        fclose(f);
        if (value && size)
            value[0] = '\0';
        errno = error;
        return 0;
    }
    fclose(f);
    return found;
}
