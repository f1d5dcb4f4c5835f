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

// Nothing opens the logs before main(): every program that links this
// library would empty the running wizard's logs. Whatever is open is
// closed after main().
struct LogCloser
{
    ~LogCloser() { IPPLog::closeAll(); }
} s_closer;

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
    // O_APPEND: should anything else shorten the file, the lines still go
    // to its end instead of leaving a gap of NUL bytes.
    const int fd = ::open(QFile::encodeName(path).constData(),
                          O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (fd < 0)
        return nullptr;
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_uid != geteuid() || st.st_nlink != 1
        || ftruncate(fd, 0) != 0) {
        ::close(fd);
        return nullptr;
    }
    fcntl(fd, F_SETFL, fcntl(fd, F_GETFL) & ~O_NONBLOCK);
    FILE *log = fdopen(fd, "ab");
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
    // The lines of an attribute are put together and written at once: a
    // listing of many queues dumps tens of thousands of attributes.
    QByteArray text;
    text.reserve(128);
    text.append("\n*************\nProperty name: ").append(name).append("\r\n");
    const int count = ippGetCount(attr);
    text.append("Values: ").append(QByteArray::number(count)).append("\r\n");
    if (count > 0) {
        const ipp_tag_t tag = ippGetValueTag(attr);
        text.append("Value tag: 0x").append(QByteArray::number(static_cast<unsigned>(tag), 16)).append("\r\n");
        switch (tag) {
        case IPP_TAG_STRING: {
            int length = 0;
            // Octet strings are not NUL-terminated in CUPS 2, and the text
            // ends at a NUL inside.
            if (const auto *bytes = static_cast<const char *>(ippGetOctetString(attr, 0, &length)))
                text.append("String: ").append(bytes, qsizetype(qstrnlen(bytes, uint(length)))).append("\r\n");
            break;
        }
        case IPP_TAG_TEXT:
        case IPP_TAG_NAME:
        case IPP_TAG_URI:
        case IPP_TAG_MIMETYPE:
            if (const char *value = ippGetString(attr, 0, nullptr))
                text.append("String: ").append(value).append("\r\n");
            break;
        case IPP_TAG_INTEGER:
            text.append("Integer: ").append(QByteArray::number(ippGetInteger(attr, 0))).append("\r\n");
            break;
        default:
            break;
        }
    }
    fwrite(text.constData(), 1, size_t(text.size()), log);
}
