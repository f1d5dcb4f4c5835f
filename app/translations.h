#ifndef QUEUEWIZ_TRANSLATIONS_H
#define QUEUEWIZ_TRANSLATIONS_H

#include <QString>

class QCoreApplication;

// Installs the program's translation from the share directory's "tr" folder
// in the first of the desktop's languages that has one (LANGUAGE, then
// LC_ALL, LC_MESSAGES, LANG), else English, and Qt's own for its stock texts
// (the wizard's Back, Next and Cancel buttons) in the same language. A
// locale name ("de", "fr_CA") given instead stands for the desktop's. The
// language becomes the default locale, so that help pages and the driver
// chosen for a device follow it. Returns the locale name chosen.
QString installTranslations(QCoreApplication &app, const QString &locale = QString());

#endif
