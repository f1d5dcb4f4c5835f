#include "commandlineoptions.h"
#include "testpaths.h"
#include "testsupport.h"
#include "uipaths.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const char kLongOptions[] = "ui:|res:|ui-title:|res-title:|help=h";

// argv for CommandLineOptions; owns the storage.
struct Argv
{
    explicit Argv(const QStringList &words)
    {
        for (const QString &w : QStringList{ "queuewiz" } + words)
            m_words << w.toLocal8Bit();
        for (QByteArray &w : m_words)
            m_ptrs.push_back(w.data());
        m_ptrs.push_back(nullptr);
    }
    CommandLineOptions parse() { return CommandLineOptions(int(m_ptrs.size()) - 1, m_ptrs.data(), "h", kLongOptions); }

    QList<QByteArray> m_words;
    std::vector<char *> m_ptrs;
};

// The options seen, then the other arguments in brackets.
QString describe(const CommandLineOptions &o)
{
    QStringList keys;
    for (const char *key : { "-", "h", "help", "ui", "res", "res-title", "x" }) {
        if (o.contains(key))
            keys << key + QStringLiteral("=") + (o.value(key).isNull() ? "null" : o.value(key));
    }
    return (keys + QStringList{ "[" + QStringList(o.arguments()).join(' ') + "]" }).join(' ');
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void parse_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("parsed");

        QTest::newRow("--help gives both keys") << QStringList{ "--help" } << "h=null help=null []";
        QTest::newRow("-h") << QStringList{ "-h" } << "h=null []";
        QTest::newRow("separate value, later replaces earlier") << QStringList{ "--ui", "a.ui", "--ui=b.ui" }
                                                                << "ui=b.ui []";
        QTest::newRow("unknown short") << QStringList{ "-x" } << "-=null x=null []";
        QTest::newRow("help and unknown long") << QStringList{ "--help", "--bogus" } << "-=null h=null help=null []";
        QTest::newRow("missing argument") << QStringList{ "--res" } << "-=null []";
        QTest::newRow("abbreviated long option") << QStringList{ "--res-t=p" } << "res-title=p []";
        QTest::newRow("non-option arguments kept in order") << QStringList{ "one", "--res=r", "two", "--", "-h" }
                                                            << "res=r [one two -h]";
    }

    void parse()
    {
        QFETCH(QStringList, words);
        QFETCH(QString, parsed);
        QCOMPARE(describe(Argv(words).parse()), parsed);
    }

    void paths_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("paths");

        QTest::newRow("defaults") << QStringList{}
                                  << QStringList{ "/s/ui/AddPrinterWizardBase.ui", "/s/ui/images",
                                                  "/s/ui/wizardpagetitle.ui", "/s/ui/images" };
        QTest::newRow("only ui") << QStringList{ "--ui=/x/y/w.ui" }
                                 << QStringList{ "/x/y/w.ui", "/x/y/images", "/x/y/wizardpagetitle.ui", "/x/y/images" };
        // The title images follow the res path's parent, not the title form.
        QTest::newRow("only res and ui-title")
            << QStringList{ "--res=/p/q/img", "--ui-title=/t/t.ui" }
            << QStringList{ "/s/ui/AddPrinterWizardBase.ui", "/p/q/img", "/t/t.ui", "/p/q/images" };
        QTest::newRow("all given") << QStringList{ "--ui=/a.ui", "--res=/b", "--ui-title=/c.ui", "--res-title=/d" }
                                   << QStringList{ "/a.ui", "/b", "/c.ui", "/d" };
    }

    void paths()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, paths);
        const UiPaths p = UiPaths::resolve(Argv(words).parse(), "/s");
        QCOMPARE((QStringList{ p.ui, p.res, p.uiTitle, p.resTitle }), paths);
    }

    void program_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<bool>("configured");
        QTest::addColumn<QString>("display"); // "offscreen", an X display nobody serves, or none
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("error");  // once on standard error
        QTest::addColumn<QByteArray>("form"); // written to FORM unless empty

        // Without a display the usage still works and the wizard says what
        // it lacks instead of letting Qt abort.
        const QString off = QStringLiteral("offscreen"), dead = QStringLiteral(":4711");
        QTest::newRow("-h, no display") << QStringList{ "-h" } << true << "" << 0 << "" << QByteArray();
        QTest::newRow("--help with arguments, no OEM.ini") << QStringList{ "--help", "a" } << false << off << 0 << "" << QByteArray();
        QTest::newRow("--help --bogus, dead display") << QStringList{ "--help", "--bogus" } << true << dead << 255
                                                      << "unrecognized option '--bogus'" << QByteArray();
        QTest::newRow("wizard, dead display")
            << QStringList{} << true << dead << 1
            << "queuewiz: there is no display to show the wizard on (the display named by DISPLAY or WAYLAND_DISPLAY "
               "does not answer)" << QByteArray();
        // The loader's own messages: tst_uiloader.
        QTest::newRow("missing form") << QStringList{ "--ui=FORM" } << true << off << 254 << "Failed to load widget from <" << QByteArray();
        QFile wizard(TestPaths::sourceDir() + "/ui/AddPrinterWizardBase.ui");
        QVERIFY(wizard.open(QIODevice::ReadOnly));
        const QByteArray half = wizard.readAll().left(wizard.size() / 2);
        QTest::newRow("form cut in half") << QStringList{ "--ui=FORM" } << true << off << 254
                                          << "FORM: line " + QString::number(half.count('\n') + 1) << half;
    }

    // The program from a package tree of its own: it finds OEM.ini beside
    // its own location.
    void program()
    {
        QFETCH(QStringList, words);
        QFETCH(bool, configured);
        QFETCH(QString, display);
        QFETCH(int, status);
        QFETCH(QString, error);
        QFETCH(QByteArray, form);

        QTemporaryDir pkg;
        QVERIFY(QDir().mkpath(pkg.filePath("bin")));
        QVERIFY(QFile::link(TestPaths::binaryDir() + "/app/queuewiz", pkg.filePath("bin/queuewiz")));
        QVERIFY(!configured || TestSupport::writeFile(pkg.filePath("share/OEM.ini"), "VENDOR=Acme\n"));
        const QString formPath = pkg.filePath("form.ui");
        QVERIFY(form.isEmpty() || TestSupport::writeFile(formPath, form));
        words.replaceInStrings("FORM", formPath);
        error.replace("FORM", formPath);

        QStringList unset{ "DISPLAY", "WAYLAND_DISPLAY" };
        if (display != "offscreen")
            unset << "QT_QPA_PLATFORM";
        QProcessEnvironment env = TestSupport::environmentWithout(unset);
        if (display.startsWith(':'))
            env.insert("DISPLAY", display);
        const TestSupport::Run r = TestSupport::run(pkg.filePath("bin/queuewiz"), words, env);
        QCOMPARE(r.status, status);
        QCOMPARE(r.out, QString(configured ? "" : "WARNING: configuration file not found\n")
                     + (status != 0 && status != 255 ? "" : "USAGE:\nqueuewiz --ui=<FILE> --res=<PATH>\n\t<FILE> is used as UI "
                                                          "description file\nqueuewiz -h|--help\n\tDisplay this help and exit\n"));
        QVERIFY2(error.isEmpty() ? !r.err.contains("queuewiz") : r.err.count(error) == 1, qPrintable(r.err));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
