#include "commandlineoptions.h"
#include "queuewizuiloader.h"
#include "testpaths.h"
#include "testsupport.h"
#include "uipaths.h"
#include "wizardpagetitle.h"

#include <QLabel>
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

const QStringList SetupFailed{ QStringLiteral("Invalid UI description"), QStringLiteral("setupUi failed") };

// A wizard form with three pages, each with a page title.
QByteArray titledForm()
{
    QString pages;
    for (int i = 1; i <= 3; ++i)
        pages += QStringLiteral(R"(<widget class="QWizardPage" name="page%1"><layout class="QVBoxLayout" name="layout%1">
<item><widget class="WizardPageTitle" name="T%1"><property name="title"><string>Title %1</string></property>
</widget></item></layout></widget>)").arg(i);
    return (R"(<ui version="4.0"><class>W</class><widget class="QWizard" name="W">)" + pages
            + R"(</widget><customwidgets><customwidget><class>WizardPageTitle</class><extends>QFrame</extends>
<header>wizardpagetitle.h</header></customwidget></customwidgets></ui>)")
        .toUtf8();
}

QByteArray topLevelForm(const char *cls)
{
    return QStringLiteral(R"(<ui version="4.0"><class>F</class><widget class="%1" name="F"/></ui>)")
        .arg(QLatin1String(cls))
        .toUtf8();
}

QString sourceForm(const char *name)
{
    return TestPaths::sourceDir() + QStringLiteral("/ui/") + QLatin1String(name);
}

} // namespace

// Start-up: the command line, the package paths and the form loaders.
class TestApp : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &content)
    {
        return TestSupport::writeFile(m_dir.filePath(name), content) ? m_dir.filePath(name) : QString();
    }

private slots:
    void init() { TestSupport::failOnWarnings(); }

    void loadAs_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("created");
        QTest::addColumn<QString>("warning");

        QTest::newRow("no class attribute") << QByteArray(R"(<ui version="4.0"><widget name="x"/></ui>)")
                                            << "AddPrinterWizard" << "" << "can't find 'class' attribute";
        QTest::newRow("not a form") << QByteArray("<ui") << "AddPrinterWizard" << "" << "";
        QTest::newRow("QWizard form as the wizard") << topLevelForm("QWizard") << "AddPrinterWizard"
                                                    << "AddPrinterWizard" << "";
        // A dialog has no pages: QWizard between them makes the difference.
        QTest::newRow("QDialog form refused") << topLevelForm("QDialog") << "AddPrinterWizard" << ""
                                              << "wrong className class <AddPrinterWizard> is NOT inherits <QDialog>";
        QTest::newRow("empty class name loads as is") << topLevelForm("QDialog") << "" << "QDialog" << "";
    }

    // Refused widgets are not left behind.
    void loadAs()
    {
        QFETCH(QByteArray, form);
        QFETCH(QString, className);
        QFETCH(QString, created);
        QFETCH(QString, warning);

        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const qsizetype widgetsBefore = QApplication::allWidgets().count();
        QueuewizUiLoader loader(sourceForm("wizardpagetitle.ui"));
        std::unique_ptr<QWidget> w(loader.loadAs(write("form.ui", form), className));
        QCOMPARE(w ? QString::fromLatin1(w->metaObject()->className()) : QString(), created);
        if (!w)
            QCOMPARE(QApplication::allWidgets().count(), widgetsBefore);
    }

    // The program's wizard form without its options button.
    void missingChild()
    {
        const QString form = write("wizard.ui", TestSupport::readFile(sourceForm("AddPrinterWizardBase.ui"))
                                                    .replace("name=\"OptionsButton\"", "name=\"Other\""));
        for (const QString &w : SetupFailed)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(w));
        const qsizetype widgetsBefore = QApplication::allWidgets().count();
        QVERIFY(!QueuewizUiLoader::load(form, sourceForm("wizardpagetitle.ui")));
        QCOMPARE(QApplication::allWidgets().count(), widgetsBefore);
    }

    void pageTitles_data()
    {
        QTest::addColumn<QByteArray>("titleForm");
        QTest::newRow("the program's title form") << QByteArray();
        QTest::newRow("title form without its labels") << QByteArray(
            R"(<ui version="4.0"><class>T</class><widget class="QFrame" name="T"/></ui>)");
    }

    // Each title is a form of its own, bound and named as the wizard's form
    // says; a broken title form leaves holes where the titles would be.
    void pageTitles()
    {
        QFETCH(QByteArray, titleForm);
        const bool broken = !titleForm.isNull();
        for (int i = 1; broken && i <= 3; ++i) {
            for (const QString &w : SetupFailed)
                QTest::ignoreMessage(QtWarningMsg, qPrintable(w));
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("\"Empty widget item in QVBoxLayout "
                                                                         "'layout%1'.\"").arg(i)));
        }
        UiLoader::loadImages(TestPaths::sourceDir() + "/ui/images");
        QueuewizUiLoader loader(broken ? write("title.ui", titleForm) : sourceForm("wizardpagetitle.ui"));
        std::unique_ptr<QWidget> w(loader.loadAs(write("titled.ui", titledForm()), "AddPrinterWizard"));
        QVERIFY(w);
        QVERIFY(!loader.isBusy());
        QCOMPARE(w->findChildren<WizardPageTitle *>().count(), broken ? 0 : 3);
        for (int i = 1; !broken && i <= 3; ++i) {
            auto *title = w->findChild<WizardPageTitle *>(QStringLiteral("T%1").arg(i));
            QVERIFY(title);
            QCOMPARE(title->parentWidget()->objectName(), QStringLiteral("page%1").arg(i));
            QCOMPARE(title->findChild<QLabel *>("titleLabel")->text(), QStringLiteral("Title %1").arg(i));
            QVERIFY(!title->findChild<QLabel *>("titleImage")->pixmap().isNull());  // "images:" of the form
        }
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
        // The loader's own messages: loadAs and missingChild.
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
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const QString &name : unset)
            env.remove(name);
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

QTEST_MAIN(TestApp)
#include "tst_app.moc"
