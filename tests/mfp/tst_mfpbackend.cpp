#include "cupssandbox.h"
#include "fakemachine.h"
#include "testpaths.h"
#include "testsupport.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QStringList jobArguments{"42", "alice", "title", "1", "opts"};

const QString mfpBackend = TestPaths::binaryDir() + QStringLiteral("/mfp/backend/mfp");
const QString fakeBackend = TestPaths::binaryDir() + QStringLiteral("/tests/mfp/mfp-fakebackend");

} // namespace

class TestMfpBackend : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;
    QTemporaryDir m_serverBin;  // with a fake backend/parallel
    FakeMachine m_machine{m_root.path()};

    // Runs the mfp backend as the scheduler would.
    TestSupport::Run runBackend(const QStringList &args, const QString &uri, const QByteArray &input,
                                const QString &serverBin)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("MFP_SYSROOT"), m_root.path());
        env.insert(QStringLiteral("CUPS_SERVERBIN"), serverBin.isNull() ? m_serverBin.path() : serverBin);
        env.insert(QStringLiteral("DEVICE_URI"), uri);
        return TestSupport::run(mfpBackend, args, env, input);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(QFileInfo(mfpBackend).isExecutable());
        QVERIFY(QDir().mkpath(m_serverBin.filePath(QStringLiteral("backend"))));
        QVERIFY(QFile::copy(fakeBackend, m_serverBin.filePath(QStringLiteral("backend/parallel"))));
    }

    // The scheduler's own backend for the device gets the job on stdin and
    // the device's URI in argv[0] and DEVICE_URI (the job in a file: see
    // scheduler()).
    void jobOnStdin()
    {
        QVERIFY(m_machine.build(QStringLiteral("mixed")));
        const QString recorded = m_serverBin.filePath(QStringLiteral("backend/parallel"));
        QByteArray payload("%!PS\n");
        for (int i = 0; i < 256; ++i)
            payload += char(i);
        QCOMPARE(runBackend(jobArguments, QStringLiteral("mfp:/dev/mfp1"), payload, QString()).status, 0);
        QCOMPARE(QString::fromUtf8(TestSupport::readFile(recorded + ".args")).split('\n', Qt::SkipEmptyParts),
                 QStringList({"parallel:/dev/lp10", "parallel:/dev/lp10"}) + jobArguments);
        QCOMPARE(TestSupport::readFile(recorded + ".data"), payload);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("uri");
        QTest::addColumn<int>("argc");
        QTest::addColumn<QString>("serverBin");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        QTest::newRow("not an mfp URI") << "parallel:/dev/lp0" << 5 << QString() << 4
                                        << "ERROR: Bad device URI \"parallel:/dev/lp0\"";
        QTest::newRow("scheduler backend missing") << "mfp:/dev/mfp0" << 5 << m_root.filePath(QStringLiteral("nothing"))
                                                   << 4 << "ERROR: Unable to run the parallel backend";
        QTest::newRow("wrong argument count") << "mfp:/dev/mfp0" << 2 << QString() << 1 << "Usage:";
    }

    void failures()
    {
        QFETCH(QString, uri);
        QFETCH(int, argc);
        QFETCH(QString, serverBin);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        QVERIFY(m_machine.build(QStringLiteral("parallel")));
        const TestSupport::Run r = runBackend(jobArguments.mid(0, argc), uri, "data", serverBin);
        QCOMPARE(r.status, exitCode);
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
    }

    // The scheduler lists the devices through the backend, prints through it,
    // and keeps a job whose device is gone until the device is back.
    void scheduler()
    {
        CupsSandbox sandbox;
        QVERIFY(sandbox.addBackend(QStringLiteral("mfp"), mfpBackend));
        QVERIFY(sandbox.addBackend(QStringLiteral("usb"), fakeBackend));
        sandbox.setEnv(QStringLiteral("MFP_SYSROOT"), m_root.path());
        QString output;
        QVERIFY2(sandbox.start(&output), qPrintable(output));
        sandbox.use();

        // "uri | info | make-and-model | device-id" of each device listed.
        QVERIFY(m_machine.build(QStringLiteral("mixed")));
        QCOMPARE(CupsSandbox::run({"lpinfo", "-l", "--include-schemes", "mfp", "-v"}, &output), 0);
        QStringList devices;
        const QRegularExpression attribute(QStringLiteral("^\\s+(info|make-and-model|device-id) = (.*)$"));
        for (const QString &line : output.split('\n')) {
            const QRegularExpressionMatch match = attribute.match(line);
            if (line.startsWith(QLatin1String("Device: uri = ")))
                devices << line.mid(14);
            else if (match.hasMatch() && !devices.isEmpty())
                devices.last() += " | " + match.captured(2);
        }
        devices.sort();
        QCOMPARE(devices, QStringList({"mfp:/dev/mfp0 | Hewlett-Packard LaserJet 4 (Parallel) | "
                                       "Hewlett-Packard LaserJet 4 | "
                                       "CLASS:PRINTER;MODEL:LaserJet 4;MANUFACTURER:Hewlett-Packard;COMMAND SET:PCL;",
                                       "mfp:/dev/mfp1 | Acme Jet 10 (Parallel) | Acme Jet 10 | "
                                       "MODEL:Jet 10;MANUFACTURER:Acme;",
                                       // the maker is not repeated
                                       "mfp:/dev/mfp2 | Acme Jet 3 (USB) | Acme Jet 3 | "
                                       "MFG:Acme;MDL:Acme Jet 3;CLS:PRINTER;"}));

        QVERIFY(m_machine.build(QStringLiteral("usb without id")));
        QCOMPARE(CupsSandbox::run({"lpadmin", "-p", "mfpqueue", "-E", "-v", "mfp:/dev/mfp0"}, &output), 0);
        const QString job = m_root.filePath(QStringLiteral("job.txt"));
        QVERIFY(TestSupport::writeFile(job, "page one\f"));
        const QStringList lp{"lp", "-d", "mfpqueue", job};
        const QString recorded = sandbox.backendDir() + QStringLiteral("/usb");
        QCOMPARE(CupsSandbox::run(lp, &output), 0);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recorded + ".data"), 30000);
        QCOMPARE(TestSupport::readFile(recorded + ".data"), QByteArray("page one\f"));
        QVERIFY(TestSupport::readFile(recorded + ".args").startsWith("usb://Acme/ColorLaser%202550?serial=CL2550X\n"
                                                        "usb://Acme/ColorLaser%202550?serial=CL2550X\n"));

        // Unplugged: the job waits and the log says why.
        QFile::remove(recorded + ".data");
        m_machine.clear();
        QCOMPARE(CupsSandbox::run(lp, &output), 0);
        const QString jobId = output.section(' ', 3, 3);
        const QRegularExpression logged(QStringLiteral("^E .*\\[Job %1\\] The printer /dev/mfp0 is not connected")
                                            .arg(jobId.section('-', -1)),
                                        QRegularExpression::MultilineOption);
        QTRY_VERIFY_WITH_TIMEOUT(sandbox.errorLog().contains(logged), 30000);
        QCOMPARE(CupsSandbox::run({"lpstat", "-o", "mfpqueue"}, &output), 0);
        QVERIFY2(output.contains(jobId), qPrintable(output));

        // Plugged in again: the scheduler's retry prints it.
        QVERIFY(m_machine.build(QStringLiteral("usb without id")));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recorded + ".data"), 60000);
        QCOMPARE(TestSupport::readFile(recorded + ".data"), QByteArray("page one\f"));
    }
};

QTEST_GUILESS_MAIN(TestMfpBackend)
#include "tst_mfpbackend.moc"
