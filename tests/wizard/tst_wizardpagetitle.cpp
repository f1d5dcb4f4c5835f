#include "testpaths.h"
#include "testsupport.h"
#include "wizardpagetitle.h"
#include "wizardpagetitleuiloader.h"

#include <QLabel>
#include <QLayout>
#include <QtTest>

#include <memory>

namespace {

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

class TestWizardPageTitle : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestSupport::failOnWarnings();
        qunsetenv("NOPAGETITLEADJUST");
    }

    // In a block that the text fits two steps down, both fonts go down two
    // steps; NOPAGETITLEADJUST keeps the form's.
    void fitting()
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
        title->show();
        QVERIFY(QTest::qWaitForWindowExposed(title.get()));

        qputenv("NOPAGETITLEADJUST", "");
        title->setSubTitle(LongText);
        QCOMPARE(fontSizes(*title), form);
        qunsetenv("NOPAGETITLEADJUST");
        title->setSubTitle(LongText);
        QCOMPARE(fontSizes(*title), Sizes(base - 2, base - 2));
    }

    // Fitting waits for the block to be shown, starts from the form's fonts
    // each time, stops at 7 points, and the title alone changes no font.
    void refitting()
    {
        std::unique_ptr<WizardPageTitle> title = loadTitle();
        QVERIFY(title);
        const Sizes form = fontSizes(*title);
        title->setSubTitle(LongText + LongText);
        QCOMPARE(fontSizes(*title), form);
        title->show();
        const Sizes fitted = fontSizes(*title);
        QVERIFY(fitted.first < form.first);
        title->setTitle(LongText);
        QCOMPARE(fontSizes(*title), fitted);
        title->setSubTitle(QStringLiteral("Short."));
        QCOMPARE(fontSizes(*title), form);
        title->setFixedHeight(20);
        title->setSubTitle(LongText + LongText);
        QCOMPARE(fontSizes(*title), Sizes(7, 7));
    }
};

QTEST_MAIN(TestWizardPageTitle)
#include "tst_wizardpagetitle.moc"
