/*
 * The "mfp" backend: makes the queue URIs "mfp:/dev/mfpN" print.
 *
 * Run without arguments it lists the devices of libmfp. Run for a job it
 * looks device N up and hands the job, unchanged, to the scheduler's own usb
 * or parallel backend with that device's URI. It is installed with mode 0700
 * so that the scheduler runs it as root, as it runs those backends.
 */

#include "mfpinternal.h"

#include <cups/backend.h>
#include <errno.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#define URI_PREFIX "mfp:/dev/mfp"

static void print_quoted(const char *text)
{
    putchar('"');
    for (; *text; ++text)
        putchar(*text == '"' ? '\'' : *text);
    putchar('"');
}

static const char *kind_name(int type)
{
    return type == MFP_DEVICE_USB ? "USB" : "Parallel";
}

/* Reads all devices; NULL (and *count 0) when there are none. */
static mfp_device *read_devices(int *count)
{
    *count = mfp_get_devices(NULL, 0);
    if (*count <= 0)
        return NULL;
    mfp_device *devices = calloc((size_t)*count, sizeof *devices);
    if (!devices) {
        *count = 0;
        return NULL;
    }
    *count = mfp_get_devices(devices, *count);
    return devices;
}

static int list_devices(void)
{
    int count;
    mfp_device *devices = read_devices(&count);
    for (int i = 0; i < count; ++i) {
        const mfp_device *device = &devices[i];
        if (device->type <= 0)
            continue;
        char make_model[MFP_MAKE_SIZE + MFP_MODEL_SIZE + 1], info[sizeof make_model + 16];
        mfp_make_and_model(device, make_model, sizeof make_model);
        snprintf(info, sizeof info, "%s (%s)", make_model, kind_name(device->type));
        printf("direct " URI_PREFIX "%d ", i);
        print_quoted(make_model);
        putchar(' ');
        print_quoted(info);
        putchar(' ');
        print_quoted(device->device_id);
        printf(" \"\"\n");
    }
    free(devices);
    return CUPS_BACKEND_OK;
}

/* N of "mfp:/dev/mfpN" (a query after it is allowed), or -1. */
static int device_index(const char *uri)
{
    if (!uri || strncmp(uri, URI_PREFIX, strlen(URI_PREFIX)) != 0)
        return -1;
    const char *digits = uri + strlen(URI_PREFIX);
    size_t n = strspn(digits, "0123456789");
    if (!n || n > 6 || (digits[n] && digits[n] != '?'))
        return -1;
    return atoi(digits);
}

static int run_job(int argc, char *argv[])
{
    const char *uri = getenv("DEVICE_URI");
    if (!uri)
        uri = argv[0];
    int index = device_index(uri);
    if (index < 0) {
        fprintf(stderr, "ERROR: Bad device URI \"%s\": expected " URI_PREFIX "N.\n", uri);
        return CUPS_BACKEND_STOP;
    }

    int count;
    mfp_device *devices = read_devices(&count);
    if (index >= count || devices[index].type <= 0) {
        fprintf(stderr, "ERROR: The printer /dev/mfp%d is not connected; the job will be retried.\n", index);
        free(devices);
        return CUPS_BACKEND_RETRY;
    }
    mfp_device device = devices[index];
    free(devices);

    if (!device.uri[0]) {
        fprintf(stderr, "ERROR: The device URI of /dev/mfp%d is too long.\n", index);
        return CUPS_BACKEND_STOP;
    }

    char scheme[16];
    strzcpy(scheme, device.uri, sizeof scheme);
    scheme[strcspn(scheme, ":")] = '\0';
    const char *serverbin = getenv("CUPS_SERVERBIN");
    char backend[4096];
    snprintf(backend, sizeof backend, "%s/backend/%s", serverbin && *serverbin ? serverbin : "/usr/lib/cups",
             scheme);

    char **args = calloc((size_t)argc + 1, sizeof *args);
    if (!args) {
        fprintf(stderr, "ERROR: Out of memory.\n");
        return CUPS_BACKEND_FAILED;
    }
    args[0] = device.uri;
    for (int i = 1; i < argc; ++i)
        args[i] = argv[i];
    setenv("DEVICE_URI", device.uri, 1);
    fprintf(stderr, "DEBUG: /dev/mfp%d is %s, printing through %s\n", index, device.uri, backend);
    fflush(stderr);

    execv(backend, args);
    fprintf(stderr, "ERROR: Unable to run the %s backend \"%s\": %s\n", scheme, backend, strerror(errno));
    free(args);
    return CUPS_BACKEND_STOP;
}

int main(int argc, char *argv[])
{
    if (argc == 1)
        return list_devices();
    if (argc < 6 || argc > 7) {
        fprintf(stderr, "Usage: %s job-id user title copies options [file]\n", argv[0]);
        return CUPS_BACKEND_FAILED;
    }
    return run_job(argc, argv);
}
