#include "instanceprocess.h"

#include "testpaths.h"

#include <QDeadlineTimer>

QProcessEnvironment InstanceProcess::environment(const QString &display)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), display);
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    return env;
}

QProcessEnvironment InstanceProcess::sessionEnvironment(const QString &runtimeDir)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("WAYLAND_DISPLAY"), QStringLiteral("wayland-test"));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDir);
    env.remove(QStringLiteral("DISPLAY"));
    return env;
}

InstanceProcess::InstanceProcess(const QProcessEnvironment &env, const QString &id, const QString &user)
{
    m_process.setProcessEnvironment(env);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QStringList args{ QStringLiteral("--id"), QString::fromLatin1(encode(id)) };
    if (!user.isNull())
        args << QStringLiteral("--user") << QString::fromLatin1(encode(user));
    m_process.setProgram(TestPaths::binaryDir() + QStringLiteral("/tests/singleapp/instancehelper"));
    m_process.setArguments(args);
}

InstanceProcess::~InstanceProcess()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished(5000);
    }
}

bool InstanceProcess::start()
{
    m_process.start();
    return m_process.waitForStarted(10000);
}

QByteArray InstanceProcess::ask(const QByteArray &command)
{
    m_process.write(command + '\n');
    return waitFor(command.split(' ').first());
}

QByteArray InstanceProcess::waitFor(const QByteArray &prefix, int timeout)
{
    const QDeadlineTimer deadline(timeout);
    for (;;) {
        while (m_process.canReadLine())
            m_lines.append(m_process.readLine().chopped(1));
        for (qsizetype i = 0; i < m_lines.size(); ++i) {
            if (m_lines.at(i) == prefix || m_lines.at(i).startsWith(prefix + ' ')) {
                const QByteArray rest = m_lines.takeAt(i).mid(prefix.size() + 1);
                return rest.isNull() ? QByteArray("") : rest;
            }
        }
        if (deadline.hasExpired() || m_process.state() == QProcess::NotRunning)
            return QByteArray();
        m_process.waitForReadyRead(int(qMax<qint64>(1, deadline.remainingTime())));
    }
}

int InstanceProcess::quit()
{
    m_process.write("quit\n");
    if (!m_process.waitForFinished(15000) || m_process.exitStatus() != QProcess::NormalExit)
        return -1;
    return m_process.exitCode();
}
