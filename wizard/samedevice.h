#ifndef QUEUEWIZ_SAMEDEVICE_H
#define QUEUEWIZ_SAMEDEVICE_H

#include "cupsprinter.h"

#include <QMap>
#include <QString>

// Whether a chosen port is the device of an existing queue. Network
// printers are the same when reached at the same host and resource under
// another scheme or address form, or by their DNS-SD name.
class SameDevice
{
public:
    // serviceName: the DNS-SD instance of a discovered printer, or empty.
    static bool matches(const QString &chosenUri, const QString &queueUri, const QString &serviceName = QString());
    // The first queue on the chosen device; empty when none.
    static QString queueOf(const QString &chosenUri, const QMap<QString, CUPSPrinter> &queues,
                           const QString &serviceName = QString());
};

#endif
