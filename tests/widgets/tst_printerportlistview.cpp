#include "cupsmanager.h"
#include "cupsprinter.h"
#include "formattedlistitem.h"
#include "printerportlistview.h"
#include "urivalidator.h"

#include <QLineEdit>
#include <QtTest>

enum Group { MfpParallel, MfpUsb, NativeParallel, NativeUsb, Network, File };

class TestPrinterPortListView : public QObject
{
    Q_OBJECT

    static QTreeWidgetItem *entry(const PrinterPortListView &view, int group, int child)
    {
        QTreeWidgetItem *g = view.topLevelItem(group);
        return child < 0 ? g : g->child(child);
    }

    static QStringList shownGroups(const PrinterPortListView &view)
    {
        QStringList shown;
        for (int i = 0; i < view.topLevelItemCount(); ++i)
            if (!view.topLevelItem(i)->isHidden())
                shown << view.topLevelItem(i)->text(0) + "/" + view.topLevelItem(i)->text(1);
        return shown;
    }

private slots:
    // A CUPS that takes IPv6 addresses, whatever this machine runs.
    void initTestCase() { CUPSManager::m_CUPSManagerInstance.CupsVersion = 4; }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*"))); }

    void structure()
    {
        PrinterPortListView view(nullptr, "PortsView");
        QCOMPARE(view.objectName(), QStringLiteral("PortsView"));
        QStringList tree;
        for (int i = 0; i < view.topLevelItemCount(); ++i) {
            QTreeWidgetItem *g = view.topLevelItem(i);
            QStringList children;
            for (int j = 0; j < g->childCount(); ++j) {
                auto *item = dynamic_cast<ListViewItemEx *>(g->child(j));
                const bool renamed = g->child(j)->type() == FormattedListItem::RTTI && item->renameEnabled(0);
                children << g->child(j)->text(0) + (renamed ? "*" : "");
            }
            tree << g->text(0) + "/" + g->text(1) + ": " + children.join(' ');
        }
        QCOMPARE(tree, (QStringList{
            "Parallel/mfp: /dev/mfp0 /dev/mfp1 /dev/mfp2 /dev/mfp3",
            "USB/mfp: /dev/mfp4 /dev/mfp5 /dev/mfp6 /dev/mfp7 /dev/mfp8 /dev/mfp9 /dev/mfp10 /dev/mfp11",
            "Parallel/native: /dev/lp0 /dev/lp1 /dev/lp2 /dev/lp3",
            "USB/native: /dev/usb/lp0 /dev/usb/lp1 /dev/usb/lp2 /dev/usb/lp3 /dev/usb/lp4 /dev/usb/lp5 "
            "/dev/usb/lp6 /dev/usb/lp7",
            "Network/: ipp://* socket://* lpd://* smb://*",
            "File/: file:*"}));

        QCOMPARE(shownGroups(view), (QStringList{"Parallel/native", "USB/native", "Network/", "File/"}));
        QVERIFY(view.setProperty("mfpMode", true));
        QCOMPARE(shownGroups(view), (QStringList{"Parallel/mfp", "USB/mfp", "Network/", "File/"}));
        view.setMfpMode(false);
        QCOMPARE(shownGroups(view), (QStringList{"Parallel/native", "USB/native", "Network/", "File/"}));
    }

    void ipv6FollowsCupsVersion()
    {
        for (int version : {-1, 1, 2}) {
            CUPSManager::m_CUPSManagerInstance.CupsVersion = version;
            PrinterPortListView view;
            for (int i = 0; i < 4; ++i) {
                auto *item = static_cast<FormattedListItem *>(entry(view, Network, i));
                auto *validator = qobject_cast<UriValidator *>(item->validator(0));
                QCOMPARE(validator->scheme(), i + 1);
                QCOMPARE(validator->ipv6Allowed(), version > 1);
            }
        }
        CUPSManager::m_CUPSManagerInstance.CupsVersion = 4;
    }

    // Selecting shows the entry's group and gives back the URI of the entry.
    void selectURI_data()
    {
        QTest::addColumn<bool>("mfpBefore");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<bool>("mfpAfter");

        QTest::newRow("mfp flips the mode") << false << "mfp:/dev/mfp2" << "/dev/mfp2" << "mfp:/dev/mfp2" << true;
        QTest::newRow("mfp11, not mfp1") << true << "mfp:/dev/mfp11" << "/dev/mfp11" << "mfp:/dev/mfp11" << true;
        QTest::newRow("usb flips back") << true << "usb:/dev/usb/lp3" << "/dev/usb/lp3" << "usb:/dev/usb/lp3" << false;
        QTest::newRow("parallel") << false << "parallel:/dev/lp0" << "/dev/lp0" << "parallel:/dev/lp0" << false;
        QTest::newRow("network keeps the mode") << true << "socket://1.2.3.4:9100" << "socket://1.2.3.4:9100"
                                                << "socket://1.2.3.4:9100" << true;
        QTest::newRow("network repaired") << false << "ipp://fe80::1" << "ipp://[fe80::1]" << "ipp://[fe80::1]" << false;
        QTest::newRow("smb") << false << "smb://server/share" << "smb://server/share" << "smb://server/share" << false;
        QTest::newRow("file") << false << "file:/tmp/out" << "file:/tmp/out" << "file:/tmp/out" << false;
    }

    void selectURI()
    {
        QFETCH(bool, mfpBefore);
        QFETCH(QString, uri);
        QFETCH(QString, shown);
        QFETCH(QString, selected);
        QFETCH(bool, mfpAfter);

        PrinterPortListView view;
        view.setMfpMode(mfpBefore);
        QTreeWidgetItem *found = view.findItem(uri);
        CUPSPrinter printer(QStringLiteral("queue"));
        printer.setDeviceURI(uri);
        view.selectURI(printer);
        QTreeWidgetItem *item = view.selectedItem();
        QVERIFY(item && item == found && view.currentItem() == item && !item->parent()->isHidden());
        QCOMPARE(item->text(0), shown);
        QCOMPARE(view.mfpMode(), mfpAfter);
        QCOMPARE(view.selectedURI(), selected);

        view.selectURI(QStringLiteral("hp:/usb/x"));
        QCOMPARE(view.selectedItem(), item);
        QCOMPARE(view.mfpMode(), mfpAfter);
    }

    void displayText()
    {
        PrinterPortListView view;
        QCOMPARE(view.displayText(QStringLiteral("usb:/dev/usb/lp1")), QStringLiteral("/dev/usb/lp1"));
        QCOMPARE(view.displayText(QStringLiteral("ipp://fe80::1")), QStringLiteral("ipp://fe80::1"));
        QCOMPARE(view.displayText(QStringLiteral("hp:/usb/x")), QString());
    }

    void selectionEditable_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("child");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("editable");

        QTest::newRow("nothing selected") << -1 << -1 << "" << false;
        QTest::newRow("group") << int(Network) << -1 << "" << true;
        QTest::newRow("local device") << int(NativeUsb) << 0 << "" << true;
        QTest::newRow("bare prefix") << int(Network) << 0 << "" << false;
        QTest::newRow("valid address") << int(Network) << 1 << "socket://1.2.3.4:9100" << true;
        QTest::newRow("lpd without queue") << int(Network) << 2 << "lpd://host" << false;
        QTest::newRow("relative file") << int(File) << 0 << "file:out.prn" << false;
    }

    void selectionEditable()
    {
        QFETCH(int, group);
        QFETCH(int, child);
        QFETCH(QString, text);
        QFETCH(bool, editable);

        PrinterPortListView view;
        if (group >= 0) {
            QTreeWidgetItem *item = entry(view, group, child);
            if (!text.isEmpty())
                item->setText(0, text);
            view.setCurrentItem(item);
        }
        QCOMPARE(view.isSelectionEditable(), editable);
    }

    // Double-click renames the network and file entries only; the text being
    // typed is judged, and stored with the prefix put back.
    void doubleClickRename_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("child");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("uri");

        QTest::newRow("ipp over the prefix") << int(Network) << 0 << "host" << "ipp://host";
        QTest::newRow("lpd host and queue") << int(Network) << 2 << "host/queue" << "lpd://host/queue";
        QTest::newRow("file path") << int(File) << 0 << "/tmp/x.prn" << "file:/tmp/x.prn";
        QTest::newRow("group") << int(Network) << -1 << "" << "";
        QTest::newRow("local device") << int(NativeParallel) << 1 << "" << "parallel:/dev/lp1";
    }

    void doubleClickRename()
    {
        QFETCH(int, group);
        QFETCH(int, child);
        QFETCH(QString, typed);
        QFETCH(QString, uri);

        PrinterPortListView view;
        view.resize(300, 700);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QSignalSpy renaming(&view, &ListViewEx::itemRenaming);
        QTreeWidgetItem *item = entry(view, group, child);
        const QString before = item->text(0);
        const QPoint at = view.visualItemRect(item).center();
        // QTest sends only the second press, as the double-click event.
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(view.selectedItem(), item);
        auto *editor = view.findChild<QLineEdit *>();
        if (typed.isEmpty()) {
            QVERIFY(!editor && !view.isRenaming());
        } else {
            QVERIFY(editor);
            QCOMPARE(editor->text(), before);
            QTest::keyClicks(editor, typed);
            QCOMPARE(renaming.size(), typed.size());
            QCOMPARE(renaming.last().at(2).toString(), typed);
            QVERIFY(view.isSelectionEditable());
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_VERIFY(!view.isRenaming());
        }
        QCOMPARE(view.selectedURI(), uri);
    }

    void renameWithoutSelection()
    {
        PrinterPortListView view;
        QTest::ignoreMessage(QtWarningMsg, "No item selected");
        view.startRenameSelectedItem();
        QVERIFY(!view.isRenaming());
    }
};

QTEST_MAIN(TestPrinterPortListView)
#include "tst_printerportlistview.moc"
