// Times UriValidator::validate on long and hostile input, the kind a user
// can paste into the rename editor (it runs on every keystroke). Each time is
// printed as a ratio against two baselines measured in the same run: the
// validation of a short plain URI, and one plain regular expression pass over
// a text of the same length.

#include "urivalidator.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

// Microseconds per call: the best of several rounds, each long enough to
// average out the clock.
double timeIt(const std::function<void()> &call)
{
    double best = 1e300;
    for (int round = 0; round < 5; ++round) {
        QElapsedTimer clock;
        clock.start();
        qint64 calls = 0;
        do {
            call();
            ++calls;
        } while (clock.nsecsElapsed() < 20'000'000);
        best = std::min(best, double(clock.nsecsElapsed()) / 1000.0 / double(calls));
    }
    return best;
}

double timeValidate(int scheme, bool ipv6, const QString &text)
{
    const UriValidator validator(scheme, ipv6);
    return timeIt([&] {
        QString copy = text;
        int pos = 0;
        validator.validate(copy, pos);
    });
}

struct Case
{
    const char *name;
    int scheme;
    QString text;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int n = argc > 1 ? std::max(16, atoi(argv[1])) : 10000;
    auto run = [n](const char *piece) {
        const QString p = QString::fromUtf8(piece);
        return p.repeated(std::max(1, int(n / p.size())));
    };

    const QList<Case> cases{
        {"host a.a.a. ending in !", 1, run("a.") + "!"},
        {"host a.a.a.a (valid)", 1, run("a.") + "a"},
        {"host a-a-a- ending in !", 2, run("a-") + "!"},
        {"host aaaa with port 1111", 2, run("a") + ":" + run("1")},
        {"unicode labels ending in !", 2, run("\xc3\xa4.") + "!"},
        {"dotted digits 1.2.3.", 2, run("1.2.3.")},
        {"colons ::::", 1, run(":")},
        {"groups 1:1:1:", 1, run("1:")},
        {"groups ending in ::", 1, run("ab:") + ":"},
        {"bracketed groups", 1, "[" + run("1:") + "1]:" + run("9")},
        {"embedded IPv4 tail", 1, "::" + run("ffff:") + "1.2.3.4"},
        {"lpd a/a/a/", 3, run("a/")},
        {"lpd long host, bad queue", 3, run("a.") + "a/q q"},
        {"smb a:a:a:", 4, run("a:")},
        {"smb a@a@a@", 4, run("a@")},
        {"smb user, long password", 4, "u:" + run("p") + "@s/share"},
        {"smb w/w/w/ share with blank", 4, run("w/") + " "},
        {"file long path", 5, "/" + run("a/")},
    };

    const double plainUri = timeValidate(UriValidator::IppScheme, true, QStringLiteral("ipp://printer:631"));
    const QRegularExpression scan(QRegularExpression::anchoredPattern(QStringLiteral("\\w*")),
                                  QRegularExpression::UseUnicodePropertiesOption);
    const QString letters = run("a");
    const double linear = timeIt([&] { (void)scan.match(letters).hasMatch(); });

    std::printf("UriValidator on hostile input of about %d characters (IPv6 allowed)\n", n);
    std::printf("baseline A: validate \"ipp://printer:631\"       %10.2f us\n", plainUri);
    std::printf("baseline B: one \\w* match over %6d characters %10.2f us\n\n", int(letters.size()), linear);
    std::printf("%-30s %7s %10s %10s %8s\n", "case", "length", "time/us", "x A", "x B");

    double worst = 0;
    const char *worstName = "";
    for (const Case &c : cases) {
        const double t = timeValidate(c.scheme, true, c.text);
        std::printf("%-30s %7d %10.2f %10.1f %8.1f\n", c.name, int(c.text.size()), t, t / plainUri, t / linear);
        if (t > worst) {
            worst = t;
            worstName = c.name;
        }
    }
    std::printf("\nworst: %s, %.2f us per keystroke (%.1f x A, %.1f x B)\n", worstName, worst, worst / plainUri,
                worst / linear);
    return 0;
}
