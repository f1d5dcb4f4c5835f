#include "fakemachine.h"
#include "mfp.h"
#include "testsupport.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>

namespace {

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

class TestMfpDevices : public QObject
{
    Q_OBJECT

    QTemporaryDir m_root;
    FakeMachine m_machine{m_root.path()};

private slots:
    void initTestCase() { qputenv("MFP_SYSROOT", QFile::encodeName(m_root.path())); }

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
        QTest::newRow("quotes and control characters") << QByteArray("MFG:Acme;MDL:Laser \"Pro\"\x01 2;") << 2
                                                       << "Laser 'Pro' 2";
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
};

QTEST_GUILESS_MAIN(TestMfpDevices)
#include "tst_mfpdevices.moc"
