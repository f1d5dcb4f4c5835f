#ifndef QUEUEWIZ_XVFBSERVER_H
#define QUEUEWIZ_XVFBSERVER_H

#include <QProcess>
#include <QString>

// A private virtual X server for one test program. The server picks a free
// display number itself; it is stopped when the object goes.
class XvfbServer
{
public:
    XvfbServer() = default;
    ~XvfbServer();
    XvfbServer(const XvfbServer &) = delete;
    XvfbServer &operator=(const XvfbServer &) = delete;

    bool start();
    // ":N", empty until started.
    QString display() const { return m_display; }
    QString errorString() const { return m_error; }

private:
    QProcess m_process;
    QString m_display;
    QString m_error;
};

#endif
