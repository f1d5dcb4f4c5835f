#include "AddPrinterWizard.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "papersize.h"
#include "ppddialog.h"
#include "ppdoptionview.h"
#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"
#include "printercreator.h"
#include "printerportlistview.h"
#include "testpaths.h"
#include "wizardfixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using W = AddPrinterWizard;

namespace {

const QString Laser = QStringLiteral("Acme Laser 1610 Series (en)");
const QString ColorLaser = QStringLiteral("Acme ColorLaser 2550");

QString unique(const char *tag)
{
    return QStringLiteral("wiz%1_%2").arg(QCoreApplication::applicationPid()).arg(QLatin1String(tag));
}

void clickItem(QTreeWidget *view, QTreeWidgetItem *item)
{
    view->scrollToItem(item);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(item).center());
}

void clickItem(QListWidget *view, QListWidgetItem *item)
{
    view->scrollToItem(item);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(item).center());
}

// The starred choice of an option as `lpoptions -l` lists it.
QString defaultChoice(const QString &queue, const QString &keyword)
{
    QString output;
    CupsSandbox::run({"lpoptions", "-p", queue, "-l"}, &output);
    for (const QString &line : output.split('\n')) {
        if (!line.startsWith(keyword + '/'))
            continue;
        for (const QString &choice : line.section(':', 1).split(' ', Qt::SkipEmptyParts)) {
            if (choice.startsWith('*'))
                return choice.mid(1);
        }
    }
    return QString();
}

bool addQueue(const QString &name, const QString &ppd)
{
    return CupsSandbox::run({"lpadmin", "-p", name, "-E", "-v", "socket://127.0.0.1:9", "-m", ppd}) == 0;
}

} // namespace

// The wizard creating queues on a scheduler of its own: the default printer
// and the scheduler's life are this test's to change.
class TestWizardCommit : public QObject
{
    Q_OBJECT

    // From the welcome page through a port typed by hand ("socket://" +
    // hostPort), a driver and the names, up to the name page.
    static bool toNamePage(const WizardFixture &f, const QString &hostPort, const QString &driver,
                           const QString &name)
    {
        if (!f.click(QWizard::NextButton))
            return false;
        auto *manual = f.child<QRadioButton>("OfflineButton");
        QTest::mouseClick(manual, Qt::LeftButton, {}, QPoint(manual->height() / 2, manual->height() / 2));
        if (!f.click(QWizard::NextButton))
            return false;
        auto *ports = f.child<PrinterPortListView>("PortsView");
        const QList<QTreeWidgetItem *> socket = ports->findItems("socket://", Qt::MatchExactly | Qt::MatchRecursive);
        if (socket.isEmpty())
            return false;
        clickItem(ports, socket.first());
        QTest::keyClick(ports, Qt::Key_F2);
        auto *editor = ports->findChild<QLineEdit *>();
        if (!editor)
            return false;
        QTest::keyClicks(editor, hostPort);
        QTest::keyClick(editor, Qt::Key_Return);
        if (!f.click(QWizard::NextButton))
            return false;
        auto *drivers = f.child<QListWidget>("DriversList");
        const QList<QListWidgetItem *> items = drivers->findItems(driver, Qt::MatchExactly);
        if (items.isEmpty())
            return false;
        clickItem(drivers, items.first());
        if (!f.click(QWizard::NextButton) || f.wizard()->currentId() != W::NamePage)
            return false;
        auto *edit = f.child<QLineEdit>("NameEdit");
        edit->selectAll();
        QTest::keyClicks(edit, name);
        return edit->text() == name;
    }

    // The whole way to the finish page.
    bool create(WizardFixture &f, const QString &hostPort, const QString &driver, const QString &name)
    {
        return f.load() && toNamePage(f, hostPort, driver, name) && f.click(QWizard::NextButton)
            && f.wizard()->currentId() == W::FinishPage;
    }

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
        QVERIFY(m_temp.isValid());
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*")));
    }

    void cleanup()
    {
        PrinterCreator::m_LpadminProgram = QStringLiteral("lpadmin");
    }

    void createsTheQueue()
    {
        LoopbackPrinter printer;
        const QString name = unique("office");
        WizardFixture f;
        QVERIFY(f.load());
        const QString hostPort = printer.deviceUri().mid(int(strlen("socket://")));
        QVERIFY(toNamePage(f, hostPort, Laser, name));
        QTest::keyClicks(f.child<QLineEdit>("LocationEdit"), "Room 7");
        QTest::keyClicks(f.child<QLineEdit>("DescriptionEdit"), "Laser & co");
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::FinishPage));

        CUPSPrinter queue;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(name, queue));
        QCOMPARE(queue.DeviceURI(), printer.deviceUri());
        QCOMPARE(queue.ModelInfo(), QStringLiteral("Acme Laser 1610 Series"));
        QCOMPARE(queue.Location(), QStringLiteral("Room 7"));
        QCOMPARE(queue.Info(), QStringLiteral("Laser & co"));
        QCOMPARE(queue.State(), 3);
        QVERIFY(queue.AcceptingJobs());
        QCOMPARE(CUPSManager::m_CUPSManagerInstance.defaultPrinterName(), name);

        const QString summary = f.child<QLabel>("FinishText")->text();
        QVERIFY2(summary.contains("<b>" + name + "</b>") && summary.contains("Model: Acme Laser 1610 Series<br>")
                     && summary.contains("Port: " + printer.deviceUri() + "</p>"),
                 qPrintable(summary));
        QVERIFY(!f.button(QWizard::BackButton)->isVisible());
        QVERIFY(!f.button(QWizard::CancelButton)->isVisible());
        QVERIFY(f.click(QWizard::FinishButton));
        QCOMPARE(f.wizard()->result(), int(QDialog::Accepted));
    }

    void paperSize_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("paper");

        QTest::newRow("Letter country, Letter driver") << QByteArray("en_US.UTF-8") << Laser << "acme-laser1610.ppd"
                                                       << "Letter";
        QTest::newRow("Letter country, A4 driver") << QByteArray("es_MX.UTF-8") << ColorLaser
                                                   << "acme-colorlaser2550.ppd" << "Letter";
        QTest::newRow("A4 country, Letter driver") << QByteArray("de_DE.UTF-8") << Laser << "acme-laser1610.ppd"
                                                   << "A4";
        QTest::newRow("A4 country, A4 driver") << QByteArray("de_DE.UTF-8") << ColorLaser << "acme-colorlaser2550.ppd"
                                               << "A4";
    }

    // lpadmin runs only when the driver's default is not the country's
    // paper, and reaches the scheduler the wizard uses even when the
    // environment names none.
    void paperSize()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, driver);
        QFETCH(QString, ppd);
        QFETCH(QString, paper);

        // The scheduler may give a new queue its own paper size rather than
        // the driver's: a queue made the way the wizard makes it tells.
        const QString probe = unique("probe");
        CUPSPrinter probeQueue(probe);
        probeQueue.setDeviceURI("socket://127.0.0.1:9");
        probeQueue.setState(3);
        probeQueue.setPPDName(ppd);
        QVERIFY(CUPSManager::m_CUPSManagerInstance.addPrinter(probeQueue));
        const QString driverDefault = defaultChoice(probe, "PageSize");
        CupsSandbox::run({"lpadmin", "-x", probe});
        QVERIFY(driverDefault == "Letter" || driverDefault == "A4");

        const QString log = m_temp.filePath(QString::fromLatin1(QTest::currentDataTag()).replace(' ', '_'));
        WizardFixture f;
        QVERIFY(f.addScript("lpadmin", QStringLiteral("#!/bin/sh\necho \"$@\" >> '%1'\nexec lpadmin \"$@\"\n")
                                           .arg(log)
                                           .toUtf8()));
        PrinterCreator::m_LpadminProgram = f.rootDir() + "/lpadmin";

        const QByteArray savedPaper = qgetenv("LC_PAPER");
        const QByteArray server = qgetenv("CUPS_SERVER");
        qunsetenv("LC_ALL");
        qputenv("LC_PAPER", locale);
        QCOMPARE(QString::fromLatin1(defaultPaperSize()), paper);
        qunsetenv("CUPS_SERVER");
        const QString name = unique("paper") + QString::number(++m_queues);
        const bool created = create(f, "127.0.0.1:9", driver, name);
        qputenv("CUPS_SERVER", server);
        qputenv("LC_PAPER", savedPaper);
        QVERIFY(created);

        QFile recorded(log);
        const QByteArray calls = recorded.open(QIODevice::ReadOnly) ? recorded.readAll() : QByteArray();
        if (driverDefault == paper)
            QCOMPARE(calls, QByteArray());
        else
            QCOMPARE(QString::fromUtf8(calls),
                     QStringLiteral("-p %1 -o PageSize=%2 -o PageRegion=%2\n").arg(name, paper));
        QCOMPARE(defaultChoice(name, "PageSize"), paper);
    }

    void nameInUse_data()
    {
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("typed");

        QTest::newRow("same name") << unique("same") << "acme-laser1610.ppd" << unique("same");
        QTest::newRow("letter case aside") << unique("Case") << "acme-laser1610.ppd" << unique("cASE");
        QTest::newRow("another vendor's driver")
            << unique("globex") << "globex-pagewriter40.ppd" << unique("globex");
    }

    void nameInUse()
    {
        QFETCH(QString, existing);
        QFETCH(QString, ppd);
        QFETCH(QString, typed);

        QVERIFY(addQueue(existing, ppd));
        CUPSPrinter before;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(existing, before));

        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toNamePage(f, "127.0.0.1:9100", ColorLaser, typed));
        QString seen;
        WizardFixture::answerMessageBox("OK", &seen);
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(seen, QStringLiteral("Error!|Printer '%1' already exists! Choose another name.").arg(typed));
        QCOMPARE(f.wizard()->currentId(), int(W::NamePage));
        QCOMPARE(f.wizard()->focusWidget(), f.child<QLineEdit>("NameEdit"));
        QVERIFY(f.button(QWizard::BackButton)->isVisible());

        CUPSPrinter after;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(existing, after));
        QCOMPARE(after.DeviceURI(), before.DeviceURI());
        QCOMPARE(after.ModelInfo(), before.ModelInfo());
    }

    void schedulerAway()
    {
        const QString name = unique("retry");
        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toNamePage(f, "127.0.0.1:9100", ColorLaser, name));

        QVERIFY(m_sandbox.stop());
        QString seen;
        WizardFixture::answerMessageBox("OK", &seen);
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(seen, QStringLiteral("Error!|Can't add printer!"));
        QCOMPARE(f.wizard()->currentId(), int(W::NamePage));

        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::FinishPage));
        CUPSPrinter queue;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(name, queue));
        QCOMPARE(queue.DeviceURI(), QStringLiteral("socket://127.0.0.1:9100"));
    }

    // The package's own program prints the page; the button waits for it.
    void testPage()
    {
        LoopbackPrinter printer;
        WizardFixture f;
        QVERIFY(QDir().mkpath(f.rootDir() + "/bin"));
        QVERIFY(QFile::link(TestPaths::binaryDir() + "/tools/printertest/printertest",
                            f.rootDir() + "/bin/printertest"));
        QVERIFY(create(f, printer.deviceUri().mid(int(strlen("socket://"))), Laser, unique("testpage")));

        auto *test = f.child<QPushButton>("TestButton");
        QVERIFY(test->isEnabled());
        QTest::mouseClick(test, Qt::LeftButton);
        QVERIFY(!test->isEnabled());
        const QByteArray job = printer.waitForJob(60000);
        QVERIFY2(job.startsWith("%!PS") || job.startsWith("%PDF"), job.left(40).constData());
        QTRY_VERIFY_WITH_TIMEOUT(test->isEnabled(), 30000);
    }

    void testPageResult_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<bool>("warning");

        QTest::newRow("1: printed") << "bin/printertest" << QByteArray("exit 1") << false;
        QTest::newRow("0: failed") << "bin/printertest" << QByteArray("exit 0") << true;
        QTest::newRow("killed") << "bin/printertest" << QByteArray("kill -9 $$") << true;
        QTest::newRow("installer's copy") << "install/printertest" << QByteArray("exit 1") << false;
        QTest::newRow("none") << "" << QByteArray() << false;
    }

    // The program's exit status 1 is success.
    void testPageResult()
    {
        QFETCH(QString, program);
        QFETCH(QByteArray, script);
        QFETCH(bool, warning);

        WizardFixture f;
        const QString args = f.rootDir() + "/args";
        if (!program.isEmpty())
            QVERIFY(f.addScript(program, "#!/bin/sh\necho \"$@\" > '" + args.toUtf8() + "'\n" + script + "\n"));
        const QString name = unique("result") + QString::number(++m_queues);
        QVERIFY(create(f, "127.0.0.1:9100", ColorLaser, name));

        auto *test = f.child<QPushButton>("TestButton");
        if (warning)
            QTest::ignoreMessage(QtWarningMsg, "TestPrinter failed\n");
        QTest::mouseClick(test, Qt::LeftButton);
        QCOMPARE(test->isEnabled(), program.isEmpty());
        QTRY_VERIFY(test->isEnabled());
        QFile file(args);
        QCOMPARE(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(),
                 program.isEmpty() ? QByteArray() : name.toUtf8() + '\n');
    }

    // Options opens the driver's options; OK stores them on the scheduler.
    void options()
    {
        const QString name = unique("options");
        WizardFixture f;
        QVERIFY(create(f, "127.0.0.1:9100", Laser, name));
        auto *options = f.child<QPushButton>("OptionsButton");
        QVERIFY(options->isEnabled());
        QVERIFY(defaultChoice(name, "Duplex") != "DuplexNoTumble");

        QString title;
        QTimer driver;
        connect(&driver, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<PPDDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            driver.stop();
            title = dialog->windowTitle();
            auto *tree = dialog->findChild<PPDTreeView *>("ppdTreeView");
            auto *list = dialog->findChild<PPDOptionView *>("ppdOptionView")->findChild<QListWidget *>();
            clickItem(tree, tree->findOption("Duplex"));
            const QList<QListWidgetItem *> rows = list->findItems("Long Edge Binding", Qt::MatchExactly);
            if (!rows.isEmpty())
                clickItem(list, rows.first());
            QTest::mouseClick(dialog->findChild<QPushButton *>("OkButton"), Qt::LeftButton);
        });
        driver.start(20);
        QTest::mouseClick(options, Qt::LeftButton);
        QCOMPARE(title, QStringLiteral("'%1' Properties").arg(name));
        QCOMPARE(defaultChoice(name, "Duplex"), QStringLiteral("DuplexNoTumble"));
    }

private:
    CupsSandbox m_sandbox;
    QTemporaryDir m_temp;
    int m_queues = 0;
};

QTEST_MAIN(TestWizardCommit)
#include "tst_wizardcommit.moc"
