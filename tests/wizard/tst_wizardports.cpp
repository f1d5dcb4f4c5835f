#include "AddPrinterWizard.h"
#include "cupssandbox.h"
#include "printerportlistview.h"
#include "testpaths.h"
#include "testqueue.h"
#include "testsupport.h"
#include "wizardfixture.h"

#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QTcpSocket>
#include <QtTest>

#include <unistd.h>

// A typed address on the ports page: the printer there is asked what it
// is, and a queue that already prints to it is named. ippeveprinter needs
// avahi-daemon: the test runs in a network of its own
// (tests/common/dnssd-network), where any port is free.
class TestWizardPorts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString network = qEnvironmentVariable("QW_DNSSD_NETWORK");
        if (network != QLatin1String("ready"))
            QSKIP(qPrintable("no network of the test's own: " + network));
        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
        m_printer.start(QStringLiteral("ippeveprinter"),
                        { "-p", QString::number(m_answering), "-r", "off", "-d", m_spool.path(), "-M", "Acme", "-m",
                          "ColorLaser 2550", "Acme Office" });
        QVERIFY(m_printer.waitForStarted());
        QVERIFY(QTest::qWaitFor([this] {
            QTcpSocket s;
            s.connectToHost(QStringLiteral("127.0.0.1"), m_answering);
            return s.waitForConnected(200);
        }, 10000));
    }

    void cleanupTestCase() { m_printer.kill(); m_printer.waitForFinished(); }

    void init() { TestSupport::failOnWarnings(); }

    void typedAddress_data()
    {
        // A printer answers at port 8641; nothing does at 8642.
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("queueDevice");  // of a queue "lab"; none when empty
        QTest::addColumn<QString>("kept");
        QTest::addColumn<QString>("note");
        QTest::addColumn<QString>("driver");  // preselected; unchecked when empty

        QTest::newRow("answers at /ipp/print")
            << "ipp://127.0.0.1:8641" << "" << "ipp://127.0.0.1:8641/ipp/print"
            << "The printer says it is: Acme ColorLaser 2550." << "Acme ColorLaser 2550";
        QTest::newRow("nothing answers")
            << "ipp://127.0.0.1:8642" << "" << "ipp://127.0.0.1:8642"
            << "The printer did not answer. Choose its driver yourself." << "";
        QTest::newRow("already a queue, no SNMP")
            << "socket://127.0.0.1:8642" << "socket://127.0.0.1:8642" << "socket://127.0.0.1:8642"
            << "This printer is already set up as 'lab'.\nThe printer did not answer. Choose its driver yourself."
            << "";
    }

    void typedAddress()
    {
        QFETCH(QString, typed);
        QFETCH(QString, queueDevice);
        QFETCH(QString, kept);
        QFETCH(QString, note);
        QFETCH(QString, driver);
        std::unique_ptr<TestQueue> queue;
        if (!queueDevice.isEmpty()) {
            queue = std::make_unique<TestQueue>(QStringLiteral("lab"), queueDevice, "acme-laser1610.ppd");
            QVERIFY2(queue->isMade(), qPrintable(queue->error()));
        }

        WizardFixture f;
        QVERIFY(f.load() && f.toPortsPage());
        f.typePort(typed);
        QTRY_COMPARE(f.child<PrinterPortListView>("PortsView")->selectedURI(), kept);
        QCOMPARE(f.child<QLabel>("PortNoteLabel")->text(), note);
        QVERIFY(f.child<QLabel>("PortNoteLabel")->isVisible());
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(AddPrinterWizard::DriverPage));
        const QListWidgetItem *chosen = f.child<QListWidget>("DriversList")->currentItem();
        if (!driver.isEmpty())
            QCOMPARE(chosen ? chosen->text() : QString(), driver);
    }

private:
    CupsSandbox m_sandbox;
    QTemporaryDir m_spool;
    QProcess m_printer;
    const int m_answering = 8641;
};

// Runs itself in a network of its own.
int main(int argc, char **argv)
{
    if (!TestSupport::inDnssdNetwork(argc, argv))
        return 1;
    QApplication app(argc, argv);
    TestWizardPorts test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_wizardports.moc"
