#include "AddPrinterWizard.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "printerportlistview.h"
#include "testsupport.h"
#include "wizardfixture.h"

#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
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

QByteArray arguments(const WizardFixture &f)
{
    const QString args = f.rootDir() + QStringLiteral("/bin/args");
    return QFile::exists(args) ? TestSupport::readFile(args) : QByteArray("none");
}

} // namespace

class TestNetworkDiscovery : public QObject
{
    Q_OBJECT

    // The wizard on the port type page with the network type chosen and a
    // search made; the program prints output, and is missing when that is
    // null.
    static bool search(WizardFixture &f, const QByteArray &output)
    {
        if ((!output.isNull() && !f.addScript(QStringLiteral("bin/netdiscovery"), FakeDiscovery))
            || !TestSupport::writeFile(f.rootDir() + QStringLiteral("/output"), output) || !f.load()
            || !f.click(QWizard::NextButton))
            return false;
        f.clickRadio("NetworkButton");
        QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
        return f.wizard()->portTypeId() == W::PortType_AutoNetwork;
    }

    static QStringList entries(const WizardFixture &f)
    {
        return WizardFixture::texts(f.child<QComboBox>("NetworkList")->model());
    }

private slots:
    void initTestCase()
    {
        QW_USE_SHARED_SCHEDULER();
        m_cupsVersion = CUPSManager::m_CUPSManagerInstance.CupsVersion;
    }

    void init() { TestSupport::failOnWarnings(); }
    void cleanup() { CUPSManager::m_CUPSManagerInstance.CupsVersion = m_cupsVersion; }

    void results_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("cupsVersion");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("uri");
        const auto row = [](const char *tag, const QByteArray &output, const QString &entry, const QString &uri,
                            int cupsVersion = 4) { QTest::newRow(tag) << output << cupsVersion << entry << uri; };

        row("all services: IPP first", record("10.0.0.5", "1,1,1,1"), "10.0.0.5 (IPP,socket,LPD)  Office",
            "ipp://10.0.0.5/ipp/print");
        row("raw socket", record("10.0.0.6", "1,0,0,1"), "10.0.0.6 (socket)  Office", "socket://10.0.0.6:9100");
        row("LPD", record("10.0.0.7", "1,0,1,0"), "10.0.0.7 (LPD)  Office", "lpd://10.0.0.7/lp");
        row("answered, nothing offered", record("10.0.0.8", "1,0,0,0"), "10.0.0.8 ()  Office", "");
        row("IPv6: socket", record("fe80::1", "1,1,0,0"), "fe80::1 (IPP)  Office", "socket://[fe80::1]:9100");
        row("IPv6 before version 2", record("fe80::1", "1,1,0,0") + record("10.0.0.10", "1,0,0,1"),
            "10.0.0.10 (socket)  Office", "socket://10.0.0.10:9100", 1);
        row("empty description", record("10.0.0.11", "0,0,0,0", ""), "10.0.0.11 (IPP)  UNKNOWN",
            "ipp://10.0.0.11/ipp/print");
        row("long address and description cut", record(QByteArray(50, 'a').constData(), "1,0,0,1", QByteArray(200, 'd')),
            QString(39, 'a') + " (socket)  " + QString(95, 'd'), "socket://" + QString(39, 'a') + ":9100");
        QByteArray noise = "# netdiscovery: 3 printer(s)\n\n   # ip: 10.0.0.1 slp: 1,1,1,1 snmp: 1,1,1\n"
                           "ip: 10.0.0.2 slp: 1,1,1 snmp: 1,1,1\nip: 10.0.0.3 slp: 1,1,1,1 snmp: 1,1\n"
                           "ip: 10.0.0.4 slp: a,1,1,1 snmp: 1,1,1\n\x01\xff\xfe garbage";
        noise += '\0';
        noise += "ip: 10.0.0.5\n" + QByteArray(1030, 'x') + record("10.0.0.15", "0,0,0,0");
        row("comments, short lines, garbage, the rest of an overlong line", noise + record("10.0.0.14", "1,0,0,1"),
            "10.0.0.14 (socket)  Office", "socket://10.0.0.14:9100");
        row("nothing found", "", "", "");
        row("no program", QByteArray(), "", "");
    }

    // The first record listed is the port. Without a community the program
    // gets no arguments.
    void results()
    {
        QFETCH(QByteArray, output);
        QFETCH(int, cupsVersion);
        QFETCH(QString, entry);
        QFETCH(QString, uri);

        CUPSManager::m_CUPSManagerInstance.CupsVersion = cupsVersion;
        WizardFixture f;
        QVERIFY(search(f, output));
        QCOMPARE(entries(f), entry.isEmpty() ? QStringList() : QStringList{ entry });
        QCOMPARE(f.child<QComboBox>("NetworkList")->isEnabled(), !entry.isEmpty());
        QCOMPARE(f.wizard()->isPortAssigned(), !uri.isEmpty());
        QCOMPARE(f.child<PrinterPortListView>("PortsView")->selectedURI(), uri);
        QCOMPARE(f.nextEnabled(), !uri.isEmpty());
        QCOMPARE(arguments(f), QByteArray(output.isNull() ? "none" : ""));
    }

    // Another printer of the list becomes the port, and a search anew
    // replaces the list; the driver follows the description. The SNMP
    // community goes to the program as one argument.
    void choosingAndSearchingAgain()
    {
        WizardFixture f;
        QVERIFY(TestSupport::writeFile(f.shareDir() + "/OEM.ini", "VENDOR=Acme\nSNMP_COMMUNITY=it's $HOME; `id`\n"));
        QVERIFY(search(f, record("10.0.0.1", "1,1,0,0", "Acme MFP 4200") + record("10.0.0.2", "1,1,0,0")));
        auto *list = f.child<QComboBox>("NetworkList");
        auto *ports = f.child<PrinterPortListView>("PortsView");
        QCOMPARE(f.child<QListWidget>("DriversList")->currentItem()->text(), QStringLiteral("Acme MFP 4200 Series"));
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(ports->selectedURI(), QStringLiteral("ipp://10.0.0.2/ipp/print"));
        QVERIFY(f.nextEnabled());
        QCOMPARE(arguments(f), QByteArray("[-c][it's $HOME; `id`]"));

        QVERIFY(TestSupport::writeFile(f.rootDir() + "/output", record("10.0.0.3", "1,0,0,0")));
        QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
        QCOMPARE(entries(f), QStringList{ "10.0.0.3 ()  Office" });
        QCOMPARE(ports->selectedURI(), QString());
        QVERIFY(!f.nextEnabled());
    }

private:
    int m_cupsVersion = -1;
};

QTEST_MAIN(TestNetworkDiscovery)
#include "tst_networkdiscovery.moc"
