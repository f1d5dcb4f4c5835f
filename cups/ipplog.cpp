#include "ipplog.h"

#include <QDir>
#include <QFile>

#include <cstdarg>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

FILE *s_streams[IPPLog::KindCount] = {};

QString &directoryOfLogs()
{
    static QString dir;
    return dir;
}

const char *const s_names[IPPLog::KindCount] = {
    "ipp_request.log", "ipp_printer.log", "ipp_driver.log", "ipp_job.log", "ipp_class.log",
};

void vline(FILE *log, const char *format, va_list args)
{
    if (!log)
        return;
    vfprintf(log, format, args);
    fputs("\r\n", log);
}

// Opens the logs before main() and closes them after it.
struct LogLifetime
{
    LogLifetime() { IPPLog::openAll(IPPLog::defaultDirectory()); }
    ~LogLifetime() { IPPLog::closeAll(); }
} s_lifetime;

} // namespace

FILE *IPPLog::stream(Kind kind)
{
    return s_streams[kind];
}

QString IPPLog::fileName(Kind kind)
{
    return QString::fromLatin1(s_names[kind]);
}

QString IPPLog::defaultDirectory()
{
    const QByteArray dir = qgetenv("QUEUEWIZ_LOG_DIR");
    return dir.isEmpty() ? QStringLiteral("/var/tmp") : QFile::decodeName(dir);
}

QString IPPLog::directory()
{
    return directoryOfLogs();
}

void IPPLog::openAll(const QString &dir)
{
    closeAll();
    directoryOfLogs() = dir;
    for (int i = 0; i < KindCount; ++i)
        s_streams[i] = openSafely(dir + QLatin1Char('/') + QLatin1String(s_names[i]));
}

void IPPLog::closeAll()
{
    for (FILE *&log : s_streams) {
        if (log)
            fclose(log);
        log = nullptr;
    }
}

FILE *IPPLog::openSafely(const QString &path)
{
    // No O_TRUNC here: the file is emptied only once it is known to be ours.
    // O_NONBLOCK keeps a FIFO planted under the name from blocking the open.
    const int fd = ::open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (fd < 0)
        return nullptr;
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_uid != geteuid() || st.st_nlink != 1
        || ftruncate(fd, 0) != 0) {
        ::close(fd);
        return nullptr;
    }
    fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    FILE *log = fdopen(fd, "wb");
    if (!log)
        ::close(fd);
    return log;
}

void IPPLog::flush(Kind kind)
{
    if (s_streams[kind])
        fflush(s_streams[kind]);
}

void IPPLog::flushAll()
{
    for (FILE *log : s_streams) {
        if (log)
            fflush(log);
    }
}

void IPPLog::line(Kind kind, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    vline(s_streams[kind], format, args);
    va_end(args);
}

void IPPLog::line(FILE *log, const char *format, ...)
{
    va_list args;
    va_start(args, format);
    vline(log, format, args);
    va_end(args);
}

void IPPLog::dumpAttribute(FILE *log, ipp_attribute_t *attr)
{
    if (!log || !attr)
        return;
    const char *name = ippGetName(attr);
    if (!name) {
        line(log, "\n----------\nProperty with no name!\n");
        return;
    }
    line(log, "\n*************\nProperty name: %s", name);
    const int count = ippGetCount(attr);
    line(log, "Values: %d", count);
    if (count < 1)
        return;
    const ipp_tag_t tag = ippGetValueTag(attr);
    line(log, "Value tag: 0x%x", static_cast<unsigned>(tag));
    switch (tag) {
    case IPP_TAG_STRING: {
        // Octet strings are not NUL-terminated in CUPS 2.
        int length = 0;
        const void *data = ippGetOctetString(attr, 0, &length);
        if (data)
            line(log, "String: %.*s", length, static_cast<const char *>(data));
        break;
    }
    case IPP_TAG_TEXT:
    case IPP_TAG_NAME:
    case IPP_TAG_URI:
    case IPP_TAG_MIMETYPE:
        if (const char *text = ippGetString(attr, 0, nullptr))
            line(log, "String: %s", text);
        break;
    case IPP_TAG_INTEGER:
        line(log, "Integer: %d", ippGetInteger(attr, 0));
        break;
    default:
        break;
    }
}
