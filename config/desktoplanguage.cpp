#include "desktoplanguage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

namespace {

// "de_DE.UTF-8@euro" -> "de_DE"; "C" -> "en".
QString localeName(QString name)
{
    name.truncate(name.indexOf(QLatin1Char('@')) < 0 ? name.size() : name.indexOf(QLatin1Char('@')));
    name.truncate(name.indexOf(QLatin1Char('.')) < 0 ? name.size() : name.indexOf(QLatin1Char('.')));
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    if (name == QLatin1String("C") || name == QLatin1String("POSIX"))
        return QStringLiteral("en");
    return name;
}

// "pt_BR" and "pt"; "de" alone.
QStringList candidates(const QString &locale)
{
    QStringList names{locale};
    const QString language = locale.section(QLatin1Char('_'), 0, 0);
    if (language != locale)
        names << language;
    return names;
}

} // namespace

QStringList DesktopLanguage::wanted()
{
    QStringList result;
    for (const QString &entry : qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts))
        result << localeName(entry);
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty()) {
            result << localeName(value);
            break;
        }
    }
    return result;
}

DesktopLanguage::Choice DesktopLanguage::choose(const QStringList &languages, const QString &dir,
                                                const QString &prefix)
{
    for (const QString &locale : languages) {
        for (const QString &name : candidates(locale)) {
            if (name == QLatin1String("en"))
                return {locale, name};
            if (QFileInfo::exists(QDir(dir).filePath(prefix + QLatin1Char('-') + name + QLatin1String(".qm"))))
                return {locale, name};
        }
    }
    return {QStringLiteral("en"), QStringLiteral("en")};
}

DesktopLanguage::Choice DesktopLanguage::install(QCoreApplication &app, const QString &dir, const QString &prefix,
                                                 const QStringList &languages)
{
    const Choice choice = choose(languages.isEmpty() ? wanted() : languages, dir, prefix);
    auto translator = std::make_unique<QTranslator>(&app);
    if (translator->load(prefix + QLatin1Char('-') + choice.catalogue, dir))
        app.installTranslator(translator.release());
    QLocale::setDefault(QLocale(choice.locale));
    return choice;
}

bool DesktopLanguage::installCatalogue(QCoreApplication &app, const QString &dir, const QString &prefix,
                                       const QString &locale)
{
    for (const QString &name : candidates(locale)) {
        auto translator = std::make_unique<QTranslator>(&app);
        if (translator->load(prefix + QLatin1Char('_') + name, dir)) {
            app.installTranslator(translator.release());
            return true;
        }
    }
    return false;
}
