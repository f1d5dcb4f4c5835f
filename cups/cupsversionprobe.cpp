#include "cupsversionprobe.h"

#include <QByteArrayList>
#include <QRegularExpression>
#include <QString>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace {

// The package manager of rpm systems knows the installed version without a
// running scheduler. Debian's dpkg was once asked for "cupsys-common",
// a package name that no supported Debian or Ubuntu has: there the
// running scheduler answers instead. A system without the package prints
// "package cups is not installed", which has no version. The first two
// dot-separated fields of "cups-2.4.2-1.fc39" are major and minor.
const char kPipeline[] = "rpm -q cups | awk -F. '/^cups-[0-9]/ { print $1 \".\" $2 }'";
// An answer this long is not a version number.
constexpr int kMaxAnswer = 15;

// Only an rpm on the PATH can answer; elsewhere the shell would take CPU
// from start-up to print nothing.
bool packageQueryCanAnswer()
{
    const QByteArray path = qgetenv("PATH");
    for (const QByteArray &dir : path.split(':')) {
        if (!dir.isEmpty() && access((dir + "/rpm").constData(), X_OK) == 0)
            return true;
    }
    return false;
}

} // namespace

CupsVersionProbe::CupsVersionProbe(int (*fallback)())
    : m_fallback(fallback)
{
    start();
}

CupsVersionProbe::~CupsVersionProbe()
{
    stop();
}

CupsVersionProbe &CupsVersionProbe::operator=(int version)
{
    stop();
    m_version = version;
    m_known = true;
    return *this;
}

void CupsVersionProbe::start()
{
    if (!packageQueryCanAnswer())
        return;
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, fds[1], STDOUT_FILENO);
    // The package tools complain on stderr about packages that don't exist.
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // A group of its own, so that a pipeline nobody waits for can be ended
    // whole.
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    posix_spawnattr_setpgroup(&attributes, 0);
    char sh[] = "sh";
    char dashC[] = "-c";
    char pipeline[sizeof kPipeline];
    std::copy(kPipeline, kPipeline + sizeof kPipeline, pipeline);
    char *argv[] = {sh, dashC, pipeline, nullptr};
    pid_t child = -1;
    if (posix_spawn(&child, "/bin/sh", &actions, &attributes, argv, environ) == 0) {
        m_child = child;
        m_output = fds[0];
    } else {
        ::close(fds[0]);
    }
    ::close(fds[1]);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
}

int CupsVersionProbe::value() const
{
    if (!m_known) {
        auto *self = const_cast<CupsVersionProbe *>(this);
        bool answered = false;
        m_version = self->readAnswer(&answered);
        if (!answered && m_fallback)
            m_version = m_fallback();
        m_known = true;
    }
    return m_version;
}

int CupsVersionProbe::readAnswer(bool *answered)
{
    *answered = false;
    if (m_output < 0)
        return -1;
    char text[kMaxAnswer + 1] = {};
    int length = 0;
    while (length < kMaxAnswer) {
        const ssize_t n = ::read(m_output, text + length, size_t(kMaxAnswer - length));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        length += int(n);
    }
    stop();
    *answered = length > 0;
    if (length == 0 || length >= kMaxAnswer)
        return -1;
    return parseLevel(QString::fromLatin1(text, length));
}

int CupsVersionProbe::parseLevel(const QString &text)
{
    static const QRegularExpression version(QStringLiteral("(\\d+)\\.(\\d+)"));
    const QRegularExpressionMatch m = version.match(text);
    return m.hasMatch() ? level(m.captured(1).toInt(), m.captured(2).toInt()) : -1;
}

void CupsVersionProbe::stop()
{
    if (m_output >= 0) {
        ::close(m_output);
        m_output = -1;
    }
    if (m_child > 0) {
        // Finished by now when it was read; otherwise nobody wants it.
        kill(-m_child, SIGKILL);
        while (waitpid(m_child, nullptr, 0) < 0 && errno == EINTR) {
        }
        m_child = -1;
    }
}
