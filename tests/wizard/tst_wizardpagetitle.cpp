#include "testpaths.h"
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
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*")));
        qunsetenv("NOPAGETITLEADJUST");
    }

    void fitting_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("steps");  // block height fitting the text after so many steps
        QTest::addColumn<bool>("noAdjust");

        QTest::newRow("fits") << QStringLiteral("A short line.") << 0 << false;
        QTest::newRow("two steps") << LongText << 2 << false;
        QTest::newRow("two steps, NOPAGETITLEADJUST") << LongText << 2 << true;
    }

    void fitting()
    {
        QFETCH(QString, text);
        QFETCH(int, steps);
        QFETCH(bool, noAdjust);

        std::unique_ptr<WizardPageTitle> title = loadTitle();
        QVERIFY(title);
        const int base = title->font().pointSize();
        const Sizes form = fontSizes(*title);
        int height = title->height();
        if (steps > 0) {
            height = neededHeight(text, base - steps);
            // Each step up needs more room, or the case proves nothing.
            QVERIFY(neededHeight(text, base - steps + 1) > height);
            QVERIFY(neededHeight(text, 0) > height);
        } else {
            QVERIFY(neededHeight(text, 0) <= height);
        }
        title->setFixedHeight(height);
        title->show();
        QVERIFY(QTest::qWaitForWindowExposed(title.get()));

        if (noAdjust)
            qputenv("NOPAGETITLEADJUST", "");
        title->setSubTitle(text);
        QCOMPARE(title->subTitle(), text);
        QCOMPARE(fontSizes(*title), steps && !noAdjust ? Sizes(base - steps, base - steps) : form);
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
        QCOMPARE(title->title(), LongText);
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
