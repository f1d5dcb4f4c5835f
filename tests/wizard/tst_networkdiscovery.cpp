#include "AddPrinterWizard.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "printerportlistview.h"
#include "wizardfixture.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using W = AddPrinterWizard;

namespace {

// A discovery program that notes its arguments in bin/args and prints the
// file "output" of the package root.
const QByteArray FakeDiscovery = "#!/bin/sh\n"
                                 "here=$(dirname \"$0\")\n"
                                 "for a in \"$@\"; do printf '[%s]' \"$a\"; done > \"$here/args\"\n"
                                 "cat \"$here/../output\"\n";

QByteArray record(const char *address, const char *slp, const QByteArray &description = "Office")
{
    return QByteArray("ip: ") + address + " slp: " + slp + " snmp: 1,0,1 dsc: \"" + description + "\"\n";
}

} // namespace

class TestNetworkDiscovery : public QObject
{
    Q_OBJECT

    // The wizard on the port type page with the network type chosen and
    // a search made; the program prints output.
    static bool search(WizardFixture &f, const QByteArray &output, bool program = true)
    {
        if (program && !f.addScript(QStringLiteral("bin/netdiscovery"), FakeDiscovery))
            return false;
        QFile file(f.rootDir() + QStringLiteral("/output"));
        if (!file.open(QIODevice::WriteOnly) || file.write(output) != output.size())
            return false;
        file.close();
        if (!f.load() || !f.click(QWizard::NextButton))
            return false;
        auto *network = f.child<QRadioButton>("NetworkButton");
        QTest::mouseClick(network, Qt::LeftButton, {}, QPoint(network->height() / 2, network->height() / 2));
        QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
        return f.wizard()->portTypeId() == W::PortType_AutoNetwork;
    }

    static QStringList entries(const WizardFixture &f)
    {
        auto *list = f.child<QComboBox>("NetworkList");
        QStringList texts;
        for (int i = 0; i < list->count(); ++i)
            texts << list->itemText(i);
        return texts;
    }

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
        m_cupsVersion = CUPSManager::m_CUPSManagerInstance.CupsVersion;
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*")));
    }

    void cleanup()
    {
        CUPSManager::m_CUPSManagerInstance.CupsVersion = m_cupsVersion;
    }

    void results_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("cupsVersion");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("uri");

        QTest::newRow("all services: IPP first")
            << record("10.0.0.5", "1,1,1,1") << 4 << QStringList{"10.0.0.5 (IPP,socket,LPD)  Office"}
            << "ipp://10.0.0.5/ipp/print";
        QTest::newRow("raw socket") << record("10.0.0.6", "1,0,0,1") << 4 << QStringList{"10.0.0.6 (socket)  Office"}
                                    << "socket://10.0.0.6:9100";
        QTest::newRow("LPD") << record("10.0.0.7", "1,0,1,0") << 4 << QStringList{"10.0.0.7 (LPD)  Office"}
                             << "lpd://10.0.0.7/lp";
        QTest::newRow("answered, nothing offered")
            << record("10.0.0.8", "1,0,0,0") << 4 << QStringList{"10.0.0.8 ()  Office"} << "";
        QTest::newRow("not asked: IPP") << record("10.0.0.9", "0,0,0,0") << 4 << QStringList{"10.0.0.9 (IPP)  Office"}
                                        << "ipp://10.0.0.9/ipp/print";
        QTest::newRow("IPv6: socket") << record("fe80::1", "1,1,0,0") << 4 << QStringList{"fe80::1 (IPP)  Office"}
                                      << "socket://[fe80::1]:9100";
        QTest::newRow("IPv6 before version 2")
            << record("fe80::1", "1,1,0,0") + record("10.0.0.10", "1,0,0,1") << 1
            << QStringList{"10.0.0.10 (socket)  Office"} << "socket://10.0.0.10:9100";
        QTest::newRow("empty description") << record("10.0.0.11", "0,0,0,0", "") << 4
                                           << QStringList{"10.0.0.11 (IPP)  UNKNOWN"} << "ipp://10.0.0.11/ipp/print";
        QTest::newRow("no description")
            << QByteArray("ip: 10.0.0.12 slp: 0,0,0,0 snmp: 0,0,0\n") << 4 << QStringList{"10.0.0.12 (IPP)  "}
            << "ipp://10.0.0.12/ipp/print";
        QTest::newRow("description up to its last quote")
            << record("10.0.0.13", "0,0,0,0", "Laser \"Ann\" 2") << 4
            << QStringList{"10.0.0.13 (IPP)  Laser \"Ann\" 2"} << "ipp://10.0.0.13/ipp/print";
        QTest::newRow("long address and description cut")
            << record(QByteArray(50, 'a').constData(), "1,0,0,1", QByteArray(200, 'd')) << 4
            << QStringList{QString(39, 'a') + " (socket)  " + QString(95, 'd')}
            << "socket://" + QString(39, 'a') + ":9100";
        QByteArray noise = "# netdiscovery: 3 printer(s)\n\n   # ip: 10.0.0.1 slp: 1,1,1,1 snmp: 1,1,1\n"
                           "ip: 10.0.0.2 slp: 1,1,1 snmp: 1,1,1\nip: 10.0.0.3 slp: 1,1,1,1 snmp: 1,1\n"
                           "ip: 10.0.0.4 slp: a,1,1,1 snmp: 1,1,1\n\x01\xff\xfe garbage";
        noise += '\0';
        noise += "ip: 10.0.0.5\n";
        QTest::newRow("comments, blank lines, short lines and garbage")
            << noise + record("10.0.0.14", "1,0,0,1") << 4 << QStringList{"10.0.0.14 (socket)  Office"}
            << "socket://10.0.0.14:9100";
        QTest::newRow("the rest of an overlong line is no line")
            << QByteArray(1030, 'x') + record("10.0.0.15", "0,0,0,0") + record("10.0.0.16", "0,0,0,0") << 4
            << QStringList{"10.0.0.16 (IPP)  Office"} << "ipp://10.0.0.16/ipp/print";
        QTest::newRow("nothing found") << QByteArray() << 4 << QStringList{} << "";
    }

    // The list shows every record in order; the first one is the port.
    void results()
    {
        QFETCH(QByteArray, output);
        QFETCH(int, cupsVersion);
        QFETCH(QStringList, entries);
        QFETCH(QString, uri);

        CUPSManager::m_CUPSManagerInstance.CupsVersion = cupsVersion;
        WizardFixture f;
        QVERIFY(search(f, output));
        QCOMPARE(this->entries(f), entries);
        QCOMPARE(f.child<QComboBox>("NetworkList")->isEnabled(), !entries.isEmpty());
        QCOMPARE(f.wizard()->isPortAssigned(), !uri.isEmpty());
        QCOMPARE(f.child<PrinterPortListView>("PortsView")->selectedURI(), uri);
        QCOMPARE(f.button(QWizard::NextButton)->isEnabled(), !uri.isEmpty());
    }

    void missingProgram()
    {
        WizardFixture f;
        QVERIFY(search(f, record("10.0.0.5", "1,1,1,1"), false));
        QCOMPARE(entries(f), QStringList());
        QVERIFY(!f.child<QComboBox>("NetworkList")->isEnabled());
        QVERIFY(!f.button(QWizard::NextButton)->isEnabled());
    }

    void community_data()
    {
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<QString>("args");

        QTest::newRow("no OEM.ini") << QByteArray() << "";
        QTest::newRow("no community") << QByteArray("VENDOR=Acme\n") << "";
        QTest::newRow("community") << QByteArray("VENDOR=Acme\nSNMP_COMMUNITY=private\n") << "[-c][private]";
        QTest::newRow("shell characters stay text")
            << QByteArray("SNMP_COMMUNITY=it's $HOME; `id`\n") << "[-c][it's $HOME; `id`]";
    }

    void community()
    {
        QFETCH(QByteArray, config);
        QFETCH(QString, args);

        WizardFixture f;
        if (!config.isNull()) {
            QFile ini(f.shareDir() + "/OEM.ini");
            QVERIFY(ini.open(QIODevice::WriteOnly));
            ini.write(config);
        }
        QVERIFY(search(f, record("10.0.0.5", "1,1,1,1")));
        QFile recorded(f.rootDir() + "/bin/args");
        QVERIFY(recorded.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(recorded.readAll()), args);
    }

    // Another printer of the list becomes the port, and a search anew
    // replaces the list; the driver follows the description.
    void choosingAndSearchingAgain()
    {
        WizardFixture f;
        QVERIFY(search(f, record("10.0.0.1", "1,1,0,0", "Acme MFP 4200") + record("10.0.0.2", "1,1,0,0")));
        auto *list = f.child<QComboBox>("NetworkList");
        auto *ports = f.child<PrinterPortListView>("PortsView");
        QCOMPARE(ports->selectedURI(), QStringLiteral("ipp://10.0.0.1/ipp/print"));
        QCOMPARE(f.child<QListWidget>("DriversList")->currentItem()->text(), QStringLiteral("Acme MFP 4200 Series"));

        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(ports->selectedURI(), QStringLiteral("ipp://10.0.0.2/ipp/print"));
        QVERIFY(f.button(QWizard::NextButton)->isEnabled());

        QFile output(f.rootDir() + "/output");
        QVERIFY(output.open(QIODevice::WriteOnly));
        output.write(record("10.0.0.3", "1,0,0,0"));
        output.close();
        QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
        QCOMPARE(entries(f), QStringList{"10.0.0.3 ()  Office"});
        QCOMPARE(ports->selectedURI(), QString());
        QVERIFY(!f.button(QWizard::NextButton)->isEnabled());

        output.open(QIODevice::WriteOnly);
        output.write(record("10.0.0.4", "1,0,1,0"));
        output.close();
        QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
        QCOMPARE(ports->selectedURI(), QStringLiteral("lpd://10.0.0.4/lp"));
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::DriverPage));
    }

private:
    int m_cupsVersion = -1;
};

QTEST_MAIN(TestNetworkDiscovery)
#include "tst_networkdiscovery.moc"
