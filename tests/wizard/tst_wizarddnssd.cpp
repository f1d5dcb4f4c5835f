#include "AddPrinterWizard.h"
#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "testpaths.h"
#include "testsupport.h"
#include "wizardfixture.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QtTest>

#include <unistd.h>

using W = AddPrinterWizard;

// Printers that announce themselves over DNS-SD through a real avahi-daemon,
// in a network of the test's own (tests/common/dnssd-network): an IPP
// printer on a port of its own, two queues that a print server shares, and
// a printer that offers only IPPS. All are found; one of each kind is added
// with the wizard, and the test page arrives there, not at another.
class TestWizardDnsSd : public QObject
{
    Q_OBJECT

    CupsSandbox m_scheduler;  // the wizard's
    CupsSandbox m_server;     // shares "front" and "back"
    QTemporaryDir m_dir;
    // Where the server's queues print. A file: device would do, but the
    // scheduler writes nothing there for a job that needs no filter, as a
    // job that another scheduler has filtered already.
    QMap<QString, LoopbackPrinter *> m_served;
    QMap<QString, int> m_jobs;

    void startPrinter(const QString &program, const QStringList &args)
    {
        auto *p = new QProcess(this);
        p->setStandardOutputFile(m_dir.filePath(QStringLiteral("printers.log")), QIODevice::Append);
        p->setProcessChannelMode(QProcess::MergedChannels);
        p->start(program, args);
        QVERIFY2(p->waitForStarted(), qPrintable(program));
    }

    // The jobs a printer got: kept in its directory, or served by the server.
    qint64 received(const QString &printer) const
    {
        return m_served.contains(printer) ? m_jobs.value(printer)
                                          : QDir(m_dir.filePath(printer)).entryList(QDir::Files).size();
    }

private slots:
    void initTestCase()
    {
        const QString network = qEnvironmentVariable("QW_DNSSD_NETWORK");
        if (network != QLatin1String("ready"))
            QSKIP(qPrintable("no DNS-SD network of the test's own: " + network));
        qputenv("NETDISCOVERY_SNMP_BACKEND", "none");
        // The printers announce themselves while the schedulers start.
        QVERIFY(QDir().mkpath(m_dir.filePath("jet")) && QDir().mkpath(m_dir.filePath("secure")));
        const QStringList formats{ "-f", "application/postscript,application/pdf", "-k", "-M", "Acme" };
        startPrinter("ippeveprinter", QStringList{ "-p", "8631", "-d", m_dir.filePath("jet"), "-m", "Jet 9", "Acme Jet" } + formats);
        // Announced by hand, as IPPS alone.
        startPrinter("ippeveprinter",
                     QStringList{ "-p", "8632", "-r", "off", "-d", m_dir.filePath("secure"), "-m", "Secure 5", "Acme Secure" } + formats);
        startPrinter("avahi-publish", { "-s", "Acme Secure", "_ipps._tcp", "8632", "rp=ipp/print", "ty=Acme Secure 5" });
        QString error;
        m_server.setBrowsing();
        QVERIFY2(m_server.start(&error), qPrintable(error));
        m_server.use();
        for (const QString &queue : { QStringLiteral("front"), QStringLiteral("back") }) {
            m_served[queue] = new LoopbackPrinter(this);
            connect(m_served[queue], &LoopbackPrinter::jobReceived, this, [this, queue] { ++m_jobs[queue]; });
            QCOMPARE(CupsSandbox::run({ "lpadmin", "-p", queue, "-E", "-v", m_served[queue]->deviceUri(), "-m",
                                        "acme-laser1610.ppd", "-D", queue == "front" ? "Front desk" : "Back office",
                                        "-o", "printer-is-shared=true" }),
                     0);
        }
        QVERIFY2(m_scheduler.start(&error), qPrintable(error));
        m_scheduler.use();

        // Until every service is announced (a printer's IPPS may come before its IPP).
        const QRegularExpression all("ipp://192.0.2.1:8631/.*\n.*ipps://192.0.2.1:8632/.*printers/back.*printers/front",
                                     QRegularExpression::DotMatchesEverythingOption);
        const QString program = TestPaths::binaryDir() + "/tools/netdiscovery/netdiscovery";
        QString found;
        for (int i = 0; i < 10 && !all.match(found).hasMatch(); ++i)
            found = TestSupport::run(program, {}).out;
        QVERIFY2(all.match(found).hasMatch(), qPrintable(found));
    }

    void addAndPrint_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("other");

        const QString server = "ipp://192.0.2.1:" + QString::number(m_server.port()) + "/printers/";
        QTest::newRow("IPP on a port of its own") << "Acme Jet 9" << "ipp://192.0.2.1:8631/ipp/print" << "jet" << "secure";
        QTest::newRow("a server's queue") << "Front desk @ qwtest" << server + "front" << "front" << "back";
        QTest::newRow("IPPS alone") << "Acme Secure 5" << "ipps://192.0.2.1:8632/ipp/print" << "secure" << "jet";
    }

    void addAndPrint()
    {
        QFETCH(QString, entry);
        QFETCH(QString, uri);
        QFETCH(QString, target);
        QFETCH(QString, other);

        WizardFixture f;
        for (const char *program : { "tools/netdiscovery/netdiscovery", "tools/printertest/printertest" })
            QVERIFY(QDir().mkpath(f.rootDir() + "/bin")
                    && QFile::link(TestPaths::binaryDir() + '/' + program,
                                   f.rootDir() + "/bin/" + QFileInfo(program).fileName()));
        QVERIFY(f.load() && f.click(QWizard::NextButton));
        f.clickRadio("NetworkButton");
        // Four printers, a print server's two queues among them; they may
        // still be announcing themselves.
        auto *list = f.child<QComboBox>("NetworkList");
        for (int i = 0; i < 10 && list->count() < 4; ++i)
            QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
        QCOMPARE(list->count(), 4);
        list->setCurrentIndex(list->findText("192.0.2.1 (IPP)  " + entry));
        QVERIFY(list->currentIndex() >= 0);
        f.wizard()->OnNetworkPrinterChanged(list->currentIndex());
        QCOMPARE(f.wizard()->portURI(), uri);

        QVERIFY(f.click(QWizard::NextButton) && f.toNamePage("Acme Laser 1610 Series (en)"));
        f.child<QLineEdit>("NameEdit")->setText("dnssd_" + target);
        QVERIFY(f.click(QWizard::NextButton) && f.wizard()->currentId() == W::FinishPage);
        QCOMPARE(f.wizard()->newPrinter().DeviceURI(), uri);

        const qint64 before = received(target);
        const qint64 otherBefore = received(other);
        QTest::mouseClick(f.child<QPushButton>("TestButton"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(received(target) > before, 60000);
        QCOMPARE(received(other), otherBefore);
    }
};

// Runs itself in a network of its own.
int main(int argc, char **argv)
{
    if (!TestSupport::inDnssdNetwork(argc, argv))
        return 1;
    QApplication app(argc, argv);
    TestWizardDnsSd test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_wizarddnssd.moc"
