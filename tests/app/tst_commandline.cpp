#include "commandlineoptions.h"
#include "testpaths.h"
#include "uipaths.h"

#include <QProcess>
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

QString describe(const std::vector<option> &table)
{
    QStringList rows;
    for (const option &o : table)
        rows << (o.name ? QStringLiteral("%1,%2,%3").arg(QLatin1String(o.name)).arg(o.has_arg).arg(o.val)
                        : o.has_arg || o.val || o.flag ? "BAD END" : "END");
    return rows.join('|');
}

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

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void table_data()
    {
        QTest::addColumn<QByteArray>("compact");
        QTest::addColumn<QString>("table");

        QTest::newRow("program's own") << QByteArray(kLongOptions)
                                       << "ui,1,0|res,1,0|ui-title,1,0|res-title,1,0|help,0,104|END";
        QTest::newRow("optional argument") << QByteArray("a::") << "a,2,0|END";
        QTest::newRow("colon after =c has no effect") << QByteArray("b=x:") << "b,0,120|END";
        QTest::newRow("colon before =c") << QByteArray("c:=y") << "c,1,121|END";
        QTest::newRow("only the first = counts") << QByteArray("d=e=f") << "d,0,101|END";
        QTest::newRow("empty tokens") << QByteArray("|") << ",0,0|,0,0|END";
        // Cut at 1023 characters: of "|b:" only the bar is left.
        QTest::newRow("cut at 1023") << (QByteArray(1022, 'a') + "|b:") << QString(1022, 'a') + ",0,0|,0,0|END";
    }

    void table()
    {
        QFETCH(QByteArray, compact);
        QFETCH(QString, table);
        std::vector<char> names;
        QCOMPARE(describe(CommandLineOptions::longOptionTable(compact.constData(), names)), table);
    }

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
        QTest::addColumn<QByteArray>("form");  // written to FORM
        QTest::addColumn<bool>("configured");
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("errors");  // in this order on standard error

        const QByteArray dialog = R"(<ui version="4.0"><class>F</class><widget class="QDialog" name="F"/></ui>)";
        QFile wizard(TestPaths::sourceDir() + "/ui/AddPrinterWizardBase.ui");
        const QByteArray form = wizard.open(QIODevice::ReadOnly) ? wizard.readAll() : QByteArray();
        const QByteArray withoutChild = QByteArray(form).replace("name=\"OptionsButton\"", "name=\"Other\"");
        const QStringList ui{ "--ui=FORM" };

        QTest::newRow("-h") << QStringList{ "-h" } << QByteArray() << true << 0 << QStringList{};
        QTest::newRow("--help with arguments, no OEM.ini") << QStringList{ "--help", "a" } << QByteArray() << false
                                                           << 0 << QStringList{};
        QTest::newRow("--help --bogus") << QStringList{ "--help", "--bogus" } << QByteArray() << true << 255
                                        << QStringList{ "unrecognized option '--bogus'" };
        QTest::newRow("form without class") << ui << QByteArray("<ui version=\"4.0\"><widget name=\"x\"/></ui>")
                                            << true << 254 << QStringList{ "can't find 'class' attribute" };
        QTest::newRow("dialog form") << ui << dialog << true << 254
                                     << QStringList{ "wrong className class <AddPrinterWizard> is NOT inherits <QDialog>" };
        QTest::newRow("form without a child") << ui << withoutChild << true << 254
                                              << QStringList{ "Invalid UI description", "setupUi failed" };
        QTest::newRow("missing form") << ui << QByteArray() << true << 254 << QStringList{};
        QTest::newRow("form cut in half") << ui << form.left(form.size() / 2) << true << 254
                                          << QStringList{ "FORM: line " + QString::number(form.left(form.size() / 2).count('\n') + 1) };
    }

    // In a terminal without any display: the usage still works, the wizard
    // says what it lacks instead of letting Qt abort.
    void withoutDisplay_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("error");

        QTest::newRow("wizard") << QStringList{} << 1 << "queuewiz: there is no display to show the wizard on";
        QTest::newRow("--help") << QStringList{ "--help" } << 0 << "";
        QTest::newRow("bad option, reported once") << QStringList{ "--bogus" } << 255 << "unrecognized option '--bogus'";
    }

    void withoutDisplay()
    {
        QFETCH(QStringList, words);
        QFETCH(int, status);
        QFETCH(QString, error);
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
            env.remove(QString::fromLatin1(name));
        p.setProcessEnvironment(env);
        p.start(TestPaths::binaryDir() + "/app/queuewiz", words);
        QVERIFY(p.waitForFinished(30000));
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), status);
        const QString err = QString::fromLocal8Bit(p.readAllStandardError());
        QCOMPARE(err.count("queuewiz"), error.isEmpty() ? 0 : 1);
        QVERIFY2(err.contains(error), qPrintable(err));
        QCOMPARE(QString::fromLocal8Bit(p.readAllStandardOutput()).contains("USAGE:"), status != 1);
    }

    // The program from a package tree of its own: it finds OEM.ini beside
    // its own location.
    void program()
    {
        QFETCH(QStringList, words);
        QFETCH(QByteArray, form);
        QFETCH(bool, configured);
        QFETCH(int, status);
        QFETCH(QStringList, errors);

        QTemporaryDir pkg;
        QVERIFY(QDir().mkpath(pkg.filePath("bin")) && QDir().mkpath(pkg.filePath("share")));
        QVERIFY(QFile::link(TestPaths::binaryDir() + "/app/queuewiz", pkg.filePath("bin/queuewiz")));
        QVERIFY(!configured || write(pkg.filePath("share/OEM.ini"), "VENDOR=Acme\n"));
        const QString formPath = pkg.filePath("form.ui");
        QVERIFY(form.isEmpty() || write(formPath, form));
        words.replaceInStrings("FORM", formPath);
        errors.replaceInStrings("FORM", formPath);
        if (status == 254)
            errors << "Failed to load widget from <" + formPath + ">";

        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("DISPLAY");
        p.setProcessEnvironment(env);
        p.start(pkg.filePath("bin/queuewiz"), words);
        QVERIFY(p.waitForFinished(30000));
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), status);
        QCOMPARE(QString::fromLocal8Bit(p.readAllStandardOutput()),
                 QString(configured ? "" : "WARNING: configuration file not found\n")
                     + (status == 254 ? "" : "USAGE:\nqueuewiz --ui=<FILE> --res=<PATH>\n\t<FILE> is used as UI "
                                             "description file\nqueuewiz -h|--help\n\tDisplay this help and exit\n"));
        const QString err = QString::fromLocal8Bit(p.readAllStandardError());
        qsizetype at = 0;
        for (const QString &e : errors) {
            at = err.indexOf(e, at);
            QVERIFY2(at >= 0, qPrintable(e + " missing in:\n" + err));
        }
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
