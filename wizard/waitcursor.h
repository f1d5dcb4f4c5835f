#ifndef QUEUEWIZ_WAITCURSOR_H
#define QUEUEWIZ_WAITCURSOR_H

#include <QApplication>

// Shows the wait cursor while the GUI thread is blocked on purpose (device
// scans, scheduler requests); restored on every way out of the scope.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

#endif
