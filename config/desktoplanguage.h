#ifndef QUEUEWIZ_DESKTOPLANGUAGE_H
#define QUEUEWIZ_DESKTOPLANGUAGE_H

#include <QString>
#include <QStringList>

class QCoreApplication;

// The language a program of the package speaks, chosen from the desktop's
// wishes the way Qt programs choose it: the first wanted language that has a
// catalogue, else English.
class DesktopLanguage
{
public:
    // The language wanted and the catalogue that serves it: "de_AT" and "de".
    struct Choice {
        QString locale;
        QString catalogue;
    };

    // The languages the desktop asks for, most wanted first: the LANGUAGE
    // list, then the first of LC_ALL, LC_MESSAGES and LANG that is set.
    // Codeset and modifier are cut off; "C" and "POSIX" are English.
    static QStringList wanted();

    // The first of languages with a catalogue "PREFIX-NAME.qm" in dir, its
    // name tried as given and then without the country ("pt_BR", then
    // "pt"). English, the texts of the sources, ends the search: it has a
    // catalogue only for its plural forms.
    static Choice choose(const QStringList &languages, const QString &dir, const QString &prefix);

    // Installs the catalogue chosen for languages (or for wanted() when
    // empty) and makes its language the default locale, which help pages
    // and driver choice follow. Returns the choice.
    static Choice install(QCoreApplication &app, const QString &dir, const QString &prefix,
                          const QStringList &languages = QStringList());

    // Installs "PREFIX_NAME.qm" of dir, or that of the locale's language;
    // false when neither exists.
    static bool installCatalogue(QCoreApplication &app, const QString &dir, const QString &prefix,
                                 const QString &locale);
};

#endif
