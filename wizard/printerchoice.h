#ifndef QUEUEWIZ_PRINTERCHOICE_H
#define QUEUEWIZ_PRINTERCHOICE_H

#include "cupsdriver.h"

#include <QString>

// What the user has chosen on the way to the commit: the pages fill it,
// the commit reads it.
struct PrinterChoice
{
    QString deviceUri;
    CUPSDriver driver;
    QString name;
    QString location;
    QString description;
};

#endif
