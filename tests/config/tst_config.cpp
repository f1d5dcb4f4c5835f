#include "oemconfig.h"
#include "papersize.h"
#include "testsupport.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <cstring>

// The package's OEM.ini and the country's paper size.
class TestConfig : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_tmp;
    QString m_pkg;

    int readFromPackage()
    {
        memset(&actx, 0, sizeof actx);
        return readOemConfig(QFile::encodeName(m_pkg + QStringLiteral("/bin/queuewiz")).constData());
    }

private slots:
    void init()
    {
        m_pkg = m_tmp.path() + QStringLiteral("/pkg");
        QDir(m_pkg).removeRecursively();
        QDir().mkpath(m_pkg + QStringLiteral("/bin"));
        QDir::setCurrent(m_tmp.path());
        QFile::remove(m_tmp.path() + QStringLiteral("/OEM.ini"));
    }

    void keys_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected");

        QTest::newRow("vendor and its cases") << QByteArray("VENDOR=AcMe\n") << "vendor|lower|upper"
                                              << "AcMe|acme|ACME";
        QTest::newRow("multivendor never sets vendor")
            << QByteArray("MULTIVENDOR=1\n") << "vendor|multiVendor" << "|1";
        QTest::newRow("portplugin never adds a plug-in")
            << QByteArray("PORTPLUGIN=0\n") << "portPlugin|pluginCount" << "0|0";
        QTest::newRow("defaults") << QByteArray("nothing here\n")
                                  << "multiVendor|parPort|portPlugin|scanner|updateGroup|modelCount"
                                  << "0|1|1|1|1|0";
        QTest::newRow("text before the key") << QByteArray("# our VENDOR=Acme\n") << "vendor" << "Acme";
        QTest::newRow("last value wins") << QByteArray("URL=a\nURL=b\nSCANNER=0\nSCANNER=7\n")
                                         << "url|scanner" << "b|7";
        QTest::newRow("vendor cut to 31")
            << QByteArray("VENDOR=" + QByteArray(40, 'v') + "\n") << "vendor" << QString(31, 'v');
        QTest::newRow("url cut to 255")
            << QByteArray("URL=" + QByteArray(300, 'u') + "\n") << "url" << QString(255, 'u');
        QTest::newRow("model cut to 15")
            << QByteArray("MODEL=Laser 1610 Series XL\n") << "models" << "Laser 1610 Seri";
        QTest::newRow("CR LF line ends") << QByteArray("VENDOR=Acme\r\nURL=x\r\n") << "vendor|url"
                                         << "Acme|x";
        QTest::newRow("no line end at the end") << QByteArray("VENDOR=Acme") << "vendor" << "Acme";

        QByteArray models;
        for (int i = 1; i <= 33; ++i)
            models += "MODEL=m" + QByteArray::number(i) + "\n";
        QTest::newRow("33rd model ignored") << models << "modelCount|lastModel" << "32|m32";
        QByteArray plugins;
        for (int i = 1; i <= 6; ++i)
            plugins += "PLUGIN=/p" + QByteArray::number(i) + "\n";
        QTest::newRow("6th plug-in ignored") << plugins << "pluginCount|lastPlugin" << "5|/p5";
        // A line longer than the reader's buffer comes in pieces; the
        // key in the second piece is still seen.
        QTest::newRow("overlong line")
            << QByteArray(QByteArray(511, 'x') + "VENDOR=Acme\n") << "vendor" << "Acme";
    }

    void keys()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        QVERIFY(TestSupport::writeFile(m_pkg + QStringLiteral("/share/OEM.ini"), content));
        QCOMPARE(readFromPackage(), 0);

        const auto s = [](const char *v) { return QString::fromLatin1(v); };
        const QMap<QString, QString> values{
            {"vendor", s(actx.vendor)}, {"lower", s(actx.vendorLower)}, {"upper", s(actx.vendorUpper)},
            {"url", s(actx.url)}, {"models", s(actx.models[0])},
            {"lastModel", s(actx.models[qMax(actx.modelCount - 1, 0)])},
            {"lastPlugin", s(actx.plugins[qMax(actx.pluginCount - 1, 0)])},
            {"multiVendor", QString::number(actx.multiVendor)}, {"parPort", QString::number(actx.parPort)},
            {"portPlugin", QString::number(actx.portPlugin)}, {"scanner", QString::number(actx.scanner)},
            {"updateGroup", QString::number(actx.updatePrinterGroup)},
            {"modelCount", QString::number(actx.modelCount)}, {"pluginCount", QString::number(actx.pluginCount)}};
        QStringList got;
        for (const QString &f : field.split('|'))
            got << values.value(f, "<unknown field>");
        QCOMPARE(got.join('|'), expected);
    }

    void locations_data()
    {
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("vendor");

        QTest::newRow("share first") << QStringList{ "share", "root", "cwd" } << 0 << "share";
        QTest::newRow("root before cwd") << QStringList{ "root", "cwd" } << 0 << "root";
        QTest::newRow("current directory last") << QStringList{ "cwd" } << 0 << "cwd";
        QTest::newRow("none") << QStringList{} << -1 << "";
        QTest::newRow("directory skipped") << QStringList{ "share:dir", "root" } << 0 << "root";
        QTest::newRow("binary skipped") << QStringList{ "share:binary", "cwd" } << 0 << "cwd";
        QTest::newRow("only unusable ones") << QStringList{ "root:dir", "cwd:binary" } << -1 << "";
    }

    void locations()
    {
        QFETCH(QStringList, present);
        QFETCH(int, result);
        QFETCH(QString, vendor);
        const QMap<QString, QString> where{
            { "share", m_pkg + "/share/OEM.ini" },
            { "root", m_pkg + "/OEM.ini" },
            { "cwd", m_tmp.path() + "/OEM.ini" },
        };
        for (const QString &p : present) {
            const QString path = where[p.section(':', 0, 0)];
            if (p.endsWith(":dir"))
                QVERIFY(QDir().mkpath(path));
            else
                QVERIFY(TestSupport::writeFile(path, (p.endsWith(":binary") ? QByteArray("\x7f" "ELF\x02\x01\0\0", 8) : QByteArray())
                                    + "VENDOR=" + p.toLatin1() + "\n"));
        }

        QCOMPARE(readFromPackage(), result);
        QCOMPARE(QString::fromLatin1(actx.vendor), vendor);
        if (result == -1) {
            // Nothing found: not even the defaults are set.
            QCOMPARE(actx.parPort, 0);
            QCOMPARE(actx.scanner, 0);
        }
    }

    void directories_data()
    {
        QTest::addColumn<QString>("cwd");
        QTest::addColumn<QString>("argv0");
        QTest::addColumn<QString>("bin");

        // TMP stands for a scratch directory; the paths need not exist.
        QTest::newRow("absolute") << "/" << "/opt/pkg/bin/queuewiz" << "/opt/pkg/bin";
        QTest::newRow("dot relative") << "TMP/opt/pkg" << "./bin/queuewiz" << "TMP/opt/pkg/bin";
        QTest::newRow("plain relative") << "TMP/opt/pkg" << "bin/queuewiz" << "TMP/opt/pkg/bin";
        QTest::newRow("cwd is the root") << "/" << "opt/pkg/bin/queuewiz" << "/opt/pkg/bin";
    }

    void directories()
    {
        QFETCH(QString, cwd);
        QFETCH(QString, argv0);
        QFETCH(QString, bin);
        const QString tmp = QDir(m_tmp.path()).canonicalPath();
        cwd.replace("TMP", tmp);
        bin.replace("TMP", tmp);
        QDir().mkpath(cwd);
        QVERIFY(QDir::setCurrent(cwd));

        memset(&actx, 0, sizeof actx);
        readOemConfig(QFile::encodeName(argv0).constData());
        QCOMPARE(QString::fromLocal8Bit(actx.binDir), bin);
        QCOMPARE(QString::fromLocal8Bit(actx.rootDir), bin.section('/', 0, -2));
        QCOMPARE(QString::fromLocal8Bit(actx.shareDir), bin.section('/', 0, -2) + "/share");
    }

    void vendorModel_data()
    {
        QTest::addColumn<QString>("vendor");
        QTest::addColumn<int>("multi");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("result");

        QTest::newRow("substring, any case") << "Acme" << 0 << "ACME Laser 1610" << 1;
        QTest::newRow("other vendor") << "Acme" << 0 << "Globex Jet" << 0;
        QTest::newRow("other vendor, multivendor") << "Acme" << 1 << "Globex Jet" << 1;
        QTest::newRow("null text") << "Acme" << 0 << QString() << 0;
        QTest::newRow("empty vendor matches all") << "" << 0 << "Globex Jet" << 1;
    }

    void vendorModel()
    {
        QFETCH(QString, vendor);
        QFETCH(int, multi);
        QFETCH(QString, text);
        QFETCH(int, result);
        memset(&actx, 0, sizeof actx);
        qstrncpy(actx.vendor, vendor.toLatin1().constData(), sizeof actx.vendor);
        actx.multiVendor = multi;
        const QByteArray t = text.toLatin1();
        QCOMPARE(isVendorModel(text.isNull() ? nullptr : t.constData()), result);
    }

    void paperRule_data()
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

    void paperRule()
    {
        QFETCH(QString, locale);
        QFETCH(int, width);
        QFETCH(QString, paper);
        QCOMPARE(QString::fromLatin1(paperSizeForLocale(locale.toLatin1().constData(), width)), paper);
    }

    // LC_PAPER decides, and the process's locale is left as it was.
    void paperFromEnvironment_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("paper");

        QTest::newRow("en_US") << "en_US.UTF-8" << "Letter";
        QTest::newRow("de_DE") << "de_DE.UTF-8" << "A4";
        QTest::newRow("C locale is 210 wide") << "C" << "A4";
    }

    void paperFromEnvironment()
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

QTEST_GUILESS_MAIN(TestConfig)
#include "tst_config.moc"
