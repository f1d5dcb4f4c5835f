#include "tourguide.h"

#include "AddPrinterWizard.h"
#include "printerportlistview.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QTest>
#include <QTimer>

namespace {

// Types text of any script: QTest::keyClicks knows only Latin-1 keys.
void typeText(QWidget *widget, const QString &text)
{
    for (const QChar c : text)
        QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

// Lets the event loop run until cond holds or the time is up.
template <class Cond>
bool waitFor(Cond cond, int timeoutMs)
{
    QElapsedTimer t;
    t.start();
    while (!cond()) {
        if (t.elapsed() > timeoutMs)
            return false;
        QTest::qWait(50);
    }
    return true;
}

// Near the leading edge: a radio button takes clicks only on its indicator
// and text, and a short translation leaves the middle of a wide one empty.
void click(QAbstractButton *button)
{
    const QPoint leading(button->height() / 2, button->height() / 2);
    QTest::mouseClick(button, Qt::LeftButton, {}, QStyle::visualPos(button->layoutDirection(), button->rect(), leading));
}

} // namespace

TourGuide::TourGuide(AddPrinterWizard *wizard, const QDir &pictures, const Choices &choices)
    : m_wizard(wizard)
    , m_dir(pictures)
    , m_choices(choices)
{
}

template <class T>
T *TourGuide::child(const char *name) const
{
    return m_wizard->findChild<T *>(QLatin1String(name));
}

bool TourGuide::fail(const QString &why)
{
    m_error = why;
    return false;
}

void TourGuide::picture(QWidget *widget, const QString &name)
{
    QTest::qWait(100); // let pending paints and title fitting happen
    const QString file = m_dir.filePath(QStringLiteral("%1-%2.png").arg(m_saved.size() + 1, 2, 10, QLatin1Char('0')).arg(name));
    if (widget->grab().save(file))
        m_saved << file;
}

bool TourGuide::clickNext(int expectedPage)
{
    QAbstractButton *next = m_wizard->button(QWizard::NextButton);
    if (!next->isVisible() || !next->isEnabled())
        return fail(QStringLiteral("Next is not available on page %1").arg(m_wizard->currentId()));
    click(next);
    if (!waitFor([&] { return m_wizard->currentId() == expectedPage; }, 30000))
        return fail(QStringLiteral("Next led to page %1 instead of %2").arg(m_wizard->currentId()).arg(expectedPage));
    return true;
}

bool TourGuide::run()
{
    m_wizard->show();
    if (!QTest::qWaitForWindowExposed(m_wizard))
        QTest::qWait(200);
    return welcome() && connection() && port() && model() && name() && finish() && options();
}

bool TourGuide::welcome()
{
    picture(m_wizard, QStringLiteral("welcome"));
    return clickNext(AddPrinterWizard::PortTypePage);
}

bool TourGuide::connection()
{
    auto *manual = child<QRadioButton>("OfflineButton");
    if (!manual)
        return fail(QStringLiteral("no port type button"));
    click(manual);
    picture(m_wizard, QStringLiteral("connection"));
    return clickNext(AddPrinterWizard::PortsPage);
}

bool TourGuide::port()
{
    auto *view = child<PrinterPortListView>("PortsView");
    const QList<QTreeWidgetItem *> items =
        view ? view->findItems(QStringLiteral("socket://"), Qt::MatchExactly | Qt::MatchRecursive) : QList<QTreeWidgetItem *>();
    if (items.isEmpty())
        return fail(QStringLiteral("no AppSocket entry in the port list"));
    view->scrollToItem(items.first());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(items.first()).center());
    QTest::keyClick(view, Qt::Key_F2);
    auto *editor = view->findChild<QLineEdit *>();
    if (!editor)
        return fail(QStringLiteral("the AppSocket entry can't be edited"));
    editor->end(false);
    QTest::keyClicks(editor, m_choices.port);
    picture(m_wizard, QStringLiteral("port-typing"));
    QTest::keyClick(editor, Qt::Key_Return);
    waitFor([&] { return !view->findChild<QLineEdit *>(); }, 2000);
    picture(m_wizard, QStringLiteral("port"));
    return clickNext(AddPrinterWizard::DriverPage);
}

bool TourGuide::model()
{
    auto *list = child<QListWidget>("DriversList");
    const QList<QListWidgetItem *> found = list ? list->findItems(m_choices.driver, Qt::MatchExactly) : QList<QListWidgetItem *>();
    if (found.isEmpty())
        return fail(QStringLiteral("the driver \"%1\" is not listed").arg(m_choices.driver));
    list->scrollToItem(found.first());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(found.first()).center());
    picture(m_wizard, QStringLiteral("model"));
    return clickNext(AddPrinterWizard::NamePage);
}

bool TourGuide::name()
{
    auto *name = child<QLineEdit>("NameEdit");
    auto *location = child<QLineEdit>("LocationEdit");
    auto *description = child<QLineEdit>("DescriptionEdit");
    if (!name || !location || !description)
        return fail(QStringLiteral("the name page lacks its fields"));
    if (!m_choices.name.isEmpty()) {
        name->selectAll();
        QTest::keyClicks(name, m_choices.name);
    }
    typeText(location, m_choices.location);
    typeText(description, m_choices.description);
    picture(m_wizard, QStringLiteral("name"));
    return clickNext(AddPrinterWizard::FinishPage);
}

bool TourGuide::finish()
{
    picture(m_wizard, QStringLiteral("added"));
    auto *test = child<QPushButton>("TestButton");
    if (!test || !test->isEnabled())
        return fail(QStringLiteral("the test page can't be printed"));
    click(test);
    // The button is off while the test program runs.
    if (!waitFor([&] { return test->isEnabled(); }, 60000))
        return fail(QStringLiteral("the test page program did not end"));
    return true;
}

bool TourGuide::options()
{
    auto *options = child<QPushButton>("OptionsButton");
    if (!options || !options->isEnabled())
        return fail(QStringLiteral("the driver options can't be opened"));
    bool shown = false;
    // The dialog is modal: look at it from a timer while it runs.
    QTimer::singleShot(300, m_wizard, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == m_wizard)
            return;
        shown = true;
        picture(dialog, QStringLiteral("options"));
        if (auto *ok = dialog->findChild<QPushButton *>(QStringLiteral("OkButton")); ok && ok->isEnabled())
            click(ok);
        else if (auto *d = qobject_cast<QDialog *>(dialog))
            d->reject();
    });
    click(options);
    if (!shown)
        return fail(QStringLiteral("the driver options did not open"));
    QAbstractButton *finish = m_wizard->button(QWizard::FinishButton);
    picture(m_wizard, QStringLiteral("finish"));
    click(finish);
    return true;
}
