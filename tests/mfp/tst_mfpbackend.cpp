#include "cupssandbox.h"
#include "fakemachine.h"
#include "testpaths.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QStringList jobArguments{QStringLiteral("42"), QStringLiteral("alice"), QStringLiteral("title"),
                               QStringLiteral("1"), QStringLiteral("opts")};

QString mfpBackend()
{
    return TestPaths::binaryDir() + QStringLiteral("/mfp/backend/mfp");
}

QString fakeBackend()
{
    return TestPaths::binaryDir() + QStringLiteral("/tests/mfp/mfp-fakebackend");
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class TestMfpBackend : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;
    QTemporaryDir m_serverBin;
    FakeMachine m_machine{m_root.path()};
    QByteArray m_stdout, m_stderr;

    // Runs the mfp backend as the scheduler would; returns its exit code.
    int runBackend(const QStringList &args, const QString &uri, const QByteArray &input = QByteArray(),
                   const QString &serverBin = QString())
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("MFP_SYSROOT"), m_root.path());
        env.insert(QStringLiteral("CUPS_SERVERBIN"), serverBin.isNull() ? m_serverBin.path() : serverBin);
        env.insert(QStringLiteral("DEVICE_URI"), uri);
        QProcess process;
        process.setProcessEnvironment(env);
        process.start(mfpBackend(), args);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(30000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        m_stdout = process.readAllStandardOutput();
        m_stderr = process.readAllStandardError();
        return process.exitCode();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_root.isValid() && m_serverBin.isValid());
        QVERIFY(QFileInfo(mfpBackend()).isExecutable());
        QVERIFY(QDir().mkpath(m_serverBin.filePath(QStringLiteral("backend"))));
        for (const char *name : {"usb", "parallel"})
            QVERIFY(QFile::copy(fakeBackend(), m_serverBin.filePath(QStringLiteral("backend/") + QLatin1String(name))));
    }

    void listing_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("empty machine") << "empty" << QByteArray();
        QTest::newRow("parallel and usb")
            << "mixed"
            << QByteArray("direct mfp:/dev/mfp0 \"Hewlett-Packard LaserJet 4\" \"Hewlett-Packard LaserJet 4 (Parallel)\" "
                          "\"CLASS:PRINTER;MODEL:LaserJet 4;MANUFACTURER:Hewlett-Packard;COMMAND SET:PCL;\" \"\"\n"
                          "direct mfp:/dev/mfp1 \"Acme Jet 10\" \"Acme Jet 10 (Parallel)\" "
                          "\"MODEL:Jet 10;MANUFACTURER:Acme;\" \"\"\n"
                          "direct mfp:/dev/mfp2 \"Acme ColorLaser 2550\" \"Acme ColorLaser 2550 (USB)\" "
                          "\"MFG:Acme;MDL:ColorLaser 2550;CLS:PRINTER;\" \"\"\n");
        QTest::newRow("maker not repeated")
            << "bus order"
            << QByteArray("direct mfp:/dev/mfp0 \"HP LaserJet 1020\" \"HP LaserJet 1020 (USB)\" "
                          "\"MFG:Hewlett-Packard;MDL:HP LaserJet 1020;\" \"\"\n"
                          "direct mfp:/dev/mfp1 \"Acme MFP 4200\" \"Acme MFP 4200 (USB)\" "
                          "\"MFG:Acme;MDL:MFP 4200;CLS:PRINTER;\" \"\"\n"
                          "direct mfp:/dev/mfp2 \"Acme Jet 3\" \"Acme Jet 3 (USB)\" "
                          "\"MFG:Acme;MDL:Acme Jet 3;CLS:PRINTER;\" \"\"\n");
    }

    void listing()
    {
        QFETCH(QString, machine);
        QFETCH(QByteArray, expected);
        QVERIFY(m_machine.build(machine));
        QCOMPARE(runBackend({}, QString()), 0);
        QCOMPARE(m_stdout, expected);
    }

    void job_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<bool>("inFile");
        QTest::addColumn<QString>("backend");
        QTest::addColumn<QString>("deviceUri");

        QTest::newRow("usb, job on stdin") << "usb without id" << "mfp:/dev/mfp0" << false << "usb"
                                           << "usb://Acme/ColorLaser%202550?serial=CL2550X";
        QTest::newRow("parallel, job in a file") << "mixed" << "mfp:/dev/mfp1" << true << "parallel"
                                                 << "parallel:/dev/lp10";
    }

    void job()
    {
        QFETCH(QString, machine);
        QFETCH(QString, uri);
        QFETCH(bool, inFile);
        QFETCH(QString, backend);
        QFETCH(QString, deviceUri);
        QVERIFY(m_machine.build(machine));
        const QString recorded = m_serverBin.filePath(QStringLiteral("backend/") + backend);
        QFile::remove(recorded + QStringLiteral(".args"));
        QFile::remove(recorded + QStringLiteral(".data"));

        QByteArray payload("%!PS\n");
        for (int i = 0; i < 256; ++i)
            payload += char(i);
        QStringList args = jobArguments;
        if (inFile) {
            args << m_root.filePath(QStringLiteral("job.ps"));
            QFile f(args.last());
            QVERIFY(f.open(QIODevice::WriteOnly) && f.write(payload) == payload.size());
        }
        QCOMPARE(runBackend(args, uri, inFile ? QByteArray() : payload), 0);

        const QStringList expectedArgs = QStringList{deviceUri, deviceUri} + args;
        QCOMPARE(QString::fromUtf8(readFile(recorded + QStringLiteral(".args"))).split(QLatin1Char('\n'), Qt::SkipEmptyParts),
                 expectedArgs);
        QCOMPARE(readFile(recorded + QStringLiteral(".data")), payload);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<int>("argc");
        QTest::addColumn<QString>("serverBin");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        const QString none; // the fake backends
        QTest::newRow("vanished device: retry") << "usb without id" << "mfp:/dev/mfp1" << 5 << none << 6
                                                << "ERROR: The printer /dev/mfp1 is not connected";
        QTest::newRow("not an mfp URI") << "parallel" << "parallel:/dev/lp0" << 5 << none << 4
                                        << "ERROR: Bad device URI \"parallel:/dev/lp0\"";
        QTest::newRow("scheduler backend missing") << "parallel" << "mfp:/dev/mfp0" << 5
                                                   << m_root.filePath(QStringLiteral("nothing")) << 4
                                                   << "ERROR: Unable to run the parallel backend";
        QTest::newRow("wrong argument count") << "parallel" << "mfp:/dev/mfp0" << 2 << none << 1 << "Usage:";
    }

    void failures()
    {
        QFETCH(QString, machine);
        QFETCH(QString, uri);
        QFETCH(int, argc);
        QFETCH(QString, serverBin);
        QFETCH(int, exitCode);
        QFETCH(QString, message);
        QVERIFY(m_machine.build(machine));
        QCOMPARE(runBackend(jobArguments.mid(0, argc), uri, QByteArray("data"), serverBin), exitCode);
        QVERIFY2(m_stderr.contains(message.toUtf8()), m_stderr.constData());
    }

    // The scheduler lists the devices through the backend, prints through it,
    // and keeps a job whose device is gone until the device is back.
    void scheduler()
    {
        CupsSandbox sandbox;
        QVERIFY(sandbox.addBackend(QStringLiteral("mfp"), mfpBackend()));
        QVERIFY(sandbox.addBackend(QStringLiteral("usb"), fakeBackend()));
        sandbox.setEnv(QStringLiteral("MFP_SYSROOT"), m_root.path());
        QString output;
        QVERIFY2(sandbox.start(&output), qPrintable(output));
        sandbox.use();

        QVERIFY(m_machine.build(QStringLiteral("mixed")));
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpinfo"), QStringLiteral("-l"), QStringLiteral("--include-schemes"),
                                   QStringLiteral("mfp"), QStringLiteral("-v")}, &output), 0);
        QStringList uris;
        for (const QString &line : output.split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String("Device: uri = ")))
                uris << line.mid(14);
        }
        uris.sort();
        QCOMPARE(uris, QStringList({"mfp:/dev/mfp0", "mfp:/dev/mfp1", "mfp:/dev/mfp2"}));
        QVERIFY2(output.contains(QLatin1String("device-id = MFG:Acme;MDL:ColorLaser 2550;CLS:PRINTER;")),
                 qPrintable(output));

        QVERIFY(m_machine.build(QStringLiteral("usb without id")));
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-p"), QStringLiteral("mfpqueue"),
                                   QStringLiteral("-E"), QStringLiteral("-v"), QStringLiteral("mfp:/dev/mfp0")}, &output),
                 0);
        const QString job = m_root.filePath(QStringLiteral("job.txt"));
        QFile f(job);
        QVERIFY(f.open(QIODevice::WriteOnly) && f.write("page one\f") > 0);
        f.close();
        const QStringList lp{QStringLiteral("lp"), QStringLiteral("-d"), QStringLiteral("mfpqueue"), job};
        const QString recorded = sandbox.backendDir() + QStringLiteral("/usb");
        QCOMPARE(CupsSandbox::run(lp, &output), 0);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recorded + QStringLiteral(".data")), 30000);
        QCOMPARE(readFile(recorded + QStringLiteral(".data")), QByteArray("page one\f"));
        QVERIFY(readFile(recorded + QStringLiteral(".args")).startsWith(
            "usb://Acme/ColorLaser%202550?serial=CL2550X\nusb://Acme/ColorLaser%202550?serial=CL2550X\n"));

        // Unplugged: the job waits and the log says why.
        QFile::remove(recorded + QStringLiteral(".data"));
        m_machine.clear();
        QCOMPARE(CupsSandbox::run(lp, &output), 0);
        const QString jobId = output.section(QLatin1Char(' '), 3, 3);
        const QRegularExpression logged(QStringLiteral("^E .*\\[Job %1\\] The printer /dev/mfp0 is not connected")
                                            .arg(jobId.section(QLatin1Char('-'), -1)),
                                        QRegularExpression::MultilineOption);
        QTRY_VERIFY_WITH_TIMEOUT(sandbox.errorLog().contains(logged), 30000);
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpstat"), QStringLiteral("-o"), QStringLiteral("mfpqueue")}, &output), 0);
        QVERIFY2(output.contains(jobId), qPrintable(output));

        // Plugged in again: the scheduler's retry prints it.
        QVERIFY(m_machine.build(QStringLiteral("usb without id")));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(recorded + QStringLiteral(".data")), 60000);
        QCOMPARE(readFile(recorded + QStringLiteral(".data")), QByteArray("page one\f"));
    }
};

QTEST_GUILESS_MAIN(TestMfpBackend)
#include "tst_mfpbackend.moc"
