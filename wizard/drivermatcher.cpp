#include "drivermatcher.h"

#include <QSet>

namespace {

QSet<QString> wordSet(const QString &text)
{
    const QStringList list = DriverMatcher::words(text);
    return QSet<QString>(list.cbegin(), list.cend());
}

// Words that name no model: the maker's and the generic ones.
QSet<QString> modelWords(const QString &text, const QString &make)
{
    QSet<QString> set = wordSet(text);
    set.subtract(wordSet(make));
    set.remove(QStringLiteral("series"));
    return set;
}

bool hasDigit(const QString &word)
{
    for (const QChar c : word) {
        if (c.isDigit())
            return true;
    }
    return false;
}

// 2 for the user's language, 1 for English, else 0.
int languageRank(const CUPSDriver &driver, const QString &language)
{
    const QString lang = driver.Language().section(QLatin1Char('_'), 0, 0).toLower();
    if (!language.isEmpty() && lang == language.section(QLatin1Char('_'), 0, 0).toLower())
        return 2;
    return lang == QLatin1String("en") ? 1 : 0;
}

} // namespace

QStringList DriverMatcher::words(const QString &text)
{
    QStringList result;
    QString word;
    const auto flush = [&] {
        if (!word.isEmpty())
            result << word;
        word.clear();
    };
    for (const QChar c : text) {
        if (!c.isLetterOrNumber()) {
            flush();
            continue;
        }
        if (!word.isEmpty() && word.back().isDigit() != c.isDigit())
            flush();
        word += c.toLower();
    }
    flush();
    return result;
}

int DriverMatcher::score(const CUPSDriver &driver, const QString &model, const QString &make)
{
    const QSet<QString> device = modelWords(model, make);
    const QSet<QString> candidate = modelWords(driver.Model(), driver.Manufacturer() + QLatin1Char(' ') + make);
    int shared = 0;
    for (const QString &w : device) {
        if (candidate.contains(w))
            ++shared;
        else if (hasDigit(w))
            return 0;
    }
    if (shared == 0)
        return 0;
    // Sharing words counts far more than adding some.
    const int extra = static_cast<int>(candidate.size()) - shared;
    return shared * 100 - extra;
}

QString DriverMatcher::bestMatch(const QMap<QString, CUPSDriver> &drivers, const QString &model, const QString &make,
                                 const QString &language)
{
    QString best;
    int bestScore = 0;
    int bestRank = -1;
    for (auto it = drivers.cbegin(); it != drivers.cend(); ++it) {
        const int s = score(it.value(), model, make);
        if (s <= 0)
            continue;
        const int rank = languageRank(it.value(), language);
        if (s > bestScore || (s == bestScore && rank > bestRank)) {
            best = it.key();
            bestScore = s;
            bestRank = rank;
        }
    }
    return best;
}
