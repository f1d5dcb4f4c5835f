#ifndef QUEUEWIZ_INSTANCEPROCESS_H
#define QUEUEWIZ_INSTANCEPROCESS_H

#include <QByteArray>
#include <QList>
#include <QProcess>

// The test's side of one scripted instance (instancehelper).
class InstanceProcess
{
public:
    // A null user keeps the real login name.
    InstanceProcess(const QProcessEnvironment &env, const QString &id, const QString &user = QString());
    ~InstanceProcess();

    bool start();
    // Sends a command and returns the rest of its answer: ask("running") -> "1".
    QByteArray ask(const QByteArray &command);
    // The rest of the next line that is prefix or begins with prefix + " ";
    // null when none comes within timeout.
    QByteArray waitFor(const QByteArray &prefix, int timeout = 15000);
    // Asks the instance to quit; its exit code, or -1 if it crashed or hung.
    int quit();

    static QByteArray encode(const QString &text) { return text.toUtf8().toPercentEncoding(); }
    // This process's environment, for an X11 client of display.
    static QProcessEnvironment environment(const QString &display);
    // For a client of a Wayland session that has no compositor: only the
    // session's names and the runtime directory count.
    static QProcessEnvironment sessionEnvironment(const QString &runtimeDir);

private:
    QProcess m_process;
    QList<QByteArray> m_lines;
};

#endif
