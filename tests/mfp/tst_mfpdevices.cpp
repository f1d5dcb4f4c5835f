#include "fakemachine.h"
#include "mfp.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstring>
#include <vector>

namespace {

QString field(const mfp_device &d, const QString &name)
{
    if (name == QLatin1String("make"))
        return QString::fromUtf8(d.make);
    if (name == QLatin1String("model"))
        return QString::fromUtf8(d.model);
    if (name == QLatin1String("uri"))
        return QString::fromUtf8(d.uri);
    return QString::fromUtf8(d.device_id);
}

QString describe(const mfp_device &d)
{
    return QStringLiteral("%1|%2|%3|%4|%5").arg(d.type).arg(field(d, QStringLiteral("make")),
        field(d, QStringLiteral("model")), field(d, QStringLiteral("uri")), field(d, QStringLiteral("id")));
}

std::vector<mfp_device> readAll()
{
    std::vector<mfp_device> devices(static_cast<size_t>(mfp_get_devices(nullptr, 0)));
    const int filled = mfp_get_devices(devices.data(), static_cast<int>(devices.size()));
    devices.resize(static_cast<size_t>(qMax(filled, 0)));
    return devices;
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

private:
    QTemporaryDir m_root;
    FakeMachine m_machine{m_root.path()};

private slots:
    void initTestCase()
    {
        QVERIFY(m_root.isValid());
        qputenv("MFP_SYSROOT", QFile::encodeName(m_root.path()));
    }

    void records_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QStringList>("expected");

        const QString laserJet = QStringLiteral("CLASS:PRINTER;MODEL:LaserJet 4;MANUFACTURER:Hewlett-Packard;"
                                                "COMMAND SET:PCL;");
        QTest::newRow("empty machine") << "empty" << QStringList();
        QTest::newRow("no printer among the devices") << "no printer" << QStringList();
        QTest::newRow("usb, 1284 ID before the USB strings")
            << "usb with id"
            << QStringList{"2|Acme|Laser 1610|usb://Acme/Laser%201610?serial=ID456|"
                           "MFG:Acme;MDL:Laser 1610;CMD:PCL,PJL;CLS:PRINTER;SN:ID456;"};
        QTest::newRow("usb without usblp: USB strings")
            << "usb without id"
            << QStringList{"2|Acme|ColorLaser 2550|usb://Acme/ColorLaser%202550?serial=CL2550X|"
                           "MFG:Acme;MDL:ColorLaser 2550;CLS:PRINTER;"};
        QTest::newRow("usb by bus path, one record per device")
            << "bus order"
            << QStringList{"2|Hewlett-Packard|HP LaserJet 1020|usb://HP/LaserJet%201020?serial=HP1020&interface=1|"
                           "MFG:Hewlett-Packard;MDL:HP LaserJet 1020;",
                           "2|Acme|MFP 4200|usb://Acme/MFP%204200?serial=M42|MFG:Acme;MDL:MFP 4200;CLS:PRINTER;",
                           "2|Acme|Acme Jet 3|usb://Acme/Jet%203|MFG:Acme;MDL:Acme Jet 3;CLS:PRINTER;"};
        QTest::newRow("parallel") << "parallel"
                                  << QStringList{"1|Hewlett-Packard|LaserJet 4|parallel:/dev/lp0|" + laserJet};
        QTest::newRow("parallel ports by number, then usb")
            << "mixed"
            << QStringList{"1|Hewlett-Packard|LaserJet 4|parallel:/dev/lp2|" + laserJet,
                           "1|Acme|Jet 10|parallel:/dev/lp10|MODEL:Jet 10;MANUFACTURER:Acme;",
                           "2|Acme|ColorLaser 2550|usb://Acme/ColorLaser%202550?serial=CL2550X|"
                           "MFG:Acme;MDL:ColorLaser 2550;CLS:PRINTER;"};
    }

    void records()
    {
        QFETCH(QString, machine);
        QFETCH(QStringList, expected);
        QVERIFY(m_machine.build(machine));

        QCOMPARE(mfp_get_devices(nullptr, 0), expected.size());
        QStringList actual;
        for (const mfp_device &d : readAll())
            actual << describe(d);
        QCOMPARE(actual, expected);
    }

    void cut_data()
    {
        QTest::addColumn<QByteArray>("id");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected");

        QTest::newRow("long model cut to its field")
            << "MFG:Acme;MDL:" + QByteArray(100, 'M') + ";" << "model" << QString(MFP_MODEL_SIZE - 1, QLatin1Char('M'));
        QTest::newRow("model cut between UTF-8 characters")
            << "MFG:Acme;MDL:" + QString(40, QChar(0xdc)).toUtf8() + ";" << "model" << QString(31, QChar(0xdc));
        QTest::newRow("quotes and control characters")
            << QByteArray("MFG:Acme;MDL:Laser \"Pro\"\x01 2;") << "model" << "Laser 'Pro' 2";
        QTest::newRow("long ID keeps what drivers are matched by")
            << "SN:" + QByteArray(200, 'x') + ";MFG:Acme;CMD:PCL;VER:1;MDL:Laser 1610;" << "id"
            << "MFG:Acme;MDL:Laser 1610;CMD:PCL;";
        QTest::newRow("ID on one line") << QByteArray("MFG:Acme;\r\nMDL:Jet;\n") << "id" << "MFG:Acme;MDL:Jet;";
        QTest::newRow("URI that does not fit is left empty")
            << "MFG:Acme;MDL:" + QByteArray("A ").repeated(31) + ";" << "uri" << "";
        QTest::newRow("no maker: first word of the model")
            << QByteArray("MDL:Jet 5 Pro;") << "uri" << "usb://Jet/5%20Pro?serial=S1";
    }

    void cut()
    {
        QFETCH(QByteArray, id);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        m_machine.clear();
        m_machine.addUsbPrinter(QStringLiteral("3-1"), {}, {}, QStringLiteral("S1"), id);

        // Guard records on both sides catch a write past the one record.
        mfp_device buffer[3];
        memset(buffer, 0xab, sizeof buffer);
        QCOMPARE(mfp_get_devices(&buffer[1], 1), 1);
        QVERIFY(untouched(buffer[0]) && untouched(buffer[2]));
        QCOMPARE(buffer[1].type, MFP_DEVICE_USB);
        QCOMPARE(::field(buffer[1], field), expected);
    }

    void bufferSizes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("filled");

        QTest::newRow("smaller than the list") << 2 << 2;
        QTest::newRow("larger than the list") << 5 << 3;
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("negative") << -1 << 0;
    }

    void bufferSizes()
    {
        QFETCH(int, count);
        QFETCH(int, filled);
        QVERIFY(m_machine.build(QStringLiteral("bus order")));

        mfp_device buffer[6];
        memset(buffer, 0xab, sizeof buffer);
        QCOMPARE(mfp_get_devices(buffer, count), filled);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(untouched(buffer[i]), i >= filled);
        if (filled)
            QCOMPARE(QByteArray(buffer[filled - 1].model), filled == 3 ? "Acme Jet 3" : "MFP 4200");
    }
};

QTEST_GUILESS_MAIN(TestMfpDevices)
#include "tst_mfpdevices.moc"
