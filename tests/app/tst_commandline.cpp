#include "commandlineoptions.h"
#include "testpaths.h"
#include "uipaths.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// argv for CommandLineOptions from a list of words; owns the storage.
struct Argv
{
    explicit Argv(const QStringList &words)
    {
        m_words << "queuewiz";
        for (const QString &w : words)
            m_words << w.toLocal8Bit();
        for (QByteArray &w : m_words)
            m_ptrs.push_back(w.data());
        m_ptrs.push_back(nullptr);
    }
    int argc() const { return static_cast<int>(m_ptrs.size()) - 1; }
    char **argv() { return m_ptrs.data(); }

    QList<QByteArray> m_words;
    std::vector<char *> m_ptrs;
};

const char kSpec[] = "ui:|res:|ui-title:|res-title:|help=h";

QString describe(const std::vector<option> &table)
{
    QStringList rows;
    for (const option &o : table) {
        if (!o.name) {
            rows << (o.has_arg == 0 && o.val == 0 && !o.flag ? "END" : "BAD END");
            continue;
        }
        rows << QStringLiteral("%1,%2,%3").arg(QString::fromLatin1(o.name)).arg(o.has_arg).arg(o.val);
    }
    return rows.join('|');
}

QString describe(const CommandLineOptions &o)
{
    QStringList keys;
    for (const char *key : { "-", "h", "help", "ui", "res", "ui-title", "res-title", "x", "a" }) {
        const QString k = QString::fromLatin1(key);
        if (o.contains(k))
            keys << k + "=" + (o.value(k).isNull() ? "null" : o.value(k));
    }
    return keys.join(' ');
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private:
    QString queuewiz() const { return TestPaths::binaryDir() + "/app/queuewiz"; }

private slots:
    void table_data()
    {
        QTest::addColumn<QByteArray>("spec");
        QTest::addColumn<QString>("table");

        QTest::newRow("program's own") << QByteArray(kSpec)
                                       << "ui,1,0|res,1,0|ui-title,1,0|res-title,1,0|help,0,104|END";
        QTest::newRow("optional argument") << QByteArray("a::") << "a,2,0|END";
        QTest::newRow("colon after =c has no effect") << QByteArray("b=x:") << "b,0,120|END";
        QTest::newRow("colon before =c") << QByteArray("c:=y") << "c,1,121|END";
        QTest::newRow("only the first = counts") << QByteArray("d=e=f") << "d,0,101|END";
        QTest::newRow("empty tokens") << QByteArray("|") << ",0,0|,0,0|END";
        // Cut at 1023 characters: "|b:" falls outside except its bar.
        QTest::newRow("cut at 1023") << (QByteArray(1022, 'a') + "|b:")
                                     << QString(1022, 'a') + ",0,0|,0,0|END";
    }

    void table()
    {
        QFETCH(QByteArray, spec);
        QFETCH(QString, table);
        std::vector<char> names;
        QCOMPARE(describe(CommandLineOptions::longOptionTable(spec.constData(), names)), table);
    }

    void parse_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("--help gives both keys") << QStringList{ "--help" } << "h=null help=null" << QStringList{};
        QTest::newRow("-h") << QStringList{ "-h" } << "h=null" << QStringList{};
        QTest::newRow("--ui=") << QStringList{ "--ui=x.ui" } << "ui=x.ui" << QStringList{};
        QTest::newRow("--ui with separate value") << QStringList{ "--ui", "x.ui" } << "ui=x.ui" << QStringList{};
        QTest::newRow("later replaces earlier")
            << QStringList{ "--ui=a.ui", "--ui=b.ui" } << "ui=b.ui" << QStringList{};
        QTest::newRow("unknown short") << QStringList{ "-x" } << "-=null x=null" << QStringList{};
        QTest::newRow("unknown long") << QStringList{ "--bogus" } << "-=null" << QStringList{};
        QTest::newRow("help and unknown")
            << QStringList{ "--help", "--bogus" } << "-=null h=null help=null" << QStringList{};
        QTest::newRow("missing argument") << QStringList{ "--res" } << "-=null" << QStringList{};
        QTest::newRow("abbreviated long option") << QStringList{ "--res-t=p" } << "res-title=p" << QStringList{};
        QTest::newRow("non-option arguments kept in order")
            << QStringList{ "one", "--res=r", "two" } << "res=r" << QStringList{ "one", "two" };
        QTest::newRow("after --") << QStringList{ "--", "-h" } << "" << QStringList{ "-h" };
    }

    void parse()
    {
        QFETCH(QStringList, words);
        QFETCH(QString, options);
        QFETCH(QStringList, arguments);
        Argv a(words);
        CommandLineOptions o(a.argc(), a.argv(), "h", kSpec);
        QCOMPARE(describe(o), options);
        QCOMPARE(QStringList(o.arguments()), arguments);
    }

    void values_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("intValue");
        QTest::addColumn<uint>("uintValue");

        QTest::newRow("number") << "--ui=12" << 12 << 12u;
        QTest::newRow("negative") << "--ui=-3" << -3 << 77u;
        QTest::newRow("text") << "--ui=abc" << 55 << 77u;
        QTest::newRow("trailing text") << "--ui=4x" << 55 << 77u;
        QTest::newRow("absent") << "-h" << 55 << 77u;
    }

    void values()
    {
        QFETCH(QString, word);
        QFETCH(int, intValue);
        QFETCH(uint, uintValue);
        Argv a({ word });
        CommandLineOptions o(a.argc(), a.argv(), "h", kSpec);
        QCOMPARE(o.intValue("ui", 55), intValue);
        QCOMPARE(o.uintValue("ui", 77u), uintValue);
    }

    void valueOfKeyWithoutArgument()
    {
        Argv a({ "-h" });
        CommandLineOptions o(a.argc(), a.argv(), "h", kSpec);
        // Present without a value is not absent: the default is not used.
        QVERIFY(o.value("h", "default").isNull());
        QCOMPARE(o.value("ui", "default"), QString("default"));
        o.insert("h", "set");
        QCOMPARE(o.value("h"), QString("set"));
    }

    void toStringFormat()
    {
        Argv a({ "--ui=u", "-h", "x", "y" });
        CommandLineOptions o(a.argc(), a.argv(), "h", kSpec);
        QCOMPARE(o.toString(), QString("options(2):\n\t<h>=<>\n\t<ui>=<u>\nnone-options(2):\n\t<x>\n\t<y>"));
    }

    void paths_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("paths");

        QTest::newRow("defaults") << QStringList{}
                                  << QStringList{ "/s/ui/AddPrinterWizardBase.ui", "/s/ui/images",
                                                  "/s/ui/wizardpagetitle.ui", "/s/ui/images" };
        QTest::newRow("only ui") << QStringList{ "--ui=/x/y/w.ui" }
                                 << QStringList{ "/x/y/w.ui", "/x/y/images", "/x/y/wizardpagetitle.ui",
                                                 "/x/y/images" };
        // The title images follow the res path's parent, not the title form.
        QTest::newRow("only res") << QStringList{ "--res=/p/q/img" }
                                  << QStringList{ "/s/ui/AddPrinterWizardBase.ui", "/p/q/img",
                                                  "/s/ui/wizardpagetitle.ui", "/p/q/images" };
        QTest::newRow("only ui-title") << QStringList{ "--ui-title=/t/t.ui" }
                                       << QStringList{ "/s/ui/AddPrinterWizardBase.ui", "/s/ui/images",
                                                       "/t/t.ui", "/s/ui/images" };
        QTest::newRow("all given") << QStringList{ "--ui=/a.ui", "--res=/b", "--ui-title=/c.ui", "--res-title=/d" }
                                   << QStringList{ "/a.ui", "/b", "/c.ui", "/d" };
    }

    void paths()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, paths);
        Argv a(words);
        CommandLineOptions o(a.argc(), a.argv(), "h", kSpec);
        const UiPaths p = UiPaths::resolve(o, "/s");
        QCOMPARE((QStringList{ p.ui, p.res, p.uiTitle, p.resTitle }), paths);
    }

    void program_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("stderrText");

        QTest::newRow("-h") << QStringList{ "-h" } << 0 << "";
        QTest::newRow("--help") << QStringList{ "--help" } << 0 << "";
        QTest::newRow("--help with arguments") << QStringList{ "--help", "a", "b" } << 0 << "";
        QTest::newRow("--help --bogus") << QStringList{ "--help", "--bogus" } << 255
                                        << "unrecognized option '--bogus'";
        QTest::newRow("--nope") << QStringList{ "--nope" } << 255 << "unrecognized option '--nope'";
        QTest::newRow("missing argument") << QStringList{ "--ui" } << 255 << "requires an argument";
    }

    void program()
    {
        QFETCH(QStringList, words);
        QFETCH(int, status);
        QFETCH(QString, stderrText);
        QProcess p;
        p.start(queuewiz(), words);
        QVERIFY(p.waitForFinished(20000));
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), status);
        const QString out = QString::fromLocal8Bit(p.readAllStandardOutput());
        QVERIFY2(out.endsWith("USAGE:\nqueuewiz --ui=<FILE> --res=<PATH>\n\t<FILE> is used as UI description "
                              "file\nqueuewiz -h|--help\n\tDisplay this help and exit\n"),
                 qPrintable(out));
        QVERIFY(QString::fromLocal8Bit(p.readAllStandardError()).contains(stderrText));
    }

    // The configuration is looked up from the program's own location.
    void configurationWarning()
    {
        QTemporaryDir pkg;
        QVERIFY(QDir().mkpath(pkg.path() + "/bin"));
        QVERIFY(QFile::link(queuewiz(), pkg.path() + "/bin/queuewiz"));
        const auto run = [&] {
            QProcess p;
            p.setWorkingDirectory(pkg.path() + "/bin");
            p.start(pkg.path() + "/bin/queuewiz", { "-h" });
            p.waitForFinished(20000);
            return QString::fromLocal8Bit(p.readAllStandardOutput());
        };
        QVERIFY(run().startsWith("WARNING: configuration file not found\n"));

        QVERIFY(QDir().mkpath(pkg.path() + "/share"));
        QFile ini(pkg.path() + "/share/OEM.ini");
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.write("VENDOR=Acme\n");
        ini.close();
        QVERIFY(run().startsWith("USAGE:\n"));
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
