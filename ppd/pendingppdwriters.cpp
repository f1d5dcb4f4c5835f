#include "pendingppdwriters.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QList>
#include <QThread>

#include <signal.h>
#include <unistd.h>

namespace {

struct Writer
{
    QString queue;
    qint64 pid;
    // When it started, so that another process that gets the same id later
    // is not taken for it; empty where /proc can't tell.
    QByteArray started;
};

QList<Writer> s_writers;

// How long an ended writer may take to go.
constexpr int EndMs = 1000;

QByteArray procStat(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    return stat.open(QIODevice::ReadOnly) ? stat.readAll() : QByteArray();
}

// The fields after the command name, which may hold blanks and parentheses:
// the state first, the start time twentieth.
QList<QByteArray> statFields(const QByteArray &stat)
{
    const qsizetype end = stat.lastIndexOf(')');
    return end < 0 ? QList<QByteArray>() : stat.mid(end + 2).split(' ');
}

QByteArray startTime(qint64 pid)
{
    return statFields(procStat(pid)).value(19);
}

bool isSameRunning(const Writer &writer)
{
    return PendingPPDWriters::isRunning(writer.pid) && startTime(writer.pid) == writer.started;
}

bool waitFor(const Writer &writer, int timeoutMs)
{
    QElapsedTimer waited;
    waited.start();
    while (isSameRunning(writer)) {
        if (waited.elapsed() >= timeoutMs)
            return false;
        QThread::msleep(PendingPPDWriters::PollMs);
    }
    return true;
}

} // namespace

void PendingPPDWriters::add(const QString &queue, qint64 pid)
{
    s_writers.append({queue, pid, startTime(pid)});
}

void PendingPPDWriters::settle(const QString &queue, int timeoutMs)
{
    for (qsizetype i = 0; i < s_writers.size();) {
        const Writer writer = s_writers.at(i);
        if (writer.queue != queue) {
            ++i;
            continue;
        }
        s_writers.removeAt(i);
        if (!isSameRunning(writer))
            continue;
        const bool gui = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
        if (gui)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        // Its work was done again by the commit when it was late; ending it
        // loses nothing. In a session of its own, its group holds what it
        // started.
        if (!waitFor(writer, timeoutMs)) {
            const pid_t pid = static_cast<pid_t>(writer.pid);
            const pid_t group = ::getpgid(pid);
            const pid_t target = group > 0 && group != ::getpgrp() ? -group : pid;
            // Gone before the caller stores its file, however it ends.
            ::kill(target, SIGTERM);
            if (!waitFor(writer, EndMs)) {
                ::kill(target, SIGKILL);
                waitFor(writer, EndMs);
            }
        }
        if (gui)
            QGuiApplication::restoreOverrideCursor();
    }
}

bool PendingPPDWriters::isRunning(qint64 pid)
{
    // Once it has ended the system reaps it; a zombie counts as ended.
    const QByteArray stat = procStat(pid);
    if (stat.isEmpty())
        return ::kill(static_cast<pid_t>(pid), 0) == 0;
    const QByteArray state = statFields(stat).value(0);
    return !state.isEmpty() && state != "Z" && state != "X";
}
