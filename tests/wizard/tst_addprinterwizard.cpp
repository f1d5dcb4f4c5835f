#include "AddPrinterWizard.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "fakemachine.h"
#include "printerportlistview.h"
#include "testsupport.h"
#include "wizardfixture.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using W = AddPrinterWizard;

namespace {

// A discovery program that notes its arguments in bin/args, prints the
// file "output" of the package root and exits with the number of its line
// "# status N".
const QByteArray FakeDiscovery = "#!/bin/sh\n"
                                 "here=$(dirname \"$0\")\n"
                                 "for a in \"$@\"; do printf '[%s]' \"$a\"; done > \"$here/args\"\n"
                                 "cat \"$here/../output\"\n"
                                 "exit $(sed -n 's/^# status //p' \"$here/../output\")\n";

QByteArray record(const char *address, const char *slp, const QByteArray &description = "Office",
                  const QByteArray &tail = "")
{
    return QByteArray("ip: ") + address + " slp: " + slp + " snmp: 1,0,1 dsc: \"" + description + "\"" + tail + "\n";
}

QByteArray arguments(const WizardFixture &f)
{
    const QString args = f.rootDir() + QStringLiteral("/bin/args");
    return QFile::exists(args) ? TestSupport::readFile(args) : QByteArray("none");
}

// The wizard on the port type page with the network type chosen and a
// search made; the program prints output, and is missing when that is
// null.
bool search(WizardFixture &f, const QByteArray &output)
{
    if ((!output.isNull() && !f.addScript(QStringLiteral("bin/netdiscovery"), FakeDiscovery))
        || !TestSupport::writeFile(f.rootDir() + QStringLiteral("/output"), output) || !f.load()
        || !f.click(QWizard::NextButton))
        return false;
    f.clickRadio("NetworkButton");
    QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
    return f.wizard()->portTypeId() == W::PortType_AutoNetwork;
}

QStringList entries(const WizardFixture &f)
{
    return WizardFixture::texts(f.child<QComboBox>("NetworkList")->model());
}

} // namespace

class TestAddPrinterWizard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QW_USE_SHARED_SCHEDULER();
        m_cupsVersion = CUPSManager::m_CUPSManagerInstance.CupsVersion;
    }

    void init() { TestSupport::failOnWarnings(); }
    void cleanup() { CUPSManager::m_CUPSManagerInstance.CupsVersion = m_cupsVersion; }

    void portType_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QString>("radio");
        QTest::addColumn<bool>("localUsable");
        QTest::addColumn<bool>("next");

        // Typing the port by hand: WizardFixture::toPortsPage.
        QTest::newRow("no local device, not connected now") << "empty" << "OfflineButton" << false << true;
        QTest::newRow("network, nothing found") << "usb with id" << "NetworkButton" << true << false;
    }

    // The wizard starts on the welcome page with the local port type. A
    // screen reader checks another type through the Toggle action; the page
    // follows as for a click.
    void portType()
    {
        QFETCH(QString, machine);
        QFETCH(QString, radio);
        QFETCH(bool, localUsable);
        QFETCH(bool, next);

        WizardFixture f(machine);
        QVERIFY(f.load());
        QVERIFY(f.child<QRadioButton>("ConnectedButton")->isChecked());
        QCOMPARE(f.wizard()->portTypeId(), int(W::PortType_Connected));
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.nextEnabled(), localUsable);
        QAccessibleInterface *toggled = QAccessible::queryAccessibleInterface(f.child<QRadioButton>(qPrintable(radio)));
        toggled->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(toggled->state().checked);
        QCOMPARE(f.child<QRadioButton>("ConnectedButton")->isEnabled(), localUsable);
        QVERIFY(!f.child<QComboBox>("ConnectedList")->isEnabled());
        QVERIFY(!f.child<QComboBox>("NetworkList")->isEnabled());
        QCOMPARE(f.nextEnabled(), next);
    }

    void portsPage_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("typed");  // in the entry's in-place editor
        QTest::addColumn<int>("endKey");
        QTest::addColumn<bool>("next");

        QTest::newRow("a group") << "Network" << "" << 0 << false;
        QTest::newRow("typing a host") << "ipp://" << "printer.local" << 0 << true;
        QTest::newRow("typing, then erasing") << "ipp://" << "h\b" << 0 << false;
        QTest::newRow("typed and given up") << "lpd://" << "host/queue" << int(Qt::Key_Escape) << false;
    }

    // Next follows the selected entry, and the text being typed while one
    // is renamed.
    void portsPage()
    {
        QFETCH(QString, entry);
        QFETCH(QString, typed);
        QFETCH(int, endKey);
        QFETCH(bool, next);

        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(f.toPortsPage());
        QVERIFY(!f.nextEnabled());
        if (typed.isEmpty()) {
            QVERIFY(WizardFixture::clickItem(f.child<PrinterPortListView>("PortsView"), entry));
        } else {
            QLineEdit *editor = f.renamePort(entry);
            QVERIFY(editor);
            QTest::keyClicks(editor, typed);
            if (endKey)
                QTest::keyClick(editor, Qt::Key(endKey));
        }
        QCOMPARE(f.nextEnabled(), next);
        QCOMPARE(f.wizard()->isPortAssigned(), next);
    }

    // Next follows the driver chosen, which proposes a name; a name typed
    // or accepted earlier is never replaced, an emptied one is proposed anew.
    // The name takes only what a queue name may hold.
    void driverAndName()
    {
        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(f.toPortsPage() && WizardFixture::clickItem(f.child<PrinterPortListView>("PortsView"), "/dev/lp0")
                && f.click(QWizard::NextButton));
        QVERIFY(!f.nextEnabled());
        // Only the vendor's drivers; a model in two languages is told apart
        // by its language.
        auto *list = f.child<QListWidget>("DriversList");
        QCOMPARE(WizardFixture::texts(list->model()),
                 (QStringList{ "Acme ColorLaser 2550", "Acme Laser 1610 Series (de)", "Acme Laser 1610 Series (en)",
                               "Acme MFP 4200 Series" }));
        QVERIFY(WizardFixture::clickItem(list, "Acme MFP 4200 Series"));
        QVERIFY(f.wizard()->isDriverAssigned() && f.nextEnabled());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualItemRect(list->currentItem()).center());
        QVERIFY(!f.wizard()->isDriverAssigned() && !f.nextEnabled());

        QVERIFY(f.toNamePage("Acme ColorLaser 2550"));
        auto *edit = f.child<QLineEdit>("NameEdit");
        QCOMPARE(edit->text(), QStringLiteral("2550"));
        QVERIFY(edit->hasFocus() && f.nextEnabled());
        edit->selectAll();
        QTest::keyClicks(edit, "office");
        QVERIFY(f.click(QWizard::BackButton));
        QVERIFY(f.toNamePage("Acme MFP 4200 Series"));
        QCOMPARE(edit->text(), QStringLiteral("office"));
        edit->clear();
        QVERIFY(!f.nextEnabled());
        QVERIFY(f.click(QWizard::BackButton) && f.click(QWizard::NextButton));
        QCOMPARE(edit->text(), QStringLiteral("4200"));

        // Blanks and punctuation are refused, letters of any script kept;
        // key events carry any character, not only those of a US keyboard.
        const QList<std::pair<QString, QString>> typed = {
            { "my a.b-c!/", "myabc" }, { "lab_2", "lab_2" }, { QString::fromUtf8("Büro"), QString::fromUtf8("Büro") },
            { "   ", "" } };
        for (const auto &[keys, name] : typed) {
            edit->clear();
            for (const QChar c : keys)
                QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
            QCOMPARE(edit->text(), name);
            QCOMPARE(f.nextEnabled(), !name.isEmpty());
        }

        // Cancel before the queue is made asks first; No keeps what was
        // typed. (After it, tst_wizardcommit closes the window, queue kept.)
        QLineEdit *location = f.child<QLineEdit>("LocationEdit");
        QTest::keyClicks(location, "Room 7");
        for (const QString answer : { "No", "Yes" }) {
            QString question;
            TestSupport::answerMessageBox(answer, &question, 1000);
            QVERIFY(f.click(QWizard::CancelButton));
            QCOMPARE(question, "Add printer Wizard|Printer is not installed. Are you sure to cancel wizard?");
            QCOMPARE(f.wizard()->isVisible(), answer == "No");
            QVERIFY(answer == "Yes" || (f.wizard()->currentId() == W::NamePage && location->text() == "Room 7"));
        }
        QCOMPARE(f.wizard()->result(), int(QDialog::Rejected));
    }

    void localDevices_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("driver");

        QTest::newRow("device ID names the model") << "usb with id" << QStringList{ "Laser 1610 on /dev/mfp0" } << 0
                                                   << "Acme Laser 1610 Series (en)";
        QTest::newRow("no driver fits") << "parallel" << QStringList{ "LaserJet 4 on /dev/mfp0" } << 0 << "";
        QTest::newRow("second of three")
            << "bus order"
            << QStringList{ "HP LaserJet 1020 on /dev/mfp0", "MFP 4200 on /dev/mfp1", "Acme Jet 3 on /dev/mfp2" }
            << 1 << "Acme MFP 4200 Series";
        QTest::newRow("nameless device left out") << "nameless" << QStringList{ "ColorLaser 2550 on /dev/mfp1" } << 0
                                                  << "Acme ColorLaser 2550";
    }

    // The chosen device is the port and proposes a driver; the driver page
    // lets another be chosen.
    void localDevices()
    {
        QFETCH(QString, machine);
        QFETCH(QStringList, labels);
        QFETCH(int, chosen);
        QFETCH(QString, driver);

        WizardFixture f(machine);
        if (machine == QLatin1String("nameless")) {
            // A printer that reports neither its model nor an ID comes first.
            f.machine().addUsbDevice("1-1", "Acme", QString(), "X1");
            f.machine().addUsbInterface("1-1:1.0", 0x07);
            f.machine().addUsbPrinter("1-2", "Acme", "ColorLaser 2550", "CL1");
        }
        QVERIFY(f.load());
        auto *list = f.child<QComboBox>("ConnectedList");
        QCOMPARE(WizardFixture::texts(list->model()), labels);

        QVERIFY(f.click(QWizard::NextButton));
        list->setFocus();
        for (int i = 0; i < chosen; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QVERIFY(f.nextEnabled());
        QCOMPARE(f.child<PrinterPortListView>("PortsView")->selectedURI(), "mfp:" + labels[chosen].section(" on ", -1));
        QVERIFY(!f.child<QLabel>("ConnectedImage")->pixmap().isNull());
        auto *drivers = f.child<QListWidget>("DriversList");
        QCOMPARE(f.wizard()->isDriverAssigned() ? drivers->currentItem()->text() : QString(), driver);

        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.nextEnabled(), !driver.isEmpty());
        QVERIFY(f.toNamePage("Acme MFP 4200 Series"));
    }

    void results_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("cupsVersion");
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("note");
        const auto row = [](const char *tag, const QByteArray &output, const QString &entry, const QString &uri,
                            int cupsVersion = 204, const QString &note = QString()) {
            QTest::newRow(tag) << output << cupsVersion << entry << uri << note;
        };

        row("all services: IPP first", record("10.0.0.5", "1,1,1,1"), "10.0.0.5 (IPP,socket,LPD)  Office",
            "ipp://10.0.0.5/ipp/print");
        row("raw socket", record("10.0.0.6", "1,0,0,1"), "10.0.0.6 (socket)  Office", "socket://10.0.0.6:9100");
        row("LPD", record("10.0.0.7", "1,0,1,0"), "10.0.0.7 (LPD)  Office", "lpd://10.0.0.7/lp");
        row("answered, nothing offered", record("10.0.0.8", "1,0,0,0"), "10.0.0.8 ()  Office", "");
        row("IPv6: socket", record("fe80::1", "1,1,0,0"), "fe80::1 (IPP)  Office", "socket://[fe80::1]:9100");
        row("IPv6 before version 2", record("fe80::1", "1,1,0,0") + record("10.0.0.10", "1,0,0,1"),
            "10.0.0.10 (socket)  Office", "socket://10.0.0.10:9100", 101);
        row("IPv6 with CUPS 3", record("fe80::1", "1,1,0,0"), "fe80::1 (IPP)  Office", "socket://[fe80::1]:9100", 300);
        row("the announced URI", record("10.0.0.20", "1,1,0,0", "Office", " uri: ipps://10.0.0.20:8631/printers/a%20b"),
            "10.0.0.20 (IPP)  Office", "ipps://10.0.0.20:8631/printers/a%20b");
        row("a USB printer served at the loopback address",
            record("127.0.0.1", "1,1,0,0", "Acme Jet 9", " uri: ipp://127.0.0.1:60000/ipp/print"),
            "Acme Jet 9 (connected by USB)", "ipp://127.0.0.1:60000/ipp/print");
        row("no printer's URI, or inside the description: read as before",
            record("10.0.0.21", "1,0,0,1", "x\" uri: ipp://evil/", " uri: file:/etc/passwd"),
            "10.0.0.21 (socket)  x\" uri: ipp://evil/", "socket://10.0.0.21:9100");
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
        const QString checks = "Check that the printer is switched on";
        row("nothing found", "", "", "", 204, "No network printer answered. " + checks);
        row("no program", QByteArray(), "", "", 204, "The network search is not installed (");
        row("a part of the search could not run",
            "# unavailable: DNS-SD: Daemon not running\n# unavailable: SNMP: x not found\n", "", "", 204,
            "The network search failed: DNS-SD: Daemon not running\nSNMP: x not found. " + checks);
        row("the program failed", "# status 3\n", "", "", 204, "The network search failed: exit status 3. ");
        row("found despite a part that could not run", "# unavailable: SNMP: x\n" + record("10.0.0.23", "0,0,0,0"),
            "10.0.0.23 (IPP)  Office", "ipp://10.0.0.23/ipp/print");
    }

    // The first record listed is the port. Without a community the program
    // gets no arguments.
    void results()
    {
        QFETCH(QByteArray, output);
        QFETCH(int, cupsVersion);
        QFETCH(QString, entry);
        QFETCH(QString, uri);
        QFETCH(QString, note);

        CUPSManager::m_CUPSManagerInstance.CupsVersion = cupsVersion;
        WizardFixture f;
        QVERIFY(search(f, output));
        QCOMPARE(entries(f), entry.isEmpty() ? QStringList() : QStringList{ entry });
        QCOMPARE(f.child<QComboBox>("NetworkList")->isEnabled(), !entry.isEmpty());
        QCOMPARE(f.wizard()->isPortAssigned(), !uri.isEmpty());
        QCOMPARE(f.wizard()->portURI(), uri);
        QCOMPARE(f.nextEnabled(), !uri.isEmpty());
        QCOMPARE(arguments(f), QByteArray(output.isNull() ? "none" : ""));
        auto *label = f.child<QLabel>("NetworkSearchLabel");
        QVERIFY2(label->text().startsWith(note) && label->isVisible() == !note.isEmpty(), qPrintable(label->text()));
        QCOMPARE(f.child<QPushButton>("TypeAddressButton")->isVisible(), !note.isEmpty());
        if (note.isEmpty())
            return;
        // The note is the network type's; typing the address opens the IPP
        // entry of the ports page for it.
        f.clickRadio("OfflineButton");
        QVERIFY(!label->isVisible());
        f.clickRadio("NetworkButton");
        QTest::mouseClick(f.child<QPushButton>("TypeAddressButton"), Qt::LeftButton);
        QCOMPARE(f.wizard()->currentId(), int(W::PortsPage));
        auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(editor && editor->text() == "ipp://");
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

QTEST_MAIN(TestAddPrinterWizard)
#include "tst_addprinterwizard.moc"
