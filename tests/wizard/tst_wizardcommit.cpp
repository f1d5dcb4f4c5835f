#include "AddPrinterWizard.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "driverstep.h"
#include "ippfaultproxy.h"
#include "loopbackprinter.h"
#include "papersize.h"
#include "printercreator.h"
#include "testpaths.h"
#include "testsupport.h"
#include "wizardfixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTcpServer>
#include <QtTest>

#include <signal.h>

using W = AddPrinterWizard;

namespace {

const QString Laser = QStringLiteral("Acme Laser 1610 Series (en)");
const QString ColorLaser = QStringLiteral("Acme ColorLaser 2550");

QString unique(const char *tag)
{
    return QStringLiteral("wiz%1_%2").arg(QCoreApplication::applicationPid()).arg(QLatin1String(tag));
}

// Loads the wizard and goes through a port typed by hand ("socket://" +
// hostPort) and a driver to the name page, where name is typed.
bool toNamePage(WizardFixture &f, const QString &hostPort, const QString &driver, const QString &name)
{
    if (!f.load() || !f.toPortsPage() || !f.typePort("socket://" + hostPort) || !f.click(QWizard::NextButton)
        || !f.toNamePage(driver))
        return false;
    auto *edit = f.child<QLineEdit>("NameEdit");
    edit->selectAll();
    QTest::keyClicks(edit, name);
    return edit->text() == name;
}

bool create(WizardFixture &f, const QString &hostPort, const QString &driver, const QString &name)
{
    return toNamePage(f, hostPort, driver, name) && f.click(QWizard::NextButton)
        && f.wizard()->currentId() == W::FinishPage;
}

} // namespace

// The wizard creating queues on a scheduler of its own: the default printer
// and the scheduler's life are this test's to change.
class TestWizardCommit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
        // Nothing answers SNMP for the typed socket ports: no need to wait.
        qputenv("NETDISCOVERY_SNMP_BACKEND", "none");
    }

    void init() { TestSupport::failOnWarnings(); }

    void cleanup()
    {
        // A failed row may leave the scheduler stopped or the client at a
        // proxy that is gone.
        if (const qint64 pid = schedulerPid())
            ::kill(pid, SIGCONT);
        if (!m_sandbox.server().isEmpty())
            m_sandbox.use();
        PrinterCreator::m_LpadminProgram = QStringLiteral("lpadmin");
        qunsetenv("LC_PAPER");
        qunsetenv("QUEUEWIZ_TESTPAGE_WAIT");
    }

    // The finish page's test page comes from the package's own program and
    // reaches the printer; the button waits for it. Closing the window now
    // keeps the queue.
    void createsTheQueue()
    {
        LoopbackPrinter printer;
        const QString name = unique("office");
        WizardFixture f;
        QVERIFY(QDir().mkpath(f.rootDir() + "/bin"));
        QVERIFY(QFile::link(TestPaths::binaryDir() + "/tools/printertest/printertest",
                            f.rootDir() + "/bin/printertest"));
        QVERIFY(toNamePage(f, printer.deviceUri().mid(int(strlen("socket://"))), Laser, name));
        QTest::keyClicks(f.child<QLineEdit>("DescriptionEdit"), "Laser & co");
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::FinishPage));

        CUPSPrinter queue;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(name, queue));
        QCOMPARE(queue.ModelInfo(), QStringLiteral("Acme Laser 1610 Series"));
        QCOMPARE(queue.Info(), QStringLiteral("Laser & co"));
        QCOMPARE(queue.State(), 3);
        QVERIFY(queue.AcceptingJobs());
        QCOMPARE(CUPSManager::m_CUPSManagerInstance.defaultPrinterName(), name);

        const QString summary = f.child<QLabel>("FinishText")->text();
        QVERIFY2(summary.contains("<b>" + name + "</b>") && summary.contains("Model: Acme Laser 1610 Series<br>")
                     && summary.contains("Port: " + printer.deviceUri() + "</p>"),
                 qPrintable(summary));
        // With the queue made, there is no way back and nothing to cancel.
        QVERIFY(!f.button(QWizard::BackButton)->isVisible() && !f.button(QWizard::CancelButton)->isVisible());

        auto *test = f.child<QPushButton>("TestButton");
        QTest::mouseClick(test, Qt::LeftButton);
        QVERIFY(!test->isEnabled());
        const QByteArray job = printer.waitForJob(60000);
        QVERIFY2(job.startsWith("%!PS") || job.startsWith("%PDF"), job.left(40).constData());
        QTRY_VERIFY_WITH_TIMEOUT(test->isEnabled(), 30000);
        QCOMPARE(f.child<QLabel>("TestStatusLabel")->text(), QStringLiteral("The test page has been printed."));

        // The program is looked for at each click, bin/ before the
        // installer's copy; it gets the queue name, and its exit status 1 is
        // success.
        QVERIFY(QFile::remove(f.rootDir() + "/bin/printertest"));
        const QString args = f.rootDir() + "/args";
        for (const char *program : { "", "install/printertest", "bin/printertest" }) {
            const QByteArray status = program[0] == 'b' ? "0" : "1";
            if (*program)
                QVERIFY(f.addScript(program, "#!/bin/sh\necho \"$@\" > '" + args.toUtf8() + "'\nexit " + status + "\n"));
            if (status == "0")
                QTest::ignoreMessage(QtWarningMsg, "TestPrinter failed\n");
            QFile::remove(args);
            QTest::mouseClick(test, Qt::LeftButton);
            QCOMPARE(test->isEnabled(), !*program);
            QTRY_VERIFY(test->isEnabled());
            QCOMPARE(TestSupport::readFile(args), *program ? name.toUtf8() + '\n' : QByteArray());
        }
        QTest::keyClick(f.wizard(), Qt::Key_Escape);
        QCOMPARE(f.wizard()->result(), int(QDialog::Accepted));
    }

    void paperSize_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QString>("paper");
        QTest::addColumn<QString>("faults");  // as for refused()

        QTest::newRow("Letter country, A4 driver") << QByteArray("es_MX.UTF-8") << ColorLaser << "Letter" << "";
        QTest::newRow("A4 country, Letter driver") << QByteArray("de_DE.UTF-8") << Laser << "A4" << "";
        QTest::newRow("A4 country, A4 driver") << QByteArray("de_DE.UTF-8") << ColorLaser << "A4" << "";
        // lpadmin's upload is the fourth CUPS-Add-Modify-Printer, the
        // wizard's own upload of the changed driver the fifth.
        QTest::newRow("paper and default refused")
            << QByteArray("es_MX.UTF-8") << ColorLaser << "Letter" << "16387 4 F 1280;16387 5 F 1280;16394 1 F 1025";
    }

    // lpadmin runs only when the driver's default is not the country's
    // paper, and reaches the scheduler the wizard uses even when the
    // environment names none. The finish page says what did not take effect.
    void paperSize()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, driver);
        QFETCH(QString, paper);
        QFETCH(QString, faults);

        // The scheduler may give a new queue its own paper size rather than
        // the driver's: a queue made the way the wizard makes it tells.
        const QString probe = unique("probe");
        CUPSPrinter probeQueue(probe);
        probeQueue.setDeviceURI("socket://127.0.0.1:9");
        probeQueue.setState(3);
        probeQueue.setPPDName(driver == Laser ? "acme-laser1610.ppd" : "acme-colorlaser2550.ppd");
        QVERIFY(CUPSManager::m_CUPSManagerInstance.addPrinter(probeQueue));
        const QString driverDefault = defaultChoice(probe, "PageSize");
        CupsSandbox::run({ "lpadmin", "-x", probe });
        QVERIFY(driverDefault == "Letter" || driverDefault == "A4");

        WizardFixture f;
        const QString log = f.rootDir() + "/lpadmin.log";
        QVERIFY(f.addScript("lpadmin", "#!/bin/sh\necho \"$@\" >> '" + log.toUtf8() + "'\nexec lpadmin \"$@\"\n"));
        PrinterCreator::m_LpadminProgram = f.rootDir() + "/lpadmin";

        qunsetenv("LC_ALL");
        qputenv("LC_PAPER", locale);
        QCOMPARE(QString::fromLatin1(defaultPaperSize()), paper);
        qunsetenv("CUPS_SERVER");
        IppFaultProxy proxy(m_sandbox.port());
        QVERIFY(useProxy(proxy, faults));
        const QString name = unique("paper") + QString::number(++m_queues);
        const bool created = create(f, "127.0.0.1:9", driver, name);
        m_sandbox.use();
        QVERIFY(created);
        const QString summary = f.child<QLabel>("FinishText")->text();
        QCOMPARE(summary.contains("It is now your default printer."), faults.isEmpty());
        QCOMPARE(summary.contains("Its paper size could not be set to " + paper), !faults.isEmpty());
        QCOMPARE(CUPSManager::m_CUPSManagerInstance.defaultPrinterName() == name, faults.isEmpty());

        const QString lpadminCall = QStringLiteral("-p %1 -o PageSize=%2 -o PageRegion=%2\n").arg(name, paper);
        QCOMPARE(QString::fromUtf8(TestSupport::readFile(log)), driverDefault == paper ? QString() : lpadminCall);
        QCOMPARE(defaultChoice(name, "PageSize"), faults.isEmpty() ? paper : driverDefault);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("existing");
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("typed");
        // "kill", or proxy rules "OPERATION NTH ACTION [STATUS]", separated by
        // ";": the nth request of that operation fails with STATUS (F) or
        // finds the scheduler stopped (P).
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("message");

        const QString inUse = QStringLiteral("Printer '%1' already exists! Choose another name.");
        const QString notAdded = QStringLiteral("Can't add printer!");
        QTest::newRow("letter case aside") << unique("Case") << "acme-laser1610.ppd" << unique("cASE") << "" << inUse;
        QTest::newRow("another vendor's driver")
            << unique("globex") << "globex-pagewriter40.ppd" << unique("globex") << "" << inUse;
        // The first listing is the ports page's, looking for a queue on the port.
        QTest::newRow("name check answered busy")
            << unique("lab") << "acme-laser1610.ppd" << unique("lab") << "16386 2 F 1287"
            << "Can't check whether the name is free: IPP_PRINTER_BUSY - Printer busy. Try again.";
        QTest::newRow("scheduler killed") << "" << "" << unique("killed") << "kill"
                                          << "Can't check whether the name is free: The printing service at %1 "
                                             "does not answer. Try again.";
        QTest::newRow("driver refused") << "" << "" << unique("driver") << "16387 3 F 1280" << notAdded;
        QTest::newRow("driver refused, classes unlisted")
            << "" << "" << unique("unlisted") << "16387 3 F 1280;16389 1 F 1280" << notAdded;
        QTest::newRow("scheduler stopped") << "" << "" << unique("stopped") << "16387 2 P" << notAdded;
    }

    // The name page stays and nothing is overwritten; once the scheduler
    // is back the same page goes on, with no queue half-made.
    void refused()
    {
        QFETCH(QString, existing);
        QFETCH(QString, ppd);
        QFETCH(QString, typed);
        QFETCH(QString, fault);
        QFETCH(QString, message);

        if (!existing.isEmpty()) {
            QCOMPARE(CupsSandbox::run({ "lpadmin", "-p", existing, "-E", "-v", "socket://127.0.0.1:9", "-m", ppd,
                                        "-L", "Lab", "-D", "Old" }), 0);
        }
        const QString before = queueState(existing);
        const QString defaultBefore = CUPSManager::m_CUPSManagerInstance.defaultPrinterName();
        IppFaultProxy proxy(m_sandbox.port());
        QVERIFY(fault == "kill" || useProxy(proxy, fault));
        WizardFixture f;
        QVERIFY(toNamePage(f, "127.0.0.1:9100", ColorLaser, typed));
        const QString server = m_sandbox.server();
        if (fault == "kill")
            QVERIFY(schedulerPid() > 0 && ::kill(schedulerPid(), SIGKILL) == 0 && QTest::qWaitFor([this] { return !m_sandbox.isRunning(); }));
        QString seen;
        TestSupport::answerMessageBox("OK", &seen, 20000);
        QElapsedTimer waited;
        waited.start();
        QVERIFY(f.click(QWizard::NextButton));
        // A hang bound, not a speed measure: one answer timeout and a bit.
        QVERIFY2(waited.elapsed() < 15000, qPrintable(QString::number(waited.elapsed())));
        QCOMPARE(seen, "Error!|" + (message.contains("%1") ? message.arg(existing.isEmpty() ? server : typed) : message));
        QCOMPARE(f.wizard()->currentId(), int(W::NamePage));

        if (!existing.isEmpty()) {
            if (fault.isEmpty())
                QCOMPARE(f.wizard()->focusWidget(), f.child<QLineEdit>("NameEdit"));
            QCOMPARE(queueState(existing), before);
            QCOMPARE(CUPSManager::m_CUPSManagerInstance.defaultPrinterName(), defaultBefore);
            return;
        }
        CUPSPrinter after;
        if (fault == "kill") {
            QVERIFY(restartScheduler() && m_sandbox.server() == server);
        } else {
            ::kill(schedulerPid(), SIGCONT);
            // What the failure left must not be there, whatever the
            // scheduler still does with the request it had taken.
            QVERIFY(fault.endsWith('P') || !CUPSManager::m_CUPSManagerInstance.findPrinter(typed, after));
        }
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::FinishPage));
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(typed, after));
        QCOMPARE(after.DeviceURI(), QStringLiteral("socket://127.0.0.1:9100"));
        QCOMPARE(after.ModelInfo(), QStringLiteral("Acme ColorLaser 2550"));
    }

    // A scheduler that is gone is looked for with the window up, and found
    // once it is back; one that takes connections and never answers gets
    // its explanation and Retry after the answer timeout.
    void driversWithoutScheduler_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("gone, then back") << int(SIGKILL);
        QTest::newRow("hung") << int(SIGSTOP);
    }

    void driversWithoutScheduler()
    {
        QFETCH(int, signal);
        QVERIFY(schedulerPid() > 0 && ::kill(schedulerPid(), signal) == 0);
        QVERIFY(signal != SIGKILL || QTest::qWaitFor([this] { return !m_sandbox.isRunning(); }));
        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(f.toPortsPage() && f.typePort("socket://127.0.0.1:9100") && f.click(QWizard::NextButton));
        auto *list = f.child<QListWidget>("DriversList");
        auto *problem = f.child<QLabel>("DriversProblemLabel");
        auto *retry = f.child<QPushButton>("RetryDriversButton");
        QCOMPARE(list->count(), 0);
        QVERIFY(problem->isVisible() && !f.nextEnabled());
        if (signal == SIGKILL) {
            QCOMPARE(problem->text(), QStringLiteral("Looking for the printing service..."));
            QVERIFY(!retry->isVisible());
            QVERIFY(restartScheduler());
        } else {
            QCOMPARE(problem->text(), QStringLiteral("The printing service does not answer"));
            ::kill(schedulerPid(), SIGCONT);
            QTest::mouseClick(retry, Qt::LeftButton);
        }
        QTRY_VERIFY(WizardFixture::texts(list->model()).contains(Laser));
        QVERIFY(!problem->isVisible());
        QVERIFY(f.toNamePage(Laser));
    }

    // A test page the scheduler could not print is told with its reasons;
    // one still waiting after the wait may be canceled.
    void testPageFollowed_data()
    {
        QTest::addColumn<QByteArray>("backend");
        QTest::addColumn<QString>("said");
        QTest::newRow("device fails") << QByteArray("echo 'ERROR: Out of toner' >&2; exit 1")
                                      << "The test page did not print: Out of toner";
        QTest::newRow("queue stopped") << QByteArray() << "The test page has not printed yet: Paused";
    }

    void testPageFollowed()
    {
        QFETCH(QByteArray, backend);
        QFETCH(QString, said);
        const QString name = unique(backend.isEmpty() ? "paused" : "failing");
        WizardFixture f;
        QVERIFY(QDir().mkpath(f.rootDir() + "/bin"));
        QVERIFY(QFile::link(TestPaths::binaryDir() + "/tools/printertest/printertest",
                            f.rootDir() + "/bin/printertest"));
        QVERIFY(create(f, "127.0.0.1:9", Laser, name));
        QStringList admin{ "lpadmin", "-p", name };
        if (backend.isEmpty()) {
            QCOMPARE(CupsSandbox::run({ "cupsdisable", "-r", "Paused", name }), 0);
        } else {
            const QString script = f.rootDir() + "/failing";
            QVERIFY(f.addScript("failing", "#!/bin/sh\n[ $# = 0 ] && exit 0\n" + backend + "\n"));
            QVERIFY(m_sandbox.addBackend("failing", script));
            admin << "-v" << "failing:/" << "-o" << "printer-error-policy=abort-job";
            QCOMPARE(CupsSandbox::run(admin), 0);
        }
        qputenv("QUEUEWIZ_TESTPAGE_WAIT", "3");
        auto *test = f.child<QPushButton>("TestButton");
        auto *status = f.child<QLabel>("TestStatusLabel");
        auto *cancel = f.child<QPushButton>("CancelTestJobButton");
        QTest::mouseClick(test, Qt::LeftButton);
        QVERIFY(!test->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(test->isEnabled(), 30000);
        QVERIFY2(status->text().startsWith(said), qPrintable(status->text()));
        QCOMPARE(cancel->isVisible(), backend.isEmpty());
        if (cancel->isVisible()) {
            QTest::mouseClick(cancel, Qt::LeftButton);
            QCOMPARE(status->text(), QStringLiteral("The test page was canceled."));
            QVERIFY(!cancel->isVisible());
        }
    }

    // A printer reached over IPP is offered without the package's driver
    // when none fits; a queue whose printer gave nothing to build one from
    // is not left behind, one whose printer answers gets its driver.
    void driverless()
    {
        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        const QString nowhere = "ipp://127.0.0.1:" + QString::number(probe.serverPort());
        probe.close();
        const QString name = unique("nowhere");
        WizardFixture f;
        QVERIFY(f.load() && f.toPortsPage() && f.typePort(nowhere) && f.click(QWizard::NextButton));
        auto *list = f.child<QListWidget>("DriversList");
        QTRY_VERIFY(list->count() > 1 && list->currentItem());
        QCOMPARE(list->currentItem()->text(), QStringLiteral("Driverless (IPP Everywhere)"));
        QCOMPARE(list->currentRow(), list->count() - 1);
        QVERIFY(f.click(QWizard::NextButton));
        auto *edit = f.child<QLineEdit>("NameEdit");
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QString seen;
        TestSupport::answerMessageBox("OK", &seen, 30000);
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(seen, QStringLiteral("Error!|Can't add printer!"));
        QCOMPARE(f.wizard()->currentId(), int(W::NamePage));
        CUPSPrinter queue;
        QVERIFY(!CUPSManager::m_CUPSManagerInstance.findPrinter(name, queue));

        // The sandbox's own queue is a printer that answers over IPP.
        const QString source = unique("source");
        QCOMPARE(CupsSandbox::run({ "lpadmin", "-p", source, "-E", "-v", "socket://127.0.0.1:9", "-m",
                                    "acme-laser1610.ppd" }), 0);
        CUPSPrinter printer(unique("everywhere"));
        printer.setDeviceURI("ipp://localhost:" + QString::number(m_sandbox.port()) + "/printers/" + source);
        printer.setState(IPP_PSTATE_IDLE);
        printer.setDriver(DriverStep::driverlessDriver());
        PrinterCreator creator(CUPSManager::m_CUPSManagerInstance);
        const PrinterCreator::Result made = creator.commit(printer, "A4");
        QVERIFY2(made.outcome == PrinterCreator::Result::Created, qPrintable(made.reason));
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(printer.Name(), queue));
        QVERIFY2(queue.ModelInfo().contains("IPP Everywhere"), qPrintable(queue.ModelInfo()));
    }

private:
    // On the port it had, so that the client finds it again.
    bool restartScheduler()
    {
        QString error;
        qputenv("CUPS_SANDBOX_PORT", QByteArray::number(m_sandbox.port()));
        const bool restarted = m_sandbox.start(&error);
        qunsetenv("CUPS_SANDBOX_PORT");
        if (!restarted)
            qWarning("%s", qPrintable(error));
        return restarted;
    }

    // Points the client at proxy, which applies the rules of faults; none
    // leaves the client at the scheduler.
    bool useProxy(IppFaultProxy &proxy, const QString &faults) const
    {
        if (faults.isEmpty())
            return true;
        if (!proxy.start())
            return false;
        cupsSetServer(proxy.server().toUtf8().constData());
        for (const QString &rule : faults.split(';')) {
            const QStringList word = rule.split(' ');
            const bool fail = word.value(2) == "F";
            proxy.fault(word.value(0).toInt(), word.value(1).toInt(),
                        fail ? IppFaultProxy::Fail : IppFaultProxy::StopScheduler,
                        fail ? word.value(3).toInt() : int(schedulerPid()));
        }
        return true;
    }

    qint64 schedulerPid() const
    {
        return TestSupport::readFile(m_sandbox.directory() + "/cupsd.pid").trimmed().toLongLong();
    }

    QByteArray queuePPD(const QString &name) const
    {
        return TestSupport::readFile(m_sandbox.directory() + "/etc/ppd/" + name + ".ppd");
    }

    // The default choice of an option in the queue's driver.
    QString defaultChoice(const QString &queue, const QString &keyword) const
    {
        const QRegularExpression line("^\\*Default" + keyword + ": *(\\S+)", QRegularExpression::MultilineOption);
        return line.match(QString::fromLatin1(queuePPD(queue))).captured(1);
    }

    // What the user set up in a queue: port, location, description, driver.
    QString queueState(const QString &name) const
    {
        CUPSPrinter queue;
        if (name.isEmpty() || !CUPSManager::m_CUPSManagerInstance.findPrinter(name, queue))
            return QString();
        return QStringList{ queue.DeviceURI(), queue.Location(), queue.Info(), QString::fromLatin1(queuePPD(name)) }
            .join('|');
    }

    CupsSandbox m_sandbox;
    int m_queues = 0;
};

QTEST_MAIN(TestWizardCommit)
#include "tst_wizardcommit.moc"
