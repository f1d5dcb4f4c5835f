#include "sessionchannel.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QSocketNotifier>
#include <QStringDecoder>
#include <QTimer>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kPollMs = 10;

// The runtime directory is the user's own, or unusable: a directory that
// others may enter would let them reach the socket or the lock.
QByteArray privateRuntimeDir()
{
    const QByteArray dir = qgetenv("XDG_RUNTIME_DIR");
    struct stat info = {};
    if (!dir.startsWith('/') || stat(dir.constData(), &info) != 0)
        return QByteArray();
    if (!S_ISDIR(info.st_mode) || info.st_uid != geteuid() || (info.st_mode & 077) != 0)
        return QByteArray();
    return dir;
}

bool fillAddress(const QByteArray &path, sockaddr_un *address)
{
    *address = {};
    address->sun_family = AF_UNIX;
    if (size_t(path.size()) >= sizeof address->sun_path)
        return false;
    memcpy(address->sun_path, path.constData(), size_t(path.size()));
    return true;
}

bool peerIsUs(int fd)
{
    ucred peer = {};
    socklen_t length = sizeof peer;
    return getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == geteuid();
}

// Launchers' tokens are opaque but printable: nothing else goes on.
bool isToken(const QByteArray &token)
{
    if (token.size() > 1024)
        return false;
    for (char c : token) {
        if (c < 0x21 || c > 0x7e)
            return false;
    }
    return true;
}

} // namespace

struct SessionChannel::Client
{
    int fd = -1;
    QByteArray data;
    QSocketNotifier *notifier = nullptr;
    QTimer *timer = nullptr;
};

SessionChannel::SessionChannel(const QString &id, QObject *parent)
    : QObject(parent)
{
    const QByteArray dir = privateRuntimeDir();
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    if (dir.isEmpty() || display.isEmpty())
        return;
    QByteArray name = socketName(id, display);
    sockaddr_un address;
    // Deep runtime paths or long display names still get a short name.
    if (!fillAddress(dir + '/' + name + ".lock", &address))
        name = QCryptographicHash::hash(name, QCryptographicHash::Sha1).toHex().left(24);
    if (!fillAddress(dir + '/' + name + ".lock", &address))
        return;
    m_socketPath = dir + '/' + name;
    m_lockPath = m_socketPath + ".lock";
}

SessionChannel::~SessionChannel()
{
    while (!m_clients.empty())
        dropClient(m_clients.back().get());
    if (m_listenFd >= 0) {
        ::close(m_listenFd);
        unlink(m_socketPath.constData());
    }
    // The lock file stays: removing it would race with the next start.
    if (m_lockFd >= 0)
        ::close(m_lockFd);
}

QByteArray SessionChannel::socketName(const QString &id, const QByteArray &waylandDisplay)
{
    QByteArray name = id.toUtf8() + '-' + waylandDisplay;
    for (char &c : name) {
        const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.'
            || c == '_' || c == '-';
        if (!plain)
            c = '_';
    }
    return name;
}

QByteArray SessionChannel::frame(const QString &message, const QByteArray &activationToken)
{
    return message.toUtf8() + '\0' + (isToken(activationToken) ? activationToken : QByteArray());
}

bool SessionChannel::parseFrame(const QByteArray &bytes, QString *message, QByteArray *activationToken)
{
    const qsizetype nul = bytes.indexOf('\0');
    if (bytes.size() > MaxFrameBytes || nul < 0)
        return false;
    const QByteArray token = bytes.mid(nul + 1);
    if (!isToken(token))
        return false;
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes.left(nul));
    if (utf8.hasError())
        return false;
    *message = text;
    *activationToken = token;
    return true;
}

bool SessionChannel::tryLock()
{
    if (m_lockFd >= 0)
        return true;
    const int fd = ::open(m_lockPath.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0)
        return false;
    if (flock(fd, LOCK_EX | LOCK_NB) != 0) {
        ::close(fd);
        return false;
    }
    m_lockFd = fd;
    return true;
}

bool SessionChannel::isRunning() const
{
    if (!isAvailable() || isOwner())
        return false;
    const int fd = ::open(m_lockPath.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0)
        return false;
    const bool held = flock(fd, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(fd);
    return held;
}

bool SessionChannel::listen()
{
    sockaddr_un address;
    if (!fillAddress(m_socketPath, &address))
        return false;
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0)
        return false;
    // Only the holder of the lock gets here, so whatever file is there was
    // left by an instance that is gone.
    unlink(m_socketPath.constData());
    if (bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 || ::listen(fd, MaxClients) != 0) {
        ::close(fd);
        return false;
    }
    chmod(m_socketPath.constData(), 0600);
    m_listenFd = fd;
    return true;
}

bool SessionChannel::deliver(const QByteArray &bytes) const
{
    sockaddr_un address;
    if (!fillAddress(m_socketPath, &address))
        return false;
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    bool sent = ::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0 && peerIsUs(fd);
    // A frame fits the socket's buffer; the instance reads it when its
    // event loop comes round, even if that is a while.
    for (qsizetype done = 0; sent && done < bytes.size();) {
        const ssize_t n = ::send(fd, bytes.constData() + done, size_t(bytes.size() - done), MSG_NOSIGNAL);
        if (n < 0 && errno == EINTR)
            continue;
        sent = n > 0;
        done += qMax<ssize_t>(n, 0);
    }
    ::close(fd);
    return sent;
}

SessionChannel::Outcome SessionChannel::deliverOrClaim(const QString &message, const QByteArray &activationToken,
                                                       int timeoutMs)
{
    if (!isAvailable())
        return Outcome::Unavailable;
    if (isOwner())
        return Outcome::Claimed;
    const QByteArray bytes = frame(message, activationToken);
    const QDeadlineTimer deadline(timeoutMs);
    for (;;) {
        if (claim())
            return Outcome::Claimed;
        if (deliver(bytes))
            return Outcome::Delivered;
        // The holder of the lock is between locking and listening, or it
        // is stuck: then this process runs on its own.
        if (deadline.hasExpired())
            return Outcome::Unavailable;
        usleep(kPollMs * 1000);
    }
}

bool SessionChannel::claim()
{
    if (!isAvailable() || !tryLock())
        return false;
    if (m_listenFd >= 0 || listen())
        return true;
    // Holding the lock without a socket would only make others wait.
    ::close(m_lockFd);
    m_lockFd = -1;
    return false;
}

void SessionChannel::startListening()
{
    if (m_listenFd < 0 || m_listenNotifier)
        return;
    m_listenNotifier = new QSocketNotifier(m_listenFd, QSocketNotifier::Read, this);
    connect(m_listenNotifier, &QSocketNotifier::activated, this, &SessionChannel::acceptClients);
}

void SessionChannel::acceptClients()
{
    for (;;) {
        const int fd = accept4(m_listenFd, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (fd < 0)
            return;
        // Another user's process never gets a word in; neither does a flood.
        if (!peerIsUs(fd) || m_clients.size() >= size_t(MaxClients)) {
            ::close(fd);
            continue;
        }
        auto client = std::make_unique<Client>();
        Client *raw = client.get();
        raw->fd = fd;
        raw->notifier = new QSocketNotifier(fd, QSocketNotifier::Read, this);
        connect(raw->notifier, &QSocketNotifier::activated, this, [this, raw] { readClient(raw); });
        raw->timer = new QTimer(this);
        raw->timer->setSingleShot(true);
        connect(raw->timer, &QTimer::timeout, this, [this, raw] { dropClient(raw); });
        raw->timer->start(ClientTimeoutMs);
        m_clients.push_back(std::move(client));
    }
}

void SessionChannel::readClient(Client *client)
{
    char chunk[4096];
    for (;;) {
        const ssize_t n = ::read(client->fd, chunk, sizeof chunk);
        if (n > 0) {
            client->data.append(chunk, n);
            if (client->data.size() > MaxFrameBytes)
                break;
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && errno == EAGAIN)
            return;
        // The end of the frame: say it after the client is gone, so that
        // whatever the message sets off finds the channel in order.
        QString message;
        QByteArray token;
        const bool ok = n == 0 && parseFrame(client->data, &message, &token);
        dropClient(client);
        if (ok)
            emit messageReceived(message, token);
        return;
    }
    dropClient(client);
}

void SessionChannel::dropClient(Client *client)
{
    // Called from the client's own notifier or timer: they go later.
    client->notifier->setEnabled(false);
    client->notifier->deleteLater();
    client->timer->stop();
    client->timer->deleteLater();
    ::close(client->fd);
    for (auto it = m_clients.begin(); it != m_clients.end(); ++it) {
        if (it->get() == client) {
            m_clients.erase(it);
            break;
        }
    }
}
