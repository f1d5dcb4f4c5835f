#ifndef QUEUEWIZ_TESTSUPPORT_H
#define QUEUEWIZ_TESTSUPPORT_H

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

// What every test program needs besides the scheduler: files, child
// programs, warnings.

// First thing in initTestCase(): the scheduler of the CTest fixture "cups";
// no test runs when it is not there.
#define QW_USE_SHARED_SCHEDULER()                                      \
    do {                                                               \
        QString sharedSchedulerError;                                  \
        QVERIFY2(CupsSandbox::useShared(&sharedSchedulerError),        \
                 qPrintable(sharedSchedulerError));                    \
    } while (false)

namespace TestSupport {

// Writes content to path, making its directory; executable for everyone
// when asked. False when any step fails.
bool writeFile(const QString &path, const QByteArray &content, bool executable = false);
// The whole file; empty when it cannot be read.
QByteArray readFile(const QString &path);

struct Run
{
    int status = -1;  // -1: did not start, crashed or hung
    QString out;
    QString err;
};
// Runs program to its end (timeoutMs at most) in env, input on its standard input.
Run run(const QString &program, const QStringList &args,
        const QProcessEnvironment &env = QProcessEnvironment::systemEnvironment(),
        const QByteArray &input = QByteArray(), int timeoutMs = 60000);

// Answers the next message box that opens within timeoutMs by clicking
// the button with the text answer (else closes it); "title|text" lands in
// *seen.
void answerMessageBox(const QString &answer, QString *seen, int timeoutMs = 5000);

// First thing in main() of a test that needs printers announcing
// themselves: runs the program again inside tests/common/dnssd-network (a
// network, D-Bus and avahi-daemon of its own) and returns there; returns
// false, after saying why, only when that could not be started.
bool inDnssdNetwork(int argc, char **argv);

// Any warning fails the running test, but for the offscreen platform's
// notes about what it cannot do.
void failOnWarnings();

} // namespace TestSupport

#endif
