#ifndef QUEUEWIZ_DRIVERMATCHER_H
#define QUEUEWIZ_DRIVERMATCHER_H

#include "cupsdriver.h"

#include <QMap>
#include <QString>
#include <QStringList>

// Picks the driver that fits a device's model name. Names are compared word
// by word (letters and digits, case ignored, a word split where letters and
// digits meet), without the maker's name and without "Series": every number
// of the device's model must appear in the driver's model, and of the
// drivers that pass, the one sharing the most words and adding the fewest
// wins; equal ones go to the driver in the user's language, then English.
class DriverMatcher
{
public:
    // The key of drivers (the display name) of the best driver, or empty
    // when none fits. language is a locale name such as "de_DE".
    static QString bestMatch(const QMap<QString, CUPSDriver> &drivers, const QString &model,
                             const QString &make = QString(), const QString &language = QString());

    // The words a name is compared by.
    static QStringList words(const QString &text);

    // How well a driver fits a device, 0 when it does not.
    static int score(const CUPSDriver &driver, const QString &model, const QString &make);
};

#endif
