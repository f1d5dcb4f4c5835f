#ifndef QUEUEWIZ_IPPLOG_H
#define QUEUEWIZ_IPPLOG_H

#include <cups/ipp.h>

#include <QString>

#include <cstdio>

// The five always-on diagnostic logs of the CUPS client, "ipp_*.log" in
// /var/tmp. Only the wizard's running instance writes them: it opens and
// truncates them (openAll) before its first request, and they are closed
// when it ends. Other programs that link this library (the test page, a
// second start that only wakes the first) leave them alone; until openAll
// every log is closed and writes go nowhere. The environment variable
// QUEUEWIZ_LOG_DIR, when set, names another directory (tests use it so that
// runs don't share /var/tmp).
//
// A log is opened only if that is safe for a process that may run as root:
// never through a symbolic link, never a file of another user, never a file
// with further hard links or something that is not a regular file. A log that
// can't be opened that way is skipped; every write tests its stream first.
class IPPLog
{
public:
    enum Kind { Request, Printer, Driver, Job, Class };
    static constexpr int KindCount = Class + 1;

    // The stream of a log, nullptr when it is not open.
    static FILE *stream(Kind kind);
    // The file name of a log ("ipp_request.log", ...).
    static QString fileName(Kind kind);
    // The directory of the logs: QUEUEWIZ_LOG_DIR or "/var/tmp".
    static QString defaultDirectory();
    static QString directory();

    // Closes the logs and opens them again, truncated, in dir, for appending.
    static void openAll(const QString &dir);
    static void closeAll();

    // Writes buffered lines out; the records' logs are flushed by whoever
    // walks an answer, after the walk.
    static void flush(Kind kind);
    static void flushAll();

    // Writes one line: the formatted text, then "\r\n".
    static void line(Kind kind, const char *format, ...) __attribute__((format(printf, 2, 3)));
    static void line(FILE *log, const char *format, ...) __attribute__((format(printf, 2, 3)));

    // Writes one attribute of an IPP message: its name, number of values,
    // value tag and the first value when it is a string or an integer.
    static void dumpAttribute(FILE *log, ipp_attribute_t *attr);
    static void dumpAttribute(Kind kind, ipp_attribute_t *attr) { dumpAttribute(stream(kind), attr); }

private:
    static FILE *openSafely(const QString &path);
};

#endif
