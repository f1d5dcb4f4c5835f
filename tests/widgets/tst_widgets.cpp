#include "browserlauncher.h"
#include "cupsmanager.h"
#include "cupsprinter.h"
#include "formattedlistitem.h"
#include "printerportlistview.h"
#include "testsupport.h"
#include "urivalidator.h"
#include "urlpushbutton.h"

#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest>

enum Group { MfpParallel, MfpUsb, NativeParallel, NativeUsb, Network, File };

// The port list with its URI validators, and the help button.
class TestWidgets : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

    // A browser that writes its name and arguments, one a line, to "out".
    QString fakeBrowser(const QString &name) const
    {
        TestSupport::writeFile(path(name),
                               QStringLiteral("#!/bin/sh\nprintf '%s\\n' \"$0\" \"$@\" > '%1.tmp' && mv '%1.tmp' '%1'\n")
                                   .arg(path("out")).toLocal8Bit(), true);
        return path(name);
    }

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

    static QLineEdit *openEditor(const PrinterPortListView &view)
    {
        QList<QLineEdit *> open;
        for (QLineEdit *e : view.findChildren<QLineEdit *>())
            if (!e->isHidden())
                open << e;
        return open.size() == 1 ? open.first() : nullptr;
    }

private slots:
    // A CUPS that takes IPv6 addresses, whatever this machine runs.
    void initTestCase() { CUPSManager::m_CUPSManagerInstance.CupsVersion = 204; }
    void init() { TestSupport::failOnWarnings(); }
    void cleanup() { BrowserLauncher::setCandidates({}); }

    // The grammar of each scheme's validator, and the repair it makes.
    void validator_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<bool>("ipv6");
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("acceptable");
        QTest::addColumn<QString>("output");
        auto row = [](const char *name, int scheme, bool ipv6, const QString &in, bool ok, const QString &out) {
            QTest::newRow(name) << scheme << ipv6 << in << ok << out;
        };
        const bool v6 = true, v4 = false, ok = true, bad = false;

        row("host:port, prefix added", 1, v4, "printer:631", ok, "ipp://printer:631");
        row("port 65535", 1, v4, "ipp://printer:65535", ok, "ipp://printer:65535");
        row("port 65536", 1, v4, "ipp://printer:65536", bad, "ipp://printer:65536");
        row("port overflowing", 1, v4, "ipp://p:99999999999999999999", bad, "ipp://p:99999999999999999999");
        row("nothing typed", 1, v4, "", bad, "ipp://");
        row("path refused", 1, v4, "ipp://host/printers/x", bad, "ipp://host/printers/x");
        row("hyphen at label end", 2, v4, "socket://host-.example", bad, "socket://host-.example");
        row("letters of any script", 2, v4, "drucker-köln", ok, "socket://drucker-köln");
        row("v6 compressed", 1, v6, "fe80::1", ok, "ipp://[fe80::1]");
        row("v6 bracketed, port 65536", 1, v6, "[fe80::1]:65536", bad, "ipp://[fe80::1]:65536");
        row("v6 full form", 2, v6, "1:2:3:4:5:6:7:abcd", ok, "socket://[1:2:3:4:5:6:7:abcd]");
        row("v6 two ::", 1, v6, "fe80::1::2", bad, "ipp://fe80::1::2");
        row("v6 embedded IPv4, port", 1, v6, "[::ffff:10.0.0.1]:631", ok, "ipp://[::ffff:10.0.0.1]:631");
        row("v6 embedded octet 300", 1, v6, "::ffff:300.1.1.1", bad, "ipp://::ffff:300.1.1.1");
        row("no v6: compressed", 1, v4, "fe80::1", bad, "ipp://fe80::1");
        row("no v6: two groups are host:port", 1, v4, "1:2", ok, "ipp://1:2");
        row("lpd host/queue", 3, v4, "host/queue_1", ok, "lpd://host/queue_1");
        row("lpd port refused", 3, v4, "lpd://host:515/queue", bad, "lpd://host:515/queue");
        row("lpd no queue", 3, v4, "lpd://host/", bad, "lpd://host/");
        row("lpd v6", 3, v6, "fe80::1/q", ok, "lpd://[fe80::1]/q");
        row("smb workgroup", 4, v4, "smb://WORKGROUP/server/share", ok, "smb://WORKGROUP/server/share");
        row("smb password as is", 4, v4, "u:p w/x@WG/server/share", ok, "smb://u:p w/x@WG/server/share");
        row("smb blank in share", 4, v4, "smb://server/my share", bad, "smb://server/my share");
        row("smb port refused", 4, v4, "smb://server:139/share", bad, "smb://server:139/share");
        row("smb v6, rebuilt", 4, v6, "u:p@WG/fe80::1/share", ok, "smb://u:p@WG/[fe80::1]/share");
        row("file absolute", 5, v4, "/dev/null", ok, "file:/dev/null");
        row("file relative", 5, v4, "file:tmp/x", bad, "file:tmp/x");
        row("scheme out of range", 9, v4, "x", bad, "x");
        // The repair may shorten the text; the cursor follows it.
        row("slashes before an IPv6 queue", 3, v6, "//////::/6", ok, "lpd://[::]/6");
        // Long input is judged, not given up on.
        const QString host = QStringLiteral("a.").repeated(5000) + QStringLiteral("b");
        row("long host name", 2, v6, host, ok, "socket://" + host);
        row("long run of colons", 1, v6, QString(4000, ':'), bad, "ipp://" + QString(4000, ':'));
    }

    void validator()
    {
        QFETCH(int, scheme);
        QFETCH(bool, ipv6);
        QFETCH(QString, input);
        QFETCH(bool, acceptable);
        QFETCH(QString, output);

        if (scheme < 1 || scheme > 5)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Unexpected scheme %1").arg(scheme)));
        UriValidator validator(scheme, ipv6);
        // Typing at the end: the cursor stays at the end of the repaired text.
        int pos = static_cast<int>(input.size());
        QCOMPARE(validator.validate(input, pos), acceptable ? QValidator::Acceptable : QValidator::Invalid);
        QCOMPARE(input, output);
        QCOMPARE(pos, static_cast<int>(output.size()));
    }

    // Renamable entries are marked "*", with their validator's scheme.
    void structure()
    {
        PrinterPortListView view;
        QStringList tree;
        for (int i = 0; i < view.topLevelItemCount(); ++i) {
            QTreeWidgetItem *g = view.topLevelItem(i);
            QStringList children;
            for (int j = 0; j < g->childCount(); ++j) {
                auto *item = dynamic_cast<FormattedListItem *>(g->child(j));
                auto *validator = item ? qobject_cast<UriValidator *>(item->validator(0)) : nullptr;
                QVERIFY(!validator || validator->ipv6Allowed());
                children << g->child(j)->text(0)
                        + (validator && item->renameEnabled(0) ? QStringLiteral("*%1").arg(validator->scheme()) : "");
            }
            tree << g->text(0) + "/" + g->text(1) + ": " + children.join(' ');
        }
        QCOMPARE(tree, (QStringList{
            "Parallel/mfp: /dev/mfp0 /dev/mfp1 /dev/mfp2 /dev/mfp3",
            "USB/mfp: /dev/mfp4 /dev/mfp5 /dev/mfp6 /dev/mfp7 /dev/mfp8 /dev/mfp9 /dev/mfp10 /dev/mfp11",
            "Parallel/native: /dev/lp0 /dev/lp1 /dev/lp2 /dev/lp3",
            "USB/native: /dev/usb/lp0 /dev/usb/lp1 /dev/usb/lp2 /dev/usb/lp3 /dev/usb/lp4 /dev/usb/lp5 "
            "/dev/usb/lp6 /dev/usb/lp7",
            "Network/: ipp://*1 socket://*2 lpd://*3 smb://*4",
            "File/: file:*5"}));

        QCOMPARE(shownGroups(view), (QStringList{"Parallel/native", "USB/native", "Network/", "File/"}));
        QVERIFY(view.setProperty("mfpMode", true));
        QCOMPARE(shownGroups(view), (QStringList{"Parallel/mfp", "USB/mfp", "Network/", "File/"}));
        view.setMfpMode(false);
        QCOMPARE(shownGroups(view), (QStringList{"Parallel/native", "USB/native", "Network/", "File/"}));

        CUPSManager::m_CUPSManagerInstance.CupsVersion = 101;  // CUPS 1.1: no IPv6 in device URIs yet
        PrinterPortListView old;
        QVERIFY(!static_cast<UriValidator *>(static_cast<FormattedListItem *>(entry(old, Network, 3))->validator(0))
                     ->ipv6Allowed());
        CUPSManager::m_CUPSManagerInstance.CupsVersion = 204;
    }

    // Selecting shows the entry's group and gives back the URI of the entry;
    // an unknown URI changes nothing.
    void selectURI_data()
    {
        QTest::addColumn<bool>("mfpBefore");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<bool>("mfpAfter");
        auto row = [](const char *name, bool mfpBefore, const char *uri, const char *shown, const char *selected,
                      bool mfpAfter) {
            QTest::newRow(name) << mfpBefore << QString(uri) << QString(shown) << QString(selected) << mfpAfter;
        };
        row("mfp flips the mode", false, "mfp:/dev/mfp2", "/dev/mfp2", "mfp:/dev/mfp2", true);
        row("mfp11, not mfp1", true, "mfp:/dev/mfp11", "/dev/mfp11", "mfp:/dev/mfp11", true);
        row("usb flips back", true, "usb:/dev/usb/lp3", "/dev/usb/lp3", "usb:/dev/usb/lp3", false);
        row("network keeps the mode", true, "socket://1.2.3.4:9100", "socket://1.2.3.4:9100", "socket://1.2.3.4:9100",
            true);
        row("network repaired", false, "ipp://fe80::1", "ipp://[fe80::1]", "ipp://[fe80::1]", false);
        row("file", false, "file:/tmp/out", "file:/tmp/out", "file:/tmp/out", false);
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

        QCOMPARE(view.displayText(QStringLiteral("hp:/usb/x")), QString());
        view.selectURI(QStringLiteral("hp:/usb/x"));
        QCOMPARE(view.selectedItem(), item);
        QCOMPARE(view.mfpMode(), mfpAfter);
    }

    // Double-click renames the network and file entries only. Every
    // keystroke is heard with the whole text; how the rename ends decides
    // what is stored, the prefix put back.
    void doubleClickRename_data()
    {
        QTest::addColumn<int>("group");
        QTest::addColumn<int>("child");
        QTest::addColumn<bool>("toEnd");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("endKey");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<bool>("editable");

        auto row = [](const char *name, int group, int child, bool toEnd, const char *typed, int endKey,
                      const char *uri, bool editable) {
            QTest::newRow(name) << group << child << toEnd << QString(typed) << endKey << QString(uri) << editable;
        };
        row("Enter over the selected prefix", Network, 0, false, "host", Qt::Key_Return, "ipp://host", true);
        row("Enter after the prefix", Network, 2, true, "host/q", Qt::Key_Enter, "lpd://host/q", true);
        row("Enter keeps invalid text", File, 0, true, "x.prn", Qt::Key_Return, "file:x.prn", false);
        row("Escape", Network, 1, true, "host", Qt::Key_Escape, "socket://", false);
        row("focus leaves the editor", Network, 0, true, "h", 0, "ipp://h", true);
        row("group", Network, -1, false, "", 0, "", true);
        row("local device", NativeParallel, 1, false, "", 0, "parallel:/dev/lp1", true);
    }

    void doubleClickRename()
    {
        QFETCH(int, group);
        QFETCH(int, child);
        QFETCH(bool, toEnd);
        QFETCH(QString, typed);
        QFETCH(int, endKey);
        QFETCH(QString, uri);
        QFETCH(bool, editable);

        PrinterPortListView view;
        view.resize(300, 700);
        view.show();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        QSignalSpy renaming(&view, &ListViewEx::itemRenaming);
        QSignalSpy canceled(&view, &ListViewEx::renameCanceled);
        QTreeWidgetItem *item = entry(view, group, child);
        const QString before = item->text(0);
        const QPoint at = view.visualItemRect(item).center();
        // QTest sends only the second press, as the double-click event.
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(view.selectedItem(), item);
        QLineEdit *editor = openEditor(view);
        auto *renamed = dynamic_cast<ListViewItemEx *>(item);
        if (typed.isEmpty()) {
            QVERIFY(!editor && !view.isRenaming());
        } else {
            QVERIFY(editor && renamed);
            QCOMPARE(editor->selectedText(), before);
            if (toEnd)
                QTest::keyClick(editor, Qt::Key_End);
            QTest::keyClicks(editor, typed);
            const QString head = toEnd ? before : QString();
            QCOMPARE(renaming.size(), typed.size());
            for (int i = 0; i < typed.size(); ++i)
                QCOMPARE(renaming.at(i), (QVariantList{QVariant::fromValue(renamed), 0, head + typed.left(i + 1)}));
            // What is being typed is judged, not what is stored.
            QCOMPARE(view.isSelectionEditable(), renamed->isAcceptable(0, head + typed));

            if (endKey)
                QTest::keyClick(editor, Qt::Key(endKey));
            else
                view.setFocus();
            QTRY_VERIFY(!view.isRenaming());
            QVERIFY(!view.renamingItem() && !renamed->editor());
            QCOMPARE(canceled.size(), endKey == Qt::Key_Escape ? 1 : 0);
            if (!canceled.isEmpty())
                QCOMPARE(canceled.first(), (QVariantList{QVariant::fromValue(renamed), 0}));
            QCOMPARE(renaming.size(), typed.size());
        }
        QCOMPARE(view.selectedURI(), uri);
        QCOMPARE(view.isSelectionEditable(), editable);
    }

    // Only column 0 is renamed; a second rename, started with F2, stores the
    // first.
    void renameOneAtATime()
    {
        PrinterPortListView view;
        view.show();
        QVERIFY(QTest::qWaitForWindowActive(&view));
        auto *ipp = static_cast<FormattedListItem *>(entry(view, Network, 0));
        auto *socket = static_cast<FormattedListItem *>(entry(view, Network, 1));
        ipp->startRename(1);
        QVERIFY(!view.isRenaming() && !openEditor(view));
        ipp->startRename(0);
        QTest::keyClicks(openEditor(view), QStringLiteral("one"));
        socket->startRename(1);
        QCOMPARE(view.renamingItem(), ipp);
        view.setCurrentItem(socket);
        QTest::keyClick(&view, Qt::Key_F2);
        QCOMPARE(ipp->text(0), QStringLiteral("ipp://one"));
        QCOMPARE(view.renamingItem(), socket);
        QTest::keyClick(openEditor(view), Qt::Key_Escape);

        view.clearSelection();
        QVERIFY(!view.isSelectionEditable());
        QTest::ignoreMessage(QtWarningMsg, "No item selected");
        view.startRenameSelectedItem();
        QTRY_VERIFY(!view.isRenaming());
    }

    // The first browser that exists is started with the address as one
    // word, whatever the shell would read in either.
    void buttonOpensItsAddress_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("blank") << "file:///opt/help page.htm";
        QTest::newRow("shell characters") << "file:///opt/it's $(id) `id` $HOME;|&<>*\\.htm";
    }

    void buttonOpensItsAddress()
    {
        QFETCH(QString, address);
        QFile::remove(path("out"));
        BrowserLauncher::setCandidates({path("missing"), fakeBrowser("first $x'"), fakeBrowser("second")});
        URLPushButton button;
        QVERIFY(button.setProperty("url", address));
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_VERIFY(QFile::exists(path("out")));
        QCOMPARE(QString::fromLocal8Bit(TestSupport::readFile(path("out"))), path("first $x'") + "\n" + address + "\n");
    }

    void noBrowserTellsTheAddress()
    {
        BrowserLauncher::setCandidates({path("none")});
        QString seen;
        TestSupport::answerMessageBox(QString(), &seen);
        BrowserLauncher::launch(QStringLiteral("http://127.0.0.1/help.htm"), nullptr);
        QCOMPARE(seen, QStringLiteral("Warning|Web browser not found.\nUse that address:\nhttp://127.0.0.1/help.htm"));
    }
};

QTEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
