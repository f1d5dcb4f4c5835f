#ifndef QUEUEWIZ_TRANSLATIONS_H
#define QUEUEWIZ_TRANSLATIONS_H

class QCoreApplication;

// Installs the program's translation for the user's locale from the share
// directory's "tr" folder, and Qt's own for its stock texts (the wizard's
// Back, Next and Cancel buttons). A missing file leaves English in place.
void installTranslations(QCoreApplication &app);

#endif
