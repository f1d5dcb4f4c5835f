#include "driverfetcher.h"

#include "cupsmanager.h"
#include "waitcursor.h"

DriverFetcher::DriverFetcher(CUPSManager &cups, QObject *parent)
    : QObject(parent)
    , m_cups(cups)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(PauseMs);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (attempt())
            emit finished(m_fetched);
        else
            m_timer.start();
    });
}

bool DriverFetcher::start()
{
    m_timer.stop();
    m_drivers.clear();
    m_fetched = false;
    m_attempts = 0;
    m_window.start();
    if (attempt())
        return true;
    m_timer.start();
    return false;
}

bool DriverFetcher::attempt()
{
    // A refusal is quick; a scheduler that accepts may keep us a while.
    WaitCursor wait;
    ++m_attempts;
    QElapsedTimer call;
    call.start();
    m_fetched = m_cups.listDrivers(m_drivers);
    return m_fetched || m_attempts >= Attempts || call.elapsed() > QuickFailureMs || m_window.elapsed() >= WindowMs;
}
