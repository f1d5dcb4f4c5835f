#include "xcbclient.h"

XcbClient::XcbClient(xcb_connection_t *connection)
    : m_connection(connection)
{
}

bool XcbClient::isValid() const
{
    return m_connection && !xcb_connection_has_error(m_connection);
}

xcb_atom_t XcbClient::internAtom(const QByteArray &name, bool onlyIfExists) const
{
    if (!isValid())
        return XCB_ATOM_NONE;
    const xcb_intern_atom_cookie_t cookie = xcb_intern_atom(
        m_connection, onlyIfExists, static_cast<uint16_t>(name.size()), name.constData());
    XcbPtr<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

xcb_window_t XcbClient::selectionOwner(xcb_atom_t selection) const
{
    if (!isValid() || selection == XCB_ATOM_NONE)
        return XCB_WINDOW_NONE;
    XcbPtr<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
}

bool XcbClient::claimSelection(xcb_window_t window, xcb_atom_t selection) const
{
    if (!isValid())
        return false;
    xcb_set_selection_owner(m_connection, window, selection, XCB_CURRENT_TIME);
    return selectionOwner(selection) == window;
}

bool XcbClient::replaceProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                const QByteArray &data) const
{
    if (!isValid())
        return false;
    // A request over the server's limit would make libxcb shut the whole
    // connection down; the fixed part of ChangeProperty is 24 bytes.
    const quint64 maxBytes = quint64(xcb_get_maximum_request_length(m_connection)) * 4;
    if (quint64(data.size()) + 24 > maxBytes)
        return false;
    const xcb_void_cookie_t cookie = xcb_change_property_checked(
        m_connection, XCB_PROP_MODE_REPLACE, window, property, type, 8,
        static_cast<uint32_t>(data.size()), data.constData());
    XcbPtr<xcb_generic_error_t> error(xcb_request_check(m_connection, cookie));
    return !error;
}

bool XcbClient::readProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                             QByteArray *data) const
{
    if (!isValid())
        return false;
    uint32_t length = 1024;
    for (;;) {
        XcbPtr<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, false, window, property, type, 0, length),
            nullptr));
        if (!reply || reply->type != type)
            return false;
        const uint32_t remaining = reply->bytes_after;
        if (remaining == 0) {
            const int bytes = xcb_get_property_value_length(reply.get());
            *data = QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())), bytes);
            return true;
        }
        switch (reply->format) {
        case 8:
            length += remaining / 4 + 1;
            break;
        case 16:
            length += remaining / 2 + 1;
            break;
        default:
            length += remaining;
            break;
        }
    }
}

QList<xcb_window_t> XcbClient::windowsWithProperty(const QList<xcb_window_t> &windows,
                                                   xcb_atom_t property, xcb_atom_t type) const
{
    QList<xcb_window_t> result;
    if (!isValid())
        return result;
    // All requests first, then the replies: one round trip, not one per window.
    QList<xcb_get_property_cookie_t> cookies;
    cookies.reserve(windows.size());
    for (xcb_window_t window : windows)
        cookies.append(xcb_get_property(m_connection, false, window, property, type, 0, 1024));
    for (qsizetype i = 0; i < windows.size(); ++i) {
        xcb_generic_error_t *rawError = nullptr;
        XcbPtr<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_connection, cookies.at(i), &rawError));
        XcbPtr<xcb_generic_error_t> error(rawError);
        if (reply && reply->type == type)
            result.append(windows.at(i));
    }
    return result;
}

QList<xcb_window_t> XcbClient::rootChildren() const
{
    QList<xcb_window_t> result;
    if (!isValid())
        return result;
    QList<xcb_query_tree_cookie_t> cookies;
    for (xcb_screen_iterator_t it = xcb_setup_roots_iterator(xcb_get_setup(m_connection)); it.rem;
         xcb_screen_next(&it))
        cookies.append(xcb_query_tree(m_connection, it.data->root));
    for (const xcb_query_tree_cookie_t &cookie : cookies) {
        XcbPtr<xcb_query_tree_reply_t> reply(xcb_query_tree_reply(m_connection, cookie, nullptr));
        if (!reply)
            continue;
        const xcb_window_t *children = xcb_query_tree_children(reply.get());
        const int count = xcb_query_tree_children_length(reply.get());
        for (int i = 0; i < count; ++i)
            result.append(children[i]);
    }
    return result;
}

void XcbClient::addEventMask(xcb_window_t window, uint32_t mask) const
{
    if (!isValid())
        return;
    XcbPtr<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    if (!reply)
        return;
    const uint32_t value = reply->your_event_mask | mask;
    xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &value);
}

void XcbClient::grabServer() const
{
    if (isValid())
        xcb_grab_server(m_connection);
}

void XcbClient::ungrabServer() const
{
    if (isValid())
        xcb_ungrab_server(m_connection);
}

void XcbClient::flush() const
{
    if (isValid())
        xcb_flush(m_connection);
}
