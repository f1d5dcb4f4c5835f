#include "cupssandbox.h"
#include "fakemachine.h"
#include "mfp.h"
#include "testpaths.h"
#include "testsupport.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

namespace {

const QStringList jobArguments{"42", "alice", "title", "1", "opts"};

const QString mfpBackend = TestPaths::binaryDir() + QStringLiteral("/mfp/backend/mfp");
const QString fakeBackend = TestPaths::binaryDir() + QStringLiteral("/tests/mfp/mfp-fakebackend");

// type|make|model|URI|device ID
QString describe(const mfp_device &d)
{
    return QStringLiteral("%1|%2|%3|%4|%5").arg(d.type).arg(QString::fromUtf8(d.make), QString::fromUtf8(d.model),
                                                           QString::fromUtf8(d.uri), QString::fromUtf8(d.device_id));
}

bool untouched(const mfp_device &d)
{
    const auto *bytes = reinterpret_cast<const unsigned char *>(&d);
    return std::all_of(bytes, bytes + sizeof d, [](unsigned char c) { return c == 0xab; });
}

} // namespace

// The device library and the backend that prints through it.
class TestMfp : public QObject
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
        env.insert(QStringLiteral("CUPS_SERVERBIN"), serverBin.isNull() ? m_serverBin.path() : serverBin);
        env.insert(QStringLiteral("DEVICE_URI"), uri);
        return TestSupport::run(mfpBackend, args, env, input);
    }

private slots:
    void initTestCase()
    {
        qputenv("MFP_SYSROOT", QFile::encodeName(m_root.path()));
        QVERIFY(QFileInfo(mfpBackend).isExecutable());
        QVERIFY(QDir().mkpath(m_serverBin.filePath(QStringLiteral("backend"))));
        QVERIFY(QFile::copy(fakeBackend, m_serverBin.filePath(QStringLiteral("backend/parallel"))));
    }

    void records_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("empty machine") << "empty" << QStringList();
        QTest::newRow("no printer among the devices") << "no printer" << QStringList();
        QTest::newRow("usb, 1284 ID before the USB strings")
            << "usb with id" << QStringList{"2|Acme|Laser 1610|usb://Acme/Laser%201610?serial=ID456|"
                                            "MFG:Acme;MDL:Laser 1610;CMD:PCL,PJL;CLS:PRINTER;SN:ID456;"};
        QTest::newRow("usb by bus path, one record per device; last without usblp")
            << "bus order"
            << QStringList{"2|Hewlett-Packard|HP LaserJet 1020|usb://HP/LaserJet%201020?serial=HP1020&interface=1|"
                           "MFG:Hewlett-Packard;MDL:HP LaserJet 1020;",
                           "2|Acme|MFP 4200|usb://Acme/MFP%204200?serial=M42|MFG:Acme;MDL:MFP 4200;CLS:PRINTER;",
                           "2|Acme|Acme Jet 3|usb://Acme/Jet%203|MFG:Acme;MDL:Acme Jet 3;CLS:PRINTER;"};
        QTest::newRow("parallel ports by number, then usb")
            << "mixed"
            << QStringList{"1|Hewlett-Packard|LaserJet 4|parallel:/dev/lp2|"
                           "CLASS:PRINTER;MODEL:LaserJet 4;MANUFACTURER:Hewlett-Packard;COMMAND SET:PCL;",
                           "1|Acme|Jet 10|parallel:/dev/lp10|MODEL:Jet 10;MANUFACTURER:Acme;",
                           "2|Acme|Acme Jet 3|usb://Acme/Jet%203|MFG:Acme;MDL:Acme Jet 3;CLS:PRINTER;"};
    }

    void records()
    {
        QFETCH(QString, machine);
        QFETCH(QStringList, expected);
        QVERIFY(m_machine.build(machine));
        const int n = int(expected.size());

        QCOMPARE(mfp_get_devices(nullptr, -1), n);
        // A spare record on each side of what may be filled stays untouched.
        mfp_device buffer[5];
        memset(buffer, 0xab, sizeof buffer);
        QCOMPARE(mfp_get_devices(&buffer[1], -1), 0);
        QCOMPARE(mfp_get_devices(&buffer[1], qMax(n - 1, 0)), qMax(n - 1, 0));
        QVERIFY(untouched(buffer[0]) && untouched(buffer[n]));
        QCOMPARE(mfp_get_devices(&buffer[1], 3), n);
        QVERIFY(untouched(buffer[0]) && untouched(buffer[n + 1]));
        QStringList actual;
        for (int i = 1; i <= n; ++i)
            actual << describe(buffer[i]);
        QCOMPARE(actual, expected);
    }

    // Fields: 2 model, 3 URI, 4 device ID.
    void cut_data()
    {
        QTest::addColumn<QByteArray>("id");
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("expected");

        QTest::newRow("long model cut to its field")
            << "MFG:Acme;MDL:" + QByteArray(100, 'M') + ";" << 2 << QString(MFP_MODEL_SIZE - 1, QLatin1Char('M'));
        QTest::newRow("model cut between UTF-8 characters")
            << "MFG:Acme;MDL:" + QString(40, QChar(0xdc)).toUtf8() + ";" << 2 << QString(31, QChar(0xdc));
        QTest::newRow("quotes, control characters, bytes that are not UTF-8 and a line end behind one")
            << QByteArray("MFG:Acme;MDL:Laser \"Pro\"\x01 2\xc3\n3\xff\xe0\x80\x8a\xc2\x85" "4;") << 2 << "Laser 'Pro' 234";
        QTest::newRow("long ID keeps what drivers are matched by")
            << "SN:" + QByteArray(200, 'x') + ";MFG:Acme;CMD:PCL;VER:1;MDL:Laser 1610;" << 4
            << "MFG:Acme;MDL:Laser 1610;CMD:PCL;";
        QTest::newRow("URI that does not fit is left empty") << "MFG:Acme;MDL:" + QByteArray("A ").repeated(31) + ";"
                                                             << 3 << "";
        QTest::newRow("no maker: first word of the model") << QByteArray("MDL:Jet 5 Pro;") << 3
                                                           << "usb://Jet/5%20Pro?serial=S1";
    }

    void cut()
    {
        QFETCH(QByteArray, id);
        QFETCH(int, field);
        QFETCH(QString, expected);
        m_machine.clear();
        m_machine.addUsbPrinter(QStringLiteral("3-1"), {}, {}, QStringLiteral("S1"), id);
        mfp_device device;
        QCOMPARE(mfp_get_devices(&device, 1), 1);
        QCOMPARE(describe(device).section(QLatin1Char('|'), field, field), expected);
    }

    // OEM.ini's values as the device library reads them; a null value:
    // the key is not found.
    void lookUp_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("value");
        auto row = [](const char *name, const QByteArray &content, const QByteArray &value, int size = 600) {
            QTest::newRow(name) << content << size << value;
        };
        row("anywhere in the line, rest of it", "VENDOR=Acme\n# set SNMP_COMMUNITY=our lan \n", "our lan ");
        row("last occurrence wins", "SNMP_COMMUNITY=public\nURL=x\nSNMP_COMMUNITY=private\n", "private");
        row("longer name is another key", "SNMP_COMMUNITY_V3=x\n", QByteArray());
        row("CRLF, no final line end", "URL=a\r\nSNMP_COMMUNITY=lan\r", "lan");
        row("empty value is found", "SNMP_COMMUNITY=\n", "");
        row("value cut to the buffer", "SNMP_COMMUNITY=community\n", "communi", 8);
        row("value cut at the line length", "SNMP_COMMUNITY=" + QByteArray(1000, 'v') + "\nURL=u\n",
            QByteArray(511 - 15, 'v'));
        row("key past 511 characters is not read", QByteArray(600, 'x') + "SNMP_COMMUNITY=tail\n", QByteArray());
        row("line after an overlong one", QByteArray(2000, 'x') + "\nSNMP_COMMUNITY=next\n", "next");
        row("line of exactly 511 characters", QByteArray(511 - 19, 'x') + "SNMP_COMMUNITY=abcd\nURL=u\n", "abcd");
    }

    void lookUp()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, size);
        QFETCH(QByteArray, value);

        const QString file = m_root.filePath(QStringLiteral("OEM.ini"));
        QVERIFY(TestSupport::writeFile(file, content));
        char buffer[610];
        memset(buffer, 'z', sizeof buffer);
        const QByteArray path = QFile::encodeName(file);
        QCOMPARE(textfile_process(path.constData(), "SNMP_COMMUNITY", buffer, size_t(size)), value.isNull() ? 0 : 1);
        QCOMPARE(QByteArray(buffer), value);
        QCOMPARE(QByteArray(buffer + size, 10), QByteArray(10, 'z'));
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

QTEST_GUILESS_MAIN(TestMfp)
#include "tst_mfp.moc"
