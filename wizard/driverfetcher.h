#ifndef QUEUEWIZ_DRIVERFETCHER_H
#define QUEUEWIZ_DRIVERFETCHER_H

#include "cupsdriver.h"

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>

class CUPSManager;

// Fetches the package's drivers for the driver page. The scheduler may be
// missing or still starting (right after the package was installed, or
// started on demand by its socket), so a refusal is met with another try
// for about ten seconds. The tries run from the event loop, so the window
// is up and alive meanwhile. A scheduler that takes the connection and then
// fails or does not answer is not asked again, which would only multiply
// the answer timeout.
class DriverFetcher : public QObject
{
    Q_OBJECT

public:
    static constexpr int Attempts = 50;
    static constexpr int PauseMs = 200;
    static constexpr qint64 WindowMs = 10000;
    // A failure quicker than this was a refusal, worth another try.
    static constexpr qint64 QuickFailureMs = 1000;

    explicit DriverFetcher(CUPSManager &cups, QObject *parent = nullptr);

    // Asks at once. True when that settled it, either way; otherwise the
    // search goes on and finished() tells how it ended.
    bool start();
    bool isSearching() const { return m_timer.isActive(); }
    // Whether the last search got the list; the printer manager says why not.
    bool fetched() const { return m_fetched; }
    const QMap<QString, CUPSDriver> &drivers() const { return m_drivers; }

signals:
    void finished(bool fetched);

private:
    // One request; true when the search is over.
    bool attempt();

    CUPSManager &m_cups;
    QMap<QString, CUPSDriver> m_drivers;
    QTimer m_timer;
    QElapsedTimer m_window;
    int m_attempts = 0;
    bool m_fetched = false;
};

#endif
