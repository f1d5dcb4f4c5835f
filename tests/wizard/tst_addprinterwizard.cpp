#include "AddPrinterWizard.h"
#include "browserlauncher.h"
#include "cupssandbox.h"
#include "fakemachine.h"
#include "pixmapmanager.h"
#include "printerportlistview.h"
#include "urlpushbutton.h"
#include "wizardfixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

using W = AddPrinterWizard;

class TestAddPrinterWizard : public QObject
{
    Q_OBJECT

    // On the round mark: a radio button's text may be shorter than the button.
    static void clickRadio(const WizardFixture &f, const char *name)
    {
        auto *button = f.child<QRadioButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(button->height() / 2, button->height() / 2));
    }

    // Goes from the welcome page to the ports page, by hand.
    static bool toPortsPage(const WizardFixture &f)
    {
        if (!f.click(QWizard::NextButton))
            return false;
        clickRadio(f, "OfflineButton");
        return f.click(QWizard::NextButton) && f.wizard()->currentId() == W::PortsPage;
    }

    static void select(PrinterPortListView *view, const QString &text)
    {
        const QList<QTreeWidgetItem *> items = view->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        if (items.isEmpty())
            return;
        view->scrollToItem(items.first());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(items.first()).center());
    }

    // From the welcome page to the driver page with /dev/lp0 as the port.
    static bool toDriverPage(const WizardFixture &f)
    {
        if (!toPortsPage(f))
            return false;
        select(f.child<PrinterPortListView>("PortsView"), "/dev/lp0");
        return f.click(QWizard::NextButton) && f.wizard()->currentId() == W::DriverPage;
    }

    static void chooseDriver(const WizardFixture &f, const QString &text)
    {
        auto *list = f.child<QListWidget>("DriversList");
        QList<QListWidgetItem *> items = list->findItems(text, Qt::MatchExactly);
        if (items.isEmpty()) {
            list->addItem(text);
            items = list->findItems(text, Qt::MatchExactly);
        }
        list->scrollToItem(items.first());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items.first()).center());
    }

    static bool nextEnabled(const WizardFixture &f)
    {
        return f.button(QWizard::NextButton)->isEnabled();
    }

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*")));
    }

    void startsOnWelcomePage()
    {
        WizardFixture f;
        QVERIFY(f.load());
        QCOMPARE(f.wizard()->currentId(), int(W::WelcomePage));
        QVERIFY(f.child<QRadioButton>("ConnectedButton")->isChecked());
        QCOMPARE(f.wizard()->portTypeId(), int(W::PortType_Connected));
        QVERIFY(!f.button(QWizard::BackButton)->isVisible());
        QVERIFY(nextEnabled(f));
        // The vendor's sample drivers only, by name; a model in two languages
        // is told apart by its language.
        auto *list = f.child<QListWidget>("DriversList");
        QStringList drivers;
        for (int i = 0; i < list->count(); ++i)
            drivers << list->item(i)->text();
        QCOMPARE(drivers, (QStringList{ "Acme ColorLaser 2550", "Acme Laser 1610 Series (de)",
                                        "Acme Laser 1610 Series (en)", "Acme MFP 4200 Series" }));
        QVERIFY(!f.wizard()->isDriverAssigned());
    }

    void portType_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("localUsable");
        QTest::addColumn<bool>("next");
        QTest::addColumn<int>("pageAfterNext");

        QTest::newRow("no local device") << "empty" << "" << false << false << -1;
        QTest::newRow("local device") << "usb with id" << "" << true << true << int(W::DriverPage);
        QTest::newRow("network, nothing found") << "usb with id" << "NetworkButton" << true << false << -1;
        QTest::newRow("by hand") << "empty" << "OfflineButton" << false << true << int(W::PortsPage);
        QTest::newRow("back to local") << "usb with id" << "OfflineButton,ConnectedButton" << true << true
                                       << int(W::DriverPage);
    }

    void portType()
    {
        QFETCH(QString, machine);
        QFETCH(QString, type);
        QFETCH(bool, localUsable);
        QFETCH(bool, next);
        QFETCH(int, pageAfterNext);

        WizardFixture f(machine);
        QVERIFY(f.load());
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::PortTypePage));
        for (const QString &button : type.split(',', Qt::SkipEmptyParts))
            clickRadio(f, qPrintable(button));

        QCOMPARE(f.child<QRadioButton>("ConnectedButton")->isEnabled(), localUsable);
        QCOMPARE(f.child<QComboBox>("ConnectedList")->isEnabled(),
                 localUsable && f.wizard()->portTypeId() == W::PortType_Connected);
        QCOMPARE(f.child<QComboBox>("NetworkList")->isEnabled(), false);
        QCOMPARE(nextEnabled(f), next);
        if (pageAfterNext >= 0) {
            QVERIFY(f.click(QWizard::NextButton));
            QCOMPARE(f.wizard()->currentId(), pageAfterNext);
            QVERIFY(f.click(QWizard::BackButton));
            QCOMPARE(f.wizard()->currentId(), int(W::PortTypePage));
        }
    }

    void portsPage_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("endKey");
        QTest::addColumn<bool>("next");
        QTest::addColumn<QString>("uri");

        QTest::newRow("nothing selected") << "" << "" << 0 << false << "";
        QTest::newRow("a group") << "Network" << "" << 0 << false << "";
        QTest::newRow("a device") << "/dev/usb/lp1" << "" << 0 << true << "usb:/dev/usb/lp1";
        QTest::newRow("bare prefix") << "ipp://" << "" << 0 << false << "ipp://";
        QTest::newRow("typing a host") << "ipp://" << "printer.local" << 0 << true << "ipp://";
        QTest::newRow("typing a bad port") << "socket://" << "host:99999" << 0 << false << "socket://";
        QTest::newRow("typing, then erasing") << "ipp://" << "h\b" << 0 << false << "ipp://";
        QTest::newRow("typed and confirmed") << "lpd://" << "host/queue" << int(Qt::Key_Return) << true
                                             << "lpd://host/queue";
        QTest::newRow("typed and given up") << "lpd://" << "host/queue" << int(Qt::Key_Escape) << false << "lpd://";
    }

    // Next follows the selected entry, and the text being typed while one
    // is renamed.
    void portsPage()
    {
        QFETCH(QString, entry);
        QFETCH(QString, typed);
        QFETCH(int, endKey);
        QFETCH(bool, next);
        QFETCH(QString, uri);

        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toPortsPage(f));
        QVERIFY(!nextEnabled(f));
        auto *view = f.child<PrinterPortListView>("PortsView");
        if (!entry.isEmpty())
            select(view, entry);
        if (!typed.isEmpty()) {
            QTest::keyClick(view, Qt::Key_F2);
            auto *editor = view->findChild<QLineEdit *>();
            QVERIFY(editor);
            QTest::keyClicks(editor, typed);
            if (endKey) {
                QTest::keyClick(editor, Qt::Key(endKey));
                QTRY_VERIFY(!view->findChild<QLineEdit *>());
            }
        }
        QCOMPARE(nextEnabled(f), next);
        QCOMPARE(f.wizard()->isPortAssigned(), next);
        QCOMPARE(view->selectedURI(), uri);
        QCOMPARE(f.wizard()->currentId(), int(W::PortsPage));
    }

    void driverPageFollowsSelection()
    {
        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toDriverPage(f));
        QVERIFY(!nextEnabled(f));
        chooseDriver(f, "Acme MFP 4200 Series");
        QVERIFY(f.wizard()->isDriverAssigned());
        QVERIFY(nextEnabled(f));
        auto *list = f.child<QListWidget>("DriversList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualItemRect(list->currentItem()).center());
        QVERIFY(!f.wizard()->isDriverAssigned());
        QVERIFY(!nextEnabled(f));
    }

    void nameProposal_data()
    {
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QString>("name");

        QTest::newRow("first word with a digit") << "Laser 1610 Series" << "1610";
        QTest::newRow("no digit: first word") << "Acme Deskjet" << "acme";
    }

    void nameProposal()
    {
        QFETCH(QString, driver);
        QFETCH(QString, name);

        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toDriverPage(f));
        chooseDriver(f, driver);
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::NamePage));
        auto *edit = f.child<QLineEdit>("NameEdit");
        QCOMPARE(edit->text(), name);
        QVERIFY(edit->hasFocus());
        QVERIFY(nextEnabled(f));
    }

    // A name typed or accepted earlier is never replaced by a proposal.
    void nameKept()
    {
        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toDriverPage(f));
        chooseDriver(f, "Acme ColorLaser 2550");
        QVERIFY(f.click(QWizard::NextButton));
        auto *edit = f.child<QLineEdit>("NameEdit");
        edit->selectAll();
        QTest::keyClicks(edit, "office");
        QVERIFY(f.click(QWizard::BackButton));
        chooseDriver(f, "Acme MFP 4200 Series");
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(edit->text(), QStringLiteral("office"));

        // Emptied, the field gets the current driver's proposal again.
        edit->clear();
        QVERIFY(!nextEnabled(f));
        QVERIFY(f.click(QWizard::BackButton));
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(edit->text(), QStringLiteral("4200"));
    }

    void nameValidator_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("name");

        QTest::newRow("blank refused") << "my printer" << "myprinter";
        QTest::newRow("punctuation refused") << "a.b-c!/" << "abc";
        QTest::newRow("digits and underscore") << "lab_2" << "lab_2";
        QTest::newRow("letters of any script") << QString::fromUtf8("Büro") << QString::fromUtf8("Büro");
        QTest::newRow("only blanks") << "   " << "";
    }

    void nameValidator()
    {
        QFETCH(QString, typed);
        QFETCH(QString, name);

        WizardFixture f;
        QVERIFY(f.load());
        QVERIFY(toDriverPage(f));
        chooseDriver(f, "Acme ColorLaser 2550");
        QVERIFY(f.click(QWizard::NextButton));
        auto *edit = f.child<QLineEdit>("NameEdit");
        edit->clear();
        // Key events carrying any character, not only those of a US keyboard.
        for (const QChar c : typed)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
        QCOMPARE(edit->text(), name);
        QCOMPARE(nextEnabled(f), !name.isEmpty());
    }

    void cancel_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<int>("result");

        QTest::newRow("welcome page, No") << int(W::WelcomePage) << "No" << false << 0;
        QTest::newRow("name page, No") << int(W::NamePage) << "No" << false << 0;
        QTest::newRow("name page, Yes") << int(W::NamePage) << "Yes" << true << int(QDialog::Rejected);
        QTest::newRow("last page, no question") << int(W::FinishPage) << "" << true << int(QDialog::Accepted);
    }

    void cancel()
    {
        QFETCH(int, page);
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        QFETCH(int, result);

        WizardFixture f;
        QVERIFY(f.load());
        QLineEdit *location = f.child<QLineEdit>("LocationEdit");
        if (page != W::WelcomePage) {
            QVERIFY(toDriverPage(f));
            chooseDriver(f, "Acme ColorLaser 2550");
            QVERIFY(f.click(QWizard::NextButton));
            QTest::keyClicks(location, "Room 7");
            if (page == W::FinishPage) {
                const QString queue = QStringLiteral("wizcancel_%1").arg(QCoreApplication::applicationPid());
                f.child<QLineEdit>("NameEdit")->setText(queue);
                QVERIFY(f.click(QWizard::NextButton));
                CupsSandbox::run({ "lpadmin", "-x", queue });
            }
        }
        QCOMPARE(f.wizard()->currentId(), page);

        QString question;
        WizardFixture::answerMessageBox(answer.isEmpty() ? QStringLiteral("No") : answer, &question, 1000);
        // On the last page the queue exists: Cancel is gone, closing the
        // window (Escape) stays.
        QCOMPARE(f.button(QWizard::CancelButton)->isVisible(), page != W::FinishPage);
        if (page == W::FinishPage)
            QTest::keyClick(f.wizard(), Qt::Key_Escape);
        else
            QVERIFY(f.click(QWizard::CancelButton));
        QCOMPARE(question.isEmpty(), answer.isEmpty());
        if (!question.isEmpty())
            QCOMPARE(question, QStringLiteral("Add printer Wizard|Printer is not installed. Are you sure to cancel "
                                              "wizard?"));
        QCOMPARE(f.wizard()->isVisible(), !closed);
        if (closed) {
            QCOMPARE(f.wizard()->result(), result);
        } else {
            QCOMPARE(f.wizard()->currentId(), page);
            QCOMPARE(location->text(), page == W::WelcomePage ? QString() : QStringLiteral("Room 7"));
        }
        if (answer.isEmpty())
            QTest::qWait(1100);  // until the unused answering timer has given up
    }

    void networkHelpButton_data()
    {
        QTest::addColumn<QByteArray>("url");
        QTest::addColumn<bool>("helpInstalled");
        QTest::addColumn<bool>("visible");

        QTest::newRow("page of the help folder") << QByteArray() << true << true;
        QTest::newRow("help folder without the page") << QByteArray() << false << false;
        QTest::newRow("missing local file") << QByteArray("file:///nonexistent/network.htm") << true << false;
        QTest::newRow("remote page") << QByteArray("https://printers.example/network") << false << true;
    }

    void networkHelpButton()
    {
        QFETCH(QByteArray, url);
        QFETCH(bool, helpInstalled);
        QFETCH(bool, visible);

        const QByteArray formUrl = "PellomarAddPrinterWizard.htm#network";
        WizardFixture f;
        if (!helpInstalled)
            QVERIFY(QFile::remove(f.shareDir() + "/help/PellomarAddPrinterWizard.htm"));
        QVERIFY(f.load(WizardFixture::programForm(formUrl, url.isEmpty() ? formUrl : url)));
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.child<URLPushButton>("ConfigureNetworkButton")->isVisible(), visible);
    }

    void localDevices_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("driver");

        QTest::newRow("device ID names the model")
            << "usb with id" << QStringList{ "Laser 1610 on /dev/mfp0" } << 0 << "mfp:/dev/mfp0"
            << "Acme Laser 1610 Series (en)";
        QTest::newRow("product string names the model")
            << "usb without id" << QStringList{ "ColorLaser 2550 on /dev/mfp0" } << 0 << "mfp:/dev/mfp0"
            << "Acme ColorLaser 2550";
        QTest::newRow("no driver fits") << "parallel" << QStringList{ "LaserJet 4 on /dev/mfp0" } << 0
                                        << "mfp:/dev/mfp0" << "";
        QTest::newRow("second of three")
            << "bus order"
            << QStringList{ "HP LaserJet 1020 on /dev/mfp0", "MFP 4200 on /dev/mfp1", "Acme Jet 3 on /dev/mfp2" }
            << 1 << "mfp:/dev/mfp1" << "Acme MFP 4200 Series";
        QTest::newRow("nameless device left out")
            << "nameless" << QStringList{ "ColorLaser 2550 on /dev/mfp1" } << 0 << "mfp:/dev/mfp1"
            << "Acme ColorLaser 2550";
    }

    void localDevices()
    {
        QFETCH(QString, machine);
        QFETCH(QStringList, labels);
        QFETCH(int, chosen);
        QFETCH(QString, uri);
        QFETCH(QString, driver);

        WizardFixture f(machine);
        if (machine == QLatin1String("nameless")) {
            // A printer that reports neither its model nor an ID comes first.
            f.machine().clear();
            f.machine().addUsbDevice("1-1", "Acme", QString(), "X1");
            f.machine().addUsbInterface("1-1:1.0", 0x07);
            f.machine().addUsbPrinter("1-2", "Acme", "ColorLaser 2550", "CL1");
        }
        QVERIFY(f.load());
        auto *list = f.child<QComboBox>("ConnectedList");
        QStringList shown;
        for (int i = 0; i < list->count(); ++i)
            shown << list->itemText(i);
        QCOMPARE(shown, labels);

        QVERIFY(f.click(QWizard::NextButton));
        list->setFocus();
        for (int i = 0; i < chosen; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentIndex(), chosen);

        QVERIFY(nextEnabled(f));
        QVERIFY(f.wizard()->isPortAssigned());
        QCOMPARE(f.child<PrinterPortListView>("PortsView")->selectedURI(), uri);
        QVERIFY(!f.child<QLabel>("ConnectedImage")->pixmap().isNull());
        auto *drivers = f.child<QListWidget>("DriversList");
        QCOMPARE(f.wizard()->isDriverAssigned() ? drivers->currentItem()->text() : QString(), driver);

        // The match is a proposal: the driver page lets another be chosen.
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(f.wizard()->currentId(), int(W::DriverPage));
        QCOMPARE(nextEnabled(f), !driver.isEmpty());
        chooseDriver(f, "Acme MFP 4200 Series");
        QVERIFY(nextEnabled(f));
    }

    // A picture named in the share directory's pictures.ini.
    void devicePicture_data()
    {
        QTest::addColumn<QByteArray>("pictures");
        QTest::addColumn<QString>("expected");

        QTest::newRow("no pictures.ini") << QByteArray() << "printer";
        QTest::newRow("built-in picture") << QByteArray("# by model\nlaser 1610 = scanner\n") << "scanner";
        QTest::newRow("picture file") << QByteArray("Laser 1610=pictures/laser.png\n") << "file";
    }

    void devicePicture()
    {
        QFETCH(QByteArray, pictures);
        QFETCH(QString, expected);

        WizardFixture f("usb with id");
        QImage picture(40, 30, QImage::Format_ARGB32);
        picture.fill(Qt::darkCyan);
        QVERIFY(QDir().mkpath(f.shareDir() + "/pictures"));
        QVERIFY(picture.save(f.shareDir() + "/pictures/laser.png"));
        if (!pictures.isNull()) {
            QFile ini(f.shareDir() + "/pictures.ini");
            QVERIFY(ini.open(QIODevice::WriteOnly));
            ini.write(pictures);
        }
        QVERIFY(f.load());
        const QImage shown = f.child<QLabel>("ConnectedImage")->pixmap().toImage();
        const QImage wanted = expected == "file"      ? picture
                              : expected == "scanner" ? PixmapManager::genericScanner().toImage()
                                                      : PixmapManager::genericPrinter().toImage();
        QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32), wanted.convertToFormat(QImage::Format_ARGB32));
    }

    // Help opens the program's help page in the browser.
    void help()
    {
        WizardFixture f;
        QVERIFY(f.load());
        const QString log = f.shareDir() + "/browser.log";
        const QString browser = f.shareDir() + "/browser";
        QFile script(browser);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write(QStringLiteral("#!/bin/sh\necho \"$1\" > '%1'\n").arg(log).toUtf8());
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        BrowserLauncher::setCandidates({ browser });

        QVERIFY(f.click(QWizard::HelpButton));
        const auto opened = [&log] {
            QFile file(log);
            return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
        };
        QTRY_COMPARE(opened(), QUrl::fromLocalFile(f.shareDir() + "/help/PellomarAddPrinterWizard.htm").toEncoded());
        BrowserLauncher::setCandidates({});
    }
};

QTEST_MAIN(TestAddPrinterWizard)
#include "tst_addprinterwizard.moc"
