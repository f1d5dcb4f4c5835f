#ifndef QUEUEWIZ_INSTANCEPROCESS_H
#define QUEUEWIZ_INSTANCEPROCESS_H

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QStringList>

// The test side of one scripted instance (instancehelper) on an X display.
class InstanceProcess
{
public:
    // id and user are passed as given; a null user keeps the real login name.
    InstanceProcess(const QString &display, const QString &id, const QString &user = QString());
    ~InstanceProcess();
    InstanceProcess(const InstanceProcess &) = delete;
    InstanceProcess &operator=(const InstanceProcess &) = delete;

    bool start();
    void command(const QByteArray &line);
    // The rest of the next answer line that begins with prefix + " " (or the
    // whole line equal to prefix); null when none comes within timeout.
    QByteArray waitFor(const QByteArray &prefix, int timeout = 15000);
    // Answers already here that begin with prefix, without waiting.
    bool hasAnswer(const QByteArray &prefix);
    // Runs a command and returns its answer: command("running") -> "1".
    QByteArray ask(const QByteArray &line, const QByteArray &answerPrefix);
    // Asks the instance to quit; its exit code, or -1 if it crashed or hung.
    int quit();

    static QByteArray encode(const QString &text) { return text.toUtf8().toPercentEncoding(); }
    static QString helperPath();

private:
    void collect();
    QByteArray take(const QByteArray &prefix);

    QProcess m_process;
    QByteArray m_buffer;
    QList<QByteArray> m_lines;
};

#endif
