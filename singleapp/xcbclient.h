#ifndef QUEUEWIZ_XCBCLIENT_H
#define QUEUEWIZ_XCBCLIENT_H

#include <QByteArray>
#include <QList>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

// Frees what libxcb hands out (replies, errors) when it leaves scope.
struct XcbFree
{
    void operator()(void *p) const { std::free(p); }
};
template<typename T>
using XcbPtr = std::unique_ptr<T, XcbFree>;

// The few X requests the single-instance protocol needs, made on one
// xcb connection. A client without a connection (no X display: Wayland,
// offscreen) answers every question with "nothing there".
class XcbClient
{
public:
    explicit XcbClient(xcb_connection_t *connection = nullptr);

    bool isValid() const;
    xcb_connection_t *connection() const { return m_connection; }

    // 0 when onlyIfExists is set and no atom of that name exists yet.
    xcb_atom_t internAtom(const QByteArray &name, bool onlyIfExists) const;

    xcb_window_t selectionOwner(xcb_atom_t selection) const;
    // Claims the selection now; true when the owner then reads back as window.
    bool claimSelection(xcb_window_t window, xcb_atom_t selection) const;

    // Replaces property with 8-bit data. False when the server refused it
    // (window gone, data larger than one request may carry).
    bool replaceProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                         const QByteArray &data) const;
    // Reads the whole property without deleting it; fails when it is absent
    // or not of the given type. The requested length grows until nothing
    // remains, so a value of any size comes back in one piece.
    bool readProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                      QByteArray *data) const;
    // Of windows, those that carry property with that type, in the same order.
    QList<xcb_window_t> windowsWithProperty(const QList<xcb_window_t> &windows,
                                            xcb_atom_t property, xcb_atom_t type) const;

    // The children of the root windows of every screen, bottom to top.
    QList<xcb_window_t> rootChildren() const;
    void addEventMask(xcb_window_t window, uint32_t mask) const;

    void grabServer() const;
    void ungrabServer() const;
    void flush() const;

private:
    xcb_connection_t *m_connection;
};

#endif
