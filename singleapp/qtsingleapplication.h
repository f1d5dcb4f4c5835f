#ifndef QUEUEWIZ_QTSINGLEAPPLICATION_H
#define QUEUEWIZ_QTSINGLEAPPLICATION_H

#include "xcbclient.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <optional>

class QtSingletonListener;
class SessionChannel;

// The application object of a program that runs once per user and X
// display. The running instance owns an X selection named after the
// application id and the login name; a later instance finds it there and
// hands it a text message in a property of the owner's window, which the
// running instance reports as messageReceived().
//
// In a Wayland session (WAYLAND_DISPLAY set) the instance also listens on
// the session's channel in the user's runtime directory, which is all that
// a window on Wayland has; a message that comes that way may carry the
// activation token of the later start, and activateMainWidget() uses it.
// With neither (offscreen) every instance runs alone: isRunning() and
// sendMessage() answer false.
//
// Qt 6 applications are always graphical, so the constructor has no
// application type.
class QtSingleApplication : public QApplication, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    // session: the channel of this id, when the program asked it before Qt
    // started (it then holds the channel, or no instance was reachable);
    // null makes one. The application takes it over.
    QtSingleApplication(const QString &id, int &argc, char **argv, SessionChannel *session = nullptr);
    ~QtSingleApplication() override;

    // Claims the selection, and the session channel where no other instance
    // holds it; with activate, a message raises the main widget.
    void initialize(bool activate = true);
    // True when another instance of this id and user owns the selection.
    bool isRunning() const;
    QString id() const { return m_id; }

    // The window that activateMainWidget() brings to the front.
    void setMainWidget(QWidget *widget);
    QWidget *mainWidget() const { return m_mainWidget; }

    // The X selection name for an application id and a login name: a
    // leading "_", and every byte other than printable ASCII made "_".
    static QByteArray selectionName(const QString &id, const QString &loginName);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

public slots:
    // Places message at the running instance; never waits for an answer.
    bool sendMessage(const QString &message);
    // Over X nothing is awaited. On the session channel timeout bounds the
    // wait for an instance that is still starting; when no instance runs,
    // this process takes the channel. The launcher's activation token
    // ($XDG_ACTIVATION_TOKEN) goes with the message.
    bool sendMessage(const QString &message, int timeout);
    virtual void activateMainWidget();

signals:
    void messageReceived(const QString &message);

protected:
    // Stands in for the login name of the real user (tests act as other users).
    void setLoginName(const QString &name);

private:
    QByteArray selectionName() const;
    xcb_window_t listenerWindow() const;
    bool takeSelection();
    bool sendX11Message(const QString &message);
    void handOverSelection();

    QString m_id;
    std::optional<QString> m_loginName;
    XcbClient m_x;
    xcb_atom_t m_selectionAtom = XCB_ATOM_NONE;
    xcb_atom_t m_typeAtom = XCB_ATOM_NONE;
    xcb_atom_t m_listenerAtom = XCB_ATOM_NONE;
    QtSingletonListener *m_listener = nullptr;
    bool m_owner = false;
    QPointer<QWidget> m_mainWidget;
    SessionChannel *m_session = nullptr;
    QByteArray m_activationToken;
};

#endif
