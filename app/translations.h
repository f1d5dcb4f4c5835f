#ifndef QUEUEWIZ_TRANSLATIONS_H
#define QUEUEWIZ_TRANSLATIONS_H

#include <QString>

class QCoreApplication;

// Installs the program's translation for the user's locale from the share
// directory's "tr" folder, and Qt's own for its stock texts (the wizard's
// Back, Next and Cancel buttons). A missing file leaves English in place.
// A locale name ("de", "fr_CA") given instead of the user's also becomes the
// default locale, so that help pages follow the same language.
void installTranslations(QCoreApplication &app, const QString &locale = QString());

#endif
