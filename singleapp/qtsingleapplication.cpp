#include "qtsingleapplication.h"

#include "qtsingletonlistener.h"
#include "sessionchannel.h"
#include "waylandactivation.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <pwd.h>
#include <utility>
#include <unistd.h>

namespace {

// Which instance took over and what woke it: QT_LOGGING_RULES="queuewiz.instance.debug=true".
Q_LOGGING_CATEGORY(lcInstance, "queuewiz.instance", QtWarningMsg)

// Printable ASCII without the blank: what a selection name may contain.
const QByteArray kAllowedCharacters = QByteArrayLiteral(
    "abcdefghijklmnopqrstuvwxyz"
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
    "0123456789"
    "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~");

const QByteArray kMessageType = QByteArrayLiteral("_QTSINGLEAPPLICATION");
const QByteArray kListenerSuffix = QByteArrayLiteral("_LISTENER");
const QByteArray kListenerValue = QByteArrayLiteral("YES");

QString realLoginName()
{
    const passwd *entry = getpwuid(getuid());
    return entry && entry->pw_name ? QString::fromLocal8Bit(entry->pw_name) : QString();
}

xcb_connection_t *x11Connection(const QGuiApplication *app)
{
    auto *x11 = app->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

} // namespace

QtSingleApplication::QtSingleApplication(const QString &id, int &argc, char **argv, SessionChannel *session)
    : QApplication(argc, argv)
    , m_id(id)
    , m_x(x11Connection(this))
    , m_session(session ? session : new SessionChannel(id))
{
    m_session->setParent(this);
    if (m_x.isValid())
        installNativeEventFilter(this);
    connect(m_session, &SessionChannel::messageReceived, this,
            [this](const QString &message, const QByteArray &token) {
                m_activationToken = token;
                qCDebug(lcInstance, "message from the session, token \"%s\"", token.constData());
                emit messageReceived(message);
            });
}

QtSingleApplication::~QtSingleApplication()
{
    if (m_owner)
        handOverSelection();
    removeNativeEventFilter(this);
    delete m_listener;
}

QByteArray QtSingleApplication::selectionName(const QString &id, const QString &loginName)
{
    QString name = id + loginName;
    if (!name.startsWith(QLatin1Char('_')))
        name.prepend(QLatin1Char('_'));
    QByteArray bytes = name.toLocal8Bit();
    for (char &c : bytes) {
        if (!kAllowedCharacters.contains(c))
            c = '_';
    }
    return bytes;
}

QByteArray QtSingleApplication::selectionName() const
{
    return selectionName(m_id, m_loginName ? *m_loginName : realLoginName());
}

void QtSingleApplication::setLoginName(const QString &name)
{
    m_loginName = name;
}

void QtSingleApplication::setMainWidget(QWidget *widget)
{
    m_mainWidget = widget;
}

xcb_window_t QtSingleApplication::listenerWindow() const
{
    return m_listener ? static_cast<xcb_window_t>(m_listener->winId()) : xcb_window_t(XCB_WINDOW_NONE);
}

void QtSingleApplication::initialize(bool activate)
{
    if (m_selectionAtom != XCB_ATOM_NONE)
        return;
    const QByteArray name = selectionName();
    m_selectionAtom = m_x.internAtom(name, false);
    m_typeAtom = m_x.internAtom(kMessageType, false);
    m_listenerAtom = m_x.internAtom(name + kListenerSuffix, false);

    if (m_selectionAtom != XCB_ATOM_NONE) {
        m_listener = new QtSingletonListener;
        const xcb_window_t window = listenerWindow();
        // Messages arrive as property changes on this window.
        m_x.addEventMask(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
        m_x.replaceProperty(window, m_listenerAtom, m_listenerAtom, kListenerValue);
        takeSelection();
    }

    if (m_session->claim()) {
        m_session->startListening();
        qCDebug(lcInstance, "instance on %s, listening at %s", qPrintable(platformName()),
                m_session->socketPath().constData());
    } else {
        qCDebug(lcInstance, "instance on %s", qPrintable(platformName()));
    }

    if (activate) {
        connect(this, &QtSingleApplication::messageReceived, this,
                &QtSingleApplication::activateMainWidget, Qt::UniqueConnection);
    }
}

bool QtSingleApplication::takeSelection()
{
    m_owner = m_x.claimSelection(listenerWindow(), m_selectionAtom);
    return m_owner;
}

bool QtSingleApplication::isRunning() const
{
    if (m_session->isRunning())
        return true;
    const xcb_atom_t selection = m_x.internAtom(selectionName(), true);
    if (selection == XCB_ATOM_NONE)
        return false;
    return m_x.selectionOwner(selection) != XCB_WINDOW_NONE && !m_owner;
}

bool QtSingleApplication::sendMessage(const QString &message)
{
    return sendMessage(message, 5000);
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    if (sendX11Message(message))
        return true;
    return m_session->deliverOrClaim(message, qgetenv("XDG_ACTIVATION_TOKEN"), timeout)
        == SessionChannel::Outcome::Delivered;
}

bool QtSingleApplication::sendX11Message(const QString &message)
{
    const xcb_atom_t selection = m_x.internAtom(selectionName(), true);
    if (selection == XCB_ATOM_NONE)
        return false;
    const xcb_window_t owner = m_x.selectionOwner(selection);
    if (owner == XCB_WINDOW_NONE)
        return false;
    const xcb_atom_t type = m_x.internAtom(kMessageType, true);
    if (type == XCB_ATOM_NONE)
        return false;
    if (!m_x.replaceProperty(owner, selection, type, message.toUtf8()))
        return false;
    // The caller may quit right away; the message must leave with it.
    m_x.flush();
    return true;
}

void QtSingleApplication::activateMainWidget()
{
    QWidget *widget = m_mainWidget;
    if (!widget)
        return;
    // Raising a minimised window would show nothing.
    if (widget->isMinimized())
        widget->setWindowState(widget->windowState() & ~Qt::WindowMinimized);
    // A token is good for one activation.
    const QByteArray token = std::exchange(m_activationToken, QByteArray());
    if (WaylandActivation::activate(widget->windowHandle(), token)) {
        qCDebug(lcInstance, "activated with the token");
        return;
    }
    widget->raise();
    widget->activateWindow();
}

bool QtSingleApplication::nativeEventFilter(const QByteArray &eventType, void *message,
                                            qintptr *result)
{
    Q_UNUSED(result);
    if (!m_listener || eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type & 0x7f) {
    case XCB_PROPERTY_NOTIFY: {
        const auto *notify = static_cast<const xcb_property_notify_event_t *>(message);
        if (notify->window != listenerWindow())
            return false;
        if (!m_owner) {
            // The previous owner is quitting and handed the instance to us.
            takeSelection();
            return true;
        }
        QByteArray data;
        if (!m_x.readProperty(notify->window, m_selectionAtom, m_typeAtom, &data))
            return false;
        emit messageReceived(QString::fromUtf8(data));
        return true;
    }
    case XCB_SELECTION_CLEAR: {
        const auto *clear = static_cast<const xcb_selection_clear_event_t *>(message);
        if (clear->selection == m_selectionAtom)
            m_owner = false;
        return false;
    }
    default:
        return false;
    }
}

void QtSingleApplication::handOverSelection()
{
    // Under the grab no instance can start or quit between the search for
    // a successor and the message that wakes it.
    m_x.grabServer();
    const QList<xcb_window_t> listeners =
        m_x.windowsWithProperty(m_x.rootChildren(), m_listenerAtom, m_listenerAtom);
    const xcb_window_t own = listenerWindow();
    for (auto it = listeners.crbegin(); it != listeners.crend(); ++it) {
        if (*it != own) {
            m_x.replaceProperty(*it, m_selectionAtom, m_typeAtom, QByteArray());
            break;
        }
    }
    m_x.ungrabServer();
    m_x.flush();
}
