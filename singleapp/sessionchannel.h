#ifndef QUEUEWIZ_SESSIONCHANNEL_H
#define QUEUEWIZ_SESSIONCHANNEL_H

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class QSocketNotifier;

// One running instance per user and Wayland session, where X selections
// can't help: Wayland clients can't see each other.
//
// The instance holds an advisory lock on "<id>-<display>.lock" in the
// user's private runtime directory ($XDG_RUNTIME_DIR) and listens on the
// socket "<id>-<display>" beside it. The kernel drops the lock when the
// process dies however it dies, so a socket file left by a killed instance
// is only ever removed by the next holder of the lock. A later start that
// finds the lock taken connects and writes one frame, the UTF-8 message, a
// NUL and the activation token its launcher gave it, then closes. Both ends
// check the other's user id: the directory's mode is the first fence, not
// the only one.
class SessionChannel : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Unavailable, Delivered, Claimed };

    // Frames are tiny; anything longer is not one of ours.
    static constexpr int MaxFrameBytes = 64 * 1024;
    // A client that says nothing for this long is dropped.
    static constexpr int ClientTimeoutMs = 2000;
    static constexpr int MaxClients = 8;

    // Reads $XDG_RUNTIME_DIR and $WAYLAND_DISPLAY; does no I/O yet.
    explicit SessionChannel(const QString &id, QObject *parent = nullptr);
    ~SessionChannel() override;

    // A Wayland session named and a runtime directory that only this user
    // can enter.
    bool isAvailable() const { return !m_socketPath.isEmpty(); }
    QByteArray socketPath() const { return m_socketPath; }
    bool isOwner() const { return m_lockFd >= 0; }
    // True when another process holds the instance's lock.
    bool isRunning() const;

    // Hands the frame to the running instance or, when none runs, makes
    // this process the instance. Waits at most timeoutMs for an instance
    // that holds the lock but does not accept yet (it is starting).
    Outcome deliverOrClaim(const QString &message, const QByteArray &activationToken, int timeoutMs);
    // Makes this process the instance unless another one is; true when it is.
    bool claim();
    // Accepts messages from the event loop; needs the application object.
    void startListening();

    // The frame on the wire; empty when the token is not a token.
    static QByteArray frame(const QString &message, const QByteArray &activationToken);
    // False for anything but one well-formed frame.
    static bool parseFrame(const QByteArray &bytes, QString *message, QByteArray *activationToken);
    // "<id>-<display>" with anything but [A-Za-z0-9._-] made "_".
    static QByteArray socketName(const QString &id, const QByteArray &waylandDisplay);

signals:
    void messageReceived(const QString &message, const QByteArray &activationToken);

private:
    struct Client;

    bool tryLock();
    bool listen();
    bool deliver(const QByteArray &frame) const;
    void acceptClients();
    void readClient(Client *client);
    void dropClient(Client *client);

    QByteArray m_socketPath;
    QByteArray m_lockPath;
    int m_lockFd = -1;
    int m_listenFd = -1;
    QSocketNotifier *m_listenNotifier = nullptr;
    std::vector<std::unique_ptr<Client>> m_clients;
};

#endif
