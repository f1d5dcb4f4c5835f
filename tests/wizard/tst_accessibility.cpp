#include "AddPrinterWizard.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ppddialog.h"
#include "wizardfixture.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QTextDocument>
#include <QTimer>
#include <QtTest>

using W = AddPrinterWizard;

namespace {

int modalsAnswered = 0;

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

// Keys for the focused widget: names as in "Ctrl+A", text after "=",
// "$queue" for the queue's name; after "?" a key for the next modal window.
void type(const QString &keys, const QString &queue)
{
    for (const QString &token : keys.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        // Offscreen no window manager activates the window a dialog leaves.
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (!QApplication::focusWidget() && window->isVisible()) {
                window->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(window));
            }
        }
        QWidget *focus = QApplication::focusWidget();
        if (token.startsWith(QLatin1Char('?'))) {
            QTimer::singleShot(0, [key = QKeySequence::fromString(token.mid(1))[0]] {
                if (QWidget *modal = QApplication::activeModalWidget()) {
                    ++modalsAnswered;
                    QTest::keyClick(modal, key.key(), key.keyboardModifiers());
                }
            });
            continue;
        }
        if (token.startsWith(QLatin1Char('=')) || token == QLatin1String("$queue")) {
            QTest::keyClicks(focus, token == QLatin1String("$queue") ? queue : token.mid(1));
        } else {
            const QKeyCombination key = QKeySequence::fromString(token)[0];
            QTest::keyClick(focus, key.key(), key.keyboardModifiers());
        }
        // An in-place editor hands its text over from the event loop.
        QCoreApplication::processEvents();
    }
}

// What a screen reader should say for a label: the text the user sees.
QString shownText(const QLabel *label)
{
    QTextDocument document;
    document.setHtml(label->text());
    return QString(document.toPlainText()).remove(QLatin1Char('&'));
}

// What keeps the current page from keyboard and screen reader users.
QStringList pageFaults(const W *wizard)
{
    static const QList<QAccessible::Role> controlRoles = {
        QAccessible::PushButton, QAccessible::RadioButton, QAccessible::CheckBox, QAccessible::ComboBox,
        QAccessible::EditableText, QAccessible::List, QAccessible::Tree, QAccessible::Slider};
    const QWidget *page = wizard->currentPage();
    const QString at = QStringLiteral("page %1: ").arg(wizard->currentId());
    QStringList faults;
    QList<QWidget *> controls;
    for (QWidget *w : page->findChildren<QWidget *>()) {
        QAccessibleInterface *a = accessible(w);
        if (!w->isVisible() || !a)
            continue;
        const QString name = a->text(QAccessible::Name);
        const auto *label = qobject_cast<QLabel *>(w);
        if (label && !label->text().isEmpty() && name != shownText(label))
            faults << at + '"' + name + "\" read for the label " + label->text();
        if (label && label->text().endsWith(QLatin1Char(':'))) {
            const auto related = a->relations(QAccessible::Labelled);
            if (!label->buddy() || std::none_of(related.cbegin(), related.cend(), [&](const auto &r) {
                    return r.first->object() == label->buddy();
                }))
                faults << at + label->text() + " names no field";
        }
        if (!controlRoles.contains(a->role()))
            continue;
        if (name.isEmpty())
            faults << at + w->objectName() + " has no name";
        if (w->isEnabled())
            controls << w;
    }
    if (!controls.isEmpty() && !page->isAncestorOf(QApplication::focusWidget()))
        faults << at + "the focus is not on the page";

    // Tab goes round the window and back; of a group it visits one button.
    QWidget *start = QApplication::focusWidget();
    QSet<QWidget *> reached;
    for (int i = 0; start && i < 30 && (i == 0 || QApplication::focusWidget() != start); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
        for (QWidget *w : button && button->group() ? button->group()->buttons() : QList<QAbstractButton *>{})
            reached << w;
        reached << QApplication::focusWidget();
    }
    for (QWidget *w : std::as_const(controls)) {
        if (!reached.contains(w))
            faults << at + w->objectName() + " is out of Tab's reach";
    }
    return faults;
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
        // Interfaces exist without it; active, Qt also sends the change
        // events a screen reader gets.
        QAccessible::setActive(true);
    }

    void keyboardOnly_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QStringList>("keys");  // on each page shown
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("optionRow");  // read in the options dialog

        // Local devices need the package's backend: both queues get a port
        // typed by hand. Cancel's question takes No from Return and Escape.
        QTest::newRow("from a local printer")
            << "usb with id"
            << QStringList{"?Return Escape ?Escape Escape Return", "Down Down Return",
                           "End Up Up Up F2 =printer.local/q Return Return", "Return", "Ctrl+A $queue Tab =Lab Return"}
            << "lpd://printer.local/q" << "Resolution: 600 dpi";
        // The checked type has no device: the arrows check the next one.
        QTest::newRow("no local printer")
            << "empty"
            << QStringList{"Return", "Down Return", "End Up Up Up Up F2 =127.0.0.1:9 Return Return", "Space Return",
                           "Ctrl+A $queue Tab =Lab Return"}
            << "socket://127.0.0.1:9" << "Color Mode: Colour";
    }

    // From the welcome page to the queue and its options with keys only,
    // each page checked for keyboard and screen reader use on the way.
    void keyboardOnly()
    {
        QFETCH(QString, machine);
        QFETCH(QStringList, keys);
        QFETCH(QString, uri);
        QFETCH(QString, optionRow);
        const QString queue = QStringLiteral("kbd%1").arg(QCoreApplication::applicationPid());
        WizardFixture f(machine);
        QVERIFY(f.load());
        QStringList faults;
        modalsAnswered = 0;
        for (const QString &page : std::as_const(keys)) {
            faults << pageFaults(f.wizard());
            type(page, queue);
        }
        const auto removeQueue = qScopeGuard([&] { CUPSManager::m_CUPSManagerInstance.deletePrinter(queue); });
        QCOMPARE(f.wizard()->currentId(), int(W::FinishPage));
        QCOMPARE(modalsAnswered, int(keys.join(' ').count('?')));
        faults << pageFaults(f.wizard());
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        CUPSPrinter printer;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(queue, printer));
        QCOMPARE(printer.DeviceURI(), uri);
        QCOMPARE(printer.Location(), QStringLiteral("Lab"));

        // The options dialog: the tree's rows read with option and value,
        // the choices named by the option, Escape closes it.
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("TestButton"));
        type("Tab", queue);
        QString read;
        QTimer::singleShot(0, [&] {
            auto *dialog = qobject_cast<PPDDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            type("Down Down Down", queue);
            read = accessible(dialog->findChild<QTreeWidget *>())->focusChild()->text(QAccessible::Name) + '|'
                + accessible(dialog->findChild<QListWidget *>())->text(QAccessible::Name);
            type("Escape", queue);
        });
        type("Return", queue);
        QCOMPARE(read, optionRow + '|' + optionRow.section(':', 0, 0));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void toggleAction_data()
    {
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("next");

        QTest::newRow("not connected now") << "empty" << "OfflineButton" << true;
        QTest::newRow("network, nothing found") << "usb with id" << "NetworkButton" << false;
    }

    // A screen reader checks a port type through the Toggle action; the
    // page follows as for a click.
    void toggleAction()
    {
        QFETCH(QString, machine);
        QFETCH(QString, button);
        QFETCH(bool, next);
        WizardFixture f(machine);
        QVERIFY(f.load());
        type("Return", QString());
        QCOMPARE(f.wizard()->currentId(), int(W::PortTypePage));
        QCOMPARE(f.nextEnabled(), !next);
        QAccessibleInterface *radio = accessible(f.child<QRadioButton>(qPrintable(button)));
        radio->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(radio->state().checked);
        QCOMPARE(f.nextEnabled(), next);
    }
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
