#ifndef QUEUEWIZ_WAYLANDACTIVATION_H
#define QUEUEWIZ_WAYLANDACTIVATION_H

#include <QByteArray>

class QWindow;

// Brings a window to the front on a Wayland compositor. Compositors raise
// a window only for an activation token (xdg-activation-v1) that they gave
// out, usually to the launcher that started a program; a token handed on
// by a second start is as good as one of our own.
class WaylandActivation
{
public:
    // False when the window is not on Wayland, not shown yet, or the
    // compositor does not know the protocol.
    static bool activate(QWindow *window, const QByteArray &token);
};

#endif
