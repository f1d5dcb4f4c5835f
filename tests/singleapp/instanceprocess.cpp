#include "instanceprocess.h"

#include "testpaths.h"

#include <QDeadlineTimer>
#include <QProcessEnvironment>

InstanceProcess::InstanceProcess(const QString &display, const QString &id, const QString &user)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), display);
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    m_process.setProcessEnvironment(env);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QStringList args{ QStringLiteral("--id"), QString::fromLatin1(encode(id)) };
    if (!user.isNull())
        args << QStringLiteral("--user") << QString::fromLatin1(encode(user));
    m_process.setProgram(helperPath());
    m_process.setArguments(args);
}

InstanceProcess::~InstanceProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
}

QString InstanceProcess::helperPath()
{
    return TestPaths::binaryDir() + QStringLiteral("/tests/singleapp/instancehelper");
}

bool InstanceProcess::start()
{
    m_process.start();
    return m_process.waitForStarted(10000);
}

void InstanceProcess::command(const QByteArray &line)
{
    m_process.write(line + '\n');
    m_process.waitForBytesWritten(5000);
}

void InstanceProcess::collect()
{
    m_buffer += m_process.readAllStandardOutput();
    qsizetype end;
    while ((end = m_buffer.indexOf('\n')) >= 0) {
        m_lines.append(m_buffer.left(end));
        m_buffer.remove(0, end + 1);
    }
}

QByteArray InstanceProcess::take(const QByteArray &prefix)
{
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QByteArray &line = m_lines.at(i);
        if (line == prefix || line.startsWith(prefix + ' ')) {
            const QByteArray rest = line.mid(prefix.size() + 1);
            m_lines.removeAt(i);
            return rest.isNull() ? QByteArray("") : rest;
        }
    }
    return QByteArray();
}

QByteArray InstanceProcess::waitFor(const QByteArray &prefix, int timeout)
{
    const QDeadlineTimer deadline(timeout);
    for (;;) {
        collect();
        const QByteArray found = take(prefix);
        if (!found.isNull())
            return found;
        if (deadline.hasExpired() || m_process.state() == QProcess::NotRunning)
            return QByteArray();
        m_process.waitForReadyRead(int(qMax<qint64>(1, deadline.remainingTime())));
    }
}

bool InstanceProcess::hasAnswer(const QByteArray &prefix)
{
    collect();
    for (const QByteArray &line : std::as_const(m_lines)) {
        if (line == prefix || line.startsWith(prefix + ' '))
            return true;
    }
    return false;
}

QByteArray InstanceProcess::ask(const QByteArray &line, const QByteArray &answerPrefix)
{
    command(line);
    return waitFor(answerPrefix);
}

int InstanceProcess::quit()
{
    command("quit");
    if (!m_process.waitForFinished(15000) || m_process.exitStatus() != QProcess::NormalExit)
        return -1;
    return m_process.exitCode();
}
