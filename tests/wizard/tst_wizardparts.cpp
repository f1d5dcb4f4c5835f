#include "AddPrinterWizard.h"
#include "drivermatcher.h"
#include "localdevicelist.h"
#include "pixmapmanager.h"
#include "samedevice.h"
#include "testpaths.h"
#include "testsupport.h"
#include "wizardpagetitle.h"
#include "wizardpagetitleuiloader.h"

#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

QMap<QString, CUPSDriver> sampleDrivers()
{
    QMap<QString, CUPSDriver> drivers;
    const auto add = [&](const QString &key, const QString &make, const QString &model, const QString &lang) {
        drivers.insert(key, CUPSDriver(make, model, key.toLower().replace(' ', '-') + ".ppd", lang));
    };
    add("Acme ColorLaser 2550", "Acme", "Acme ColorLaser 2550", "en");
    add("Acme Laser 1610 Series (de)", "Acme", "Acme Laser 1610 Series", "de");
    add("Acme Laser 1610 Series (en)", "Acme", "Acme Laser 1610 Series", "en");
    add("Acme Laser 16", "Acme", "Acme Laser 16", "en");
    add("Acme MFP 4200 Series", "Acme", "Acme MFP 4200 Series", "en");
    add("Acme MFP 4200DN Duplex", "Acme", "Acme MFP 4200DN Duplex", "en");
    add("Globex PageWriter 40", "Globex", "Globex PageWriter 40", "en");
    return drivers;
}

constexpr int BlockWidth = 360;

const QString LongText = QStringLiteral(
    "Choose the port the printer will use. For a network printer or a file, double-click its entry and type "
    "the address of the printer, for example socket://192.168.1.20 or lpd://server/queue.");

std::unique_ptr<WizardPageTitle> loadTitle()
{
    std::unique_ptr<WizardPageTitle> title(WizardPageTitleUiLoader::registered()->loadTitle(
        TestPaths::sourceDir() + QStringLiteral("/ui/wizardpagetitle.ui"), nullptr));
    if (title)
        title->setFixedWidth(BlockWidth);
    return title;
}

QLabel *label(const WizardPageTitle &title, const char *name)
{
    return title.findChild<QLabel *>(QLatin1String(name));
}

// Point sizes of title and subtitle.
using Sizes = std::pair<int, int>;

Sizes fontSizes(const WizardPageTitle &title)
{
    return { label(title, "titleLabel")->font().pointSize(), label(title, "subTitleLabel")->font().pointSize() };
}

// The height title and subtitle take with both labels at a point size (or
// at the form's fonts for 0), laid out in a block as wide as the tested one.
int neededHeight(const QString &text, int size)
{
    std::unique_ptr<WizardPageTitle> probe = loadTitle();
    if (!probe)
        return -1;
    probe->setFixedHeight(1000);
    QLabel *title = label(*probe, "titleLabel");
    QLabel *subTitle = label(*probe, "subTitleLabel");
    for (QLabel *l : { title, subTitle }) {
        QFont f = l->font();
        f.setPointSize(size > 0 ? size : f.pointSize());
        l->setFont(f);
    }
    subTitle->setText(text);
    probe->show();
    probe->layout()->activate();
    QLayout *labels = nullptr;
    for (QLayout *l : probe->findChildren<QLayout *>()) {
        if (l->indexOf(title) >= 0)
            labels = l;
    }
    const QMargins m = labels->contentsMargins();
    return title->sizeHint().height() + subTitle->heightForWidth(subTitle->width()) + m.top() + m.bottom()
        + labels->spacing();
}

} // namespace

class TestWizardParts : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestSupport::failOnWarnings();
        qunsetenv("NOPAGETITLEADJUST");
    }

    void driverMatch_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("make");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("driver");

        QTest::newRow("user's language first") << "Laser 1610" << "Acme" << "de_DE" << "Acme Laser 1610 Series (de)";
        QTest::newRow("maker named in the model") << "ACME Laser 1610" << "ACME Corp." << "C"
                                                  << "Acme Laser 1610 Series (en)";
        QTest::newRow("case and spacing ignored") << "colorlaser2550" << "" << "C" << "Acme ColorLaser 2550";
        QTest::newRow("fewest added words") << "MFP 4200" << "Acme" << "C" << "Acme MFP 4200 Series";
        QTest::newRow("suffix after the number") << "MFP 4200DN" << "Acme" << "C" << "Acme MFP 4200DN Duplex";
        QTest::newRow("numbers must all be there") << "Laser 1620" << "Acme" << "C" << "";
        QTest::newRow("a number alone is no prefix") << "Laser 161" << "Acme" << "C" << "";
        QTest::newRow("other maker's word only") << "PageWriter" << "Globex" << "C" << "Globex PageWriter 40";
        QTest::newRow("maker's name only") << "Acme" << "Acme" << "C" << "";
    }

    void driverMatch()
    {
        QFETCH(QString, model);
        QFETCH(QString, make);
        QFETCH(QString, language);
        QFETCH(QString, driver);
        QCOMPARE(DriverMatcher::bestMatch(sampleDrivers(), model, make, language), driver);
    }

    void deviceLabel_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("label");

        QTest::newRow("no model") << "" << "/dev/mfp3" << "Unknown model on /dev/mfp3";
        QTest::newRow("model holding ' on '") << "Print on Demand 5" << "/dev/mfp11"
                                              << "Print on Demand 5 on /dev/mfp11";
    }

    // The device path is read back from the label.
    void deviceLabel()
    {
        QFETCH(QString, model);
        QFETCH(QString, path);
        QFETCH(QString, label);
        QCOMPARE(LocalDeviceList::label(model, path), label);
        QCOMPARE(LocalDeviceList::devicePathOf(label), path);
    }

    void proposedName_data()
    {
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QString>("name");

        QTest::newRow("no digit") << "Acme Deskjet" << "acme";
        QTest::newRow("punctuation dropped") << "HP LaserJet 4-Plus" << "4plus";
        QTest::newRow("leading blanks") << "   Globex  PageWriter" << "globex";
        QTest::newRow("nothing usable") << "(+)" << "";
    }

    void proposedName()
    {
        QFETCH(QString, driver);
        QFETCH(QString, name);
        QCOMPARE(AddPrinterWizard::proposedName(driver), name);
    }

    void pictures_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("picture");

        QTest::newRow("case and blanks ignored") << "  laser   1610 " << "laser.png";
        QTest::newRow("longest entry in the name") << "Acme MFP 4200 Series" << "mfp-series.png";
        QTest::newRow("shorter entry in the name") << "Acme MFP 3" << "mfp.png";
        QTest::newRow("part of a word is no match") << "Laser 16100" << "";
        QTest::newRow("built-in name") << "Scan 9" << "scanner";
        QTest::newRow("no model") << "" << "";
    }

    // Only laser.png exists: the others give way to the built-in printer.
    void pictures()
    {
        QFETCH(QString, model);
        QFETCH(QString, picture);
        QTemporaryDir share;
        QImage laser(40, 30, QImage::Format_ARGB32);
        laser.fill(Qt::darkCyan);
        QVERIFY(laser.save(share.filePath("laser.png")));
        QVERIFY(TestSupport::writeFile(share.filePath("pictures.ini"),
                                       "[Pictures]\n# model = picture\nLaser 1610 = laser.png\nMFP=mfp.png\n"
                                       "MFP 4200 Series=mfp-series.png\nScan 9=scanner\n=nothing.png\nbroken line\n"));
        PixmapManager pixmaps(share.path());
        QCOMPARE(pixmaps.pictureName(model), picture.isEmpty() || picture == "scanner" ? picture : share.filePath(picture));
        const QImage wanted = picture == "laser.png" ? laser
            : picture == "scanner"                   ? PixmapManager::genericScanner().toImage()
                                                     : PixmapManager::genericPrinter().toImage();
        QCOMPARE(pixmaps.picture(model).toImage().convertToFormat(QImage::Format_ARGB32),
                 wanted.convertToFormat(QImage::Format_ARGB32));
    }

    // Fitting waits for the block to be shown and starts from the form's
    // fonts each time: a text that fits two steps down takes both fonts two
    // steps down, the title alone changes no font, the least is 7 points.
    // NOPAGETITLEADJUST keeps the form's.
    void pageTitleFitting()
    {
        std::unique_ptr<WizardPageTitle> title = loadTitle();
        QVERIFY(title);
        const int base = title->font().pointSize();
        const Sizes form = fontSizes(*title);
        const int height = neededHeight(LongText, base - 2);
        // Each step up needs more room, or the case proves nothing.
        QVERIFY(neededHeight(LongText, base - 1) > height);
        QVERIFY(neededHeight(LongText, 0) > height);
        title->setFixedHeight(height);
        title->setSubTitle(LongText);
        QCOMPARE(fontSizes(*title), form);
        title->show();
        QVERIFY(QTest::qWaitForWindowExposed(title.get()));
        QCOMPARE(fontSizes(*title), Sizes(base - 2, base - 2));
        title->setTitle(LongText);
        QCOMPARE(fontSizes(*title), Sizes(base - 2, base - 2));
        title->setSubTitle(QStringLiteral("Short."));
        QCOMPARE(fontSizes(*title), form);

        qputenv("NOPAGETITLEADJUST", "");
        title->setSubTitle(LongText);
        QCOMPARE(fontSizes(*title), form);
        qunsetenv("NOPAGETITLEADJUST");
        title->setFixedHeight(20);
        title->setSubTitle(LongText + LongText);
        QCOMPARE(fontSizes(*title), Sizes(7, 7));
    }
    void sameDevice_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("queue");
        QTest::addColumn<QString>("service");  // a discovered printer's DNS-SD name
        QTest::addColumn<bool>("same");

        const QString dnssd = QStringLiteral("dnssd://Lab%20Printer._ipp._tcp.local/?uuid=1");
        QTest::newRow("same local device") << "mfp:/dev/usb/lp0" << "mfp:/dev/usb/lp0" << "" << true;
        QTest::newRow("other local device") << "mfp:/dev/usb/lp0" << "mfp:/dev/usb/lp1" << "" << false;
        QTest::newRow("other scheme") << "ipp://10.0.0.5/ipp/print" << "ipps://10.0.0.5:443/ipp/print/" << "" << true;
        QTest::newRow("host name form") << "ipp://Lab.local./ipp/print" << "ipp://lab.local/ipp/print" << "" << true;
        QTest::newRow("IPv6 form") << "ipp://[fe80::0:1]/ipp/print" << "ipp://[FE80::1]/ipp/print" << "" << true;
        QTest::newRow("IPv4 mapped") << "socket://[::ffff:10.0.0.5]:9100" << "socket://10.0.0.5" << "" << true;
        QTest::newRow("other resource") << "ipp://10.0.0.5/ipp/print" << "lpd://10.0.0.5/lp" << "" << false;
        QTest::newRow("DNS-SD name") << "ipp://10.0.0.7/ipp/print" << dnssd << "Lab Printer" << true;
        QTest::newRow("other DNS-SD name") << "ipp://10.0.0.7/ipp/print" << dnssd << "Lab" << false;
    }

    void sameDevice()
    {
        QFETCH(QString, chosen);
        QFETCH(QString, queue);
        QFETCH(QString, service);
        QTEST(SameDevice::matches(chosen, queue, service), "same");
    }
};

QTEST_MAIN(TestWizardParts)
#include "tst_wizardparts.moc"
