#include "papersize.h"

#include <QtTest>

#include <clocale>

class TestPaperSize : public QObject
{
    Q_OBJECT

private slots:
    void rule_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("width");
        QTest::addColumn<QString>("paper");

        QTest::newRow("US") << "en_US.UTF-8" << 210 << "Letter";
        QTest::newRow("Canada carries 2") << "fr_CA" << 210 << "Letter";
        QTest::newRow("Uruguay 598") << "es_UY" << 210 << "Letter";
        QTest::newRow("old code RA") << "es_RA" << 210 << "Letter";
        QTest::newRow("Philippines not listed") << "en_PH" << 216 << "A4";
        QTest::newRow("lower-case country") << "en_us" << 216 << "A4";
        // "%*2s" swallows "x_", so no country is read.
        QTest::newRow("one-letter language") << "x_US" << 210 << "A4";
        QTest::newRow("C takes the width") << "C" << 216 << "Letter";
        QTest::newRow("POSIX takes the width") << "POSIX" << 210 << "A4";
        QTest::newRow("three-letter language") << "ast_ES" << 216 << "Letter";
        QTest::newRow("empty name") << "" << 216 << "Letter";
    }

    void rule()
    {
        QFETCH(QString, locale);
        QFETCH(int, width);
        QFETCH(QString, paper);
        QCOMPARE(QString::fromLatin1(paperSizeForLocale(locale.toLatin1().constData(), width)), paper);
    }

    // LC_PAPER decides, and the process's locale is left as it was.
    void environment_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("paper");

        QTest::newRow("en_US") << "en_US.UTF-8" << "Letter";
        QTest::newRow("de_DE") << "de_DE.UTF-8" << "A4";
        QTest::newRow("C locale is 210 wide") << "C" << "A4";
    }

    void environment()
    {
        QFETCH(QString, locale);
        QFETCH(QString, paper);
        if (!setlocale(LC_PAPER, locale.toLatin1().constData()))
            QSKIP(qPrintable("locale " + locale + " is not installed (scripts/bootstrap generates it)"));
        setlocale(LC_PAPER, "C");

        qunsetenv("LC_ALL");
        qputenv("LC_PAPER", locale.toLatin1());
        QCOMPARE(QString::fromLatin1(defaultPaperSize()), paper);
        QCOMPARE(QString::fromLatin1(setlocale(LC_PAPER, nullptr)), locale);
    }
};

QTEST_GUILESS_MAIN(TestPaperSize)
#include "tst_papersize.moc"
