#include "translations.h"

#include "desktoplanguage.h"
#include "oemconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

namespace {

// Qt's texts that the wizard shows, for the languages Qt has no catalogue
// of: the program's catalogue carries them (Qt's own wins where it exists).
[[maybe_unused]] const char *const qtStockTexts[] = {
    QT_TRANSLATE_NOOP("QWizard", "< &Back"),
    QT_TRANSLATE_NOOP("QWizard", "&Next >"),
    QT_TRANSLATE_NOOP("QWizard", "&Finish"),
    QT_TRANSLATE_NOOP("QWizard", "Cancel"),
    QT_TRANSLATE_NOOP("QWizard", "&Help"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
};

} // namespace

QString installTranslations(QCoreApplication &app, const QString &localeName)
{
    const QString dir = QDir(QString::fromLocal8Bit(actx.shareDir)).filePath(QStringLiteral("tr"));
    const DesktopLanguage::Choice choice = DesktopLanguage::install(
        app, dir, QStringLiteral("queuewiz"), localeName.isEmpty() ? QStringList() : QStringList{localeName});
    // Installed last, so looked at first: Qt's wording of its own texts.
    DesktopLanguage::installCatalogue(app, QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                                      QStringLiteral("qtbase"), choice.locale);
    return choice.locale;
}
