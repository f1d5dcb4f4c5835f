#include "driverfetcher.h"

#include "cupsmanager.h"

#include <QElapsedTimer>

#include <unistd.h>

bool DriverFetcher::fetch(CUPSManager &cups, QMap<QString, CUPSDriver> &drivers)
{
    QElapsedTimer window;
    window.start();
    for (int attempt = 1;; ++attempt) {
        QElapsedTimer call;
        call.start();
        if (cups.listDrivers(drivers))
            return true;
        if (attempt == Attempts || call.elapsed() > QuickFailureMs || window.elapsed() >= WindowMs)
            return false;
        usleep(PauseMs * 1000);
    }
}
