#ifndef QUEUEWIZ_DRIVERFETCHER_H
#define QUEUEWIZ_DRIVERFETCHER_H

#include "cupsdriver.h"

#include <QMap>
#include <QString>

class CUPSManager;

// Fetches the package's drivers for the driver page. The scheduler may
// still be starting (e.g. right after the package was installed), so a
// refusal is met with another try for about ten seconds; a scheduler that
// takes the connection and then fails or does not answer is not asked again,
// which would only multiply the answer timeout.
class DriverFetcher
{
public:
    static constexpr int Attempts = 50;
    static constexpr int PauseMs = 200;
    static constexpr qint64 WindowMs = 10000;
    // A failure quicker than this was a refusal, worth another try.
    static constexpr qint64 QuickFailureMs = 1000;

    // False when the list could not be had; cups then tells why.
    static bool fetch(CUPSManager &cups, QMap<QString, CUPSDriver> &drivers);
};

#endif
