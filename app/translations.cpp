#include "translations.h"

#include "oemconfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

void install(QCoreApplication &app, const QString &name, const QString &dir)
{
    auto translator = std::make_unique<QTranslator>(&app);
    if (translator->load(name, dir))
        app.installTranslator(translator.release());
}

} // namespace

void installTranslations(QCoreApplication &app, const QString &localeName)
{
    static const char *const names[] = { "queuewiz" };
    if (!localeName.isEmpty())
        QLocale::setDefault(QLocale(localeName));
    const QString locale = localeName.isEmpty() ? QLocale::system().name() : localeName;
    const QString dir = QDir(QString::fromLocal8Bit(actx.shareDir)).filePath(QStringLiteral("tr"));
    for (const char *name : names)
        install(app, QString::fromLatin1(name) + QLatin1Char('-') + locale, dir);
    install(app, QStringLiteral("qtbase_") + locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}
