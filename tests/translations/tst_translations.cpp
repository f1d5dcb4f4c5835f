#include "AddPrinterWizard.h"
#include "browserlauncher.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ppddialog.h"
#include "testpaths.h"
#include "testsupport.h"
#include "translations.h"
#include "urlpushbutton.h"
#include "wizardfixture.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QDirIterator>
#include <QDomDocument>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocument>
#include <QTranslator>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

using W = AddPrinterWizard;

namespace {

const QString HelpPage = QStringLiteral("PellomarAddPrinterWizard.htm");
const QString AnchorPattern = QStringLiteral("\\bid=\"([^\"]+)\"");
const QString LinkPattern = QStringLiteral("\\bhref=\"#([^\"]+)\"");

// What the wizard showed on its way: "page/object:property" -> text.
using Shown = QMap<QString, QString>;

QString objectPath(const QWidget *w, const QWidget *root)
{
    QStringList names;
    for (; w && w != root; w = w->parentWidget())
        names.prepend(w->objectName());
    return names.join(QLatin1Char('/'));
}

// Texts that read the same in every language: device paths and addresses.
bool sameInEveryLanguage(const QString &text)
{
    static const QRegularExpression rx(QStringLiteral(R"(^(USB|/\S*|[a-z]+:\S*)$)"));
    return rx.match(text).hasMatch();
}

// What a screen reader should say for a label: the text the user sees, no-break
// spaces (French "Imprimante :") aside, which plain text makes blanks.
QString shownText(const QLabel *label)
{
    QTextDocument document;
    document.setHtml(label->text());
    return QString(document.toPlainText()).remove(QLatin1Char('&'));
}

// Tab goes round the window and back; of a group it visits one button.
QSet<QWidget *> reachedByTab()
{
    QWidget *start = QApplication::focusWidget();
    QSet<QWidget *> reached;
    for (int i = 0; start && i < 30 && (i == 0 || QApplication::focusWidget() != start); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const auto *button = qobject_cast<QAbstractButton *>(QApplication::focusWidget());
        for (QWidget *w : button && button->group() ? button->group()->buttons() : QList<QAbstractButton *>{})
            reached << w;
        reached << QApplication::focusWidget();
    }
    return reached;
}

// Collects the visible texts of the current page and the wizard's buttons.
// Into *faults go a keyboard mnemonic of the page used twice, or also by a
// wizard button, a label or button too narrow for its text, and what keeps
// the page from keyboard and screen reader users.
void checkPage(const W *wizard, Shown &shown, QStringList *faults)
{
    static const QList<QAccessible::Role> controlRoles = {
        QAccessible::PushButton, QAccessible::RadioButton, QAccessible::CheckBox, QAccessible::ComboBox,
        QAccessible::EditableText, QAccessible::List, QAccessible::Tree, QAccessible::Slider};
    const QString page = QString::number(wizard->currentId()) + QLatin1Char('/');
    auto add = [&](const QString &key, const QString &text) {
        if (!text.isEmpty())
            shown.insert(page + key, text);
    };
    QMap<QKeySequence, QString> taken;
    for (auto which : {QWizard::BackButton, QWizard::NextButton, QWizard::FinishButton, QWizard::CancelButton,
                       QWizard::HelpButton}) {
        const QAbstractButton *b = wizard->button(which);
        if (b->isVisible()) {
            add(QStringLiteral("wizard:%1").arg(int(which)), b->text());
            taken.insert(QKeySequence::mnemonic(b->text()), b->text());
        }
    }
    add(QStringLiteral("window"), wizard->windowTitle());

    QWidget *root = wizard->currentPage();
    QList<QWidget *> controls;
    for (QWidget *w : root->findChildren<QWidget *>()) {
        if (!w->isVisibleTo(root))
            continue;
        const QString key = objectPath(w, root);
        add(key + QStringLiteral(":toolTip"), w->toolTip());
        add(key + QStringLiteral(":accessibleName"), w->accessibleName());
        QString mnemonicText;
        bool oneLine = false;
        const auto *label = qobject_cast<const QLabel *>(w);
        if (label) {
            add(key, label->text());
            mnemonicText = label->buddy() ? label->text() : QString();
            oneLine = !label->wordWrap();
        } else if (auto *button = qobject_cast<const QAbstractButton *>(w)) {
            add(key, button->text());
            mnemonicText = button->text();
            oneLine = true;
        } else if (auto *group = qobject_cast<const QGroupBox *>(w)) {
            add(key, group->title());
        } else if (auto *edit = qobject_cast<const QLineEdit *>(w)) {
            add(key + QStringLiteral(":placeholder"), edit->placeholderText());
        } else if (auto *combo = qobject_cast<const QComboBox *>(w)) {
            add(key, combo->currentText());
        } else if (auto *tree = qobject_cast<const QTreeWidget *>(w)) {
            int row = 0;
            for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(tree)); *it; ++it, ++row) {
                if (!(*it)->isHidden() && !((*it)->parent() && (*it)->parent()->isHidden()))
                    add(key + QStringLiteral(":item%1").arg(row), (*it)->text(0));
            }
        }
        if (oneLine && w->sizeHint().width() > w->width())
            *faults << page + key + QStringLiteral(" is cut off");
        const QKeySequence mnemonic = QKeySequence::mnemonic(mnemonicText);
        if (!mnemonic.isEmpty() && taken.contains(mnemonic))
            *faults << page + taken.value(mnemonic) + QStringLiteral(" / ") + mnemonicText;
        if (!mnemonic.isEmpty())
            taken.insert(mnemonic, mnemonicText);

        QAccessibleInterface *a = QAccessible::queryAccessibleInterface(w);
        if (!a)
            continue;
        const QString name = a->text(QAccessible::Name);
        if (label && !label->text().isEmpty() && QString(name).replace(QChar::Nbsp, u' ') != shownText(label))
            *faults << page + key + QStringLiteral(" reads \"%1\"").arg(name);
        if (label && label->text().endsWith(QLatin1Char(':'))) {
            const auto related = a->relations(QAccessible::Labelled);
            if (!label->buddy() || std::none_of(related.cbegin(), related.cend(), [&](const auto &r) {
                    return r.first->object() == label->buddy();
                }))
                *faults << page + key + QStringLiteral(" names no field");
        }
        if (controlRoles.contains(a->role()) && name.isEmpty())
            *faults << page + key + QStringLiteral(" has no name");
        if (controlRoles.contains(a->role()) && w->isEnabled())
            controls << w;
    }
    if (!controls.isEmpty() && !root->isAncestorOf(QApplication::focusWidget()))
        *faults << page + QStringLiteral("the focus is not on the page");
    const QSet<QWidget *> reached = reachedByTab();
    for (QWidget *w : std::as_const(controls)) {
        if (!reached.contains(w))
            *faults << page + objectPath(w, root) + QStringLiteral(" is out of Tab's reach");
    }
}

// The questions answered on the way, as "title|text".
QStringList questions;

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
                if (auto *modal = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                    questions << modal->windowTitle() + QLatin1Char('|') + modal->text();
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

// The package tree of a fixture gets the compiled translations and the
// translated help pages.
void installLanguageFiles(const WizardFixture &f)
{
    const QString tr = f.shareDir() + QStringLiteral("/tr");
    QDir().mkpath(tr);
    QDirIterator qm(TestPaths::binaryDir() + QStringLiteral("/share/tr"), {QStringLiteral("*.qm")}, QDir::Files);
    while (qm.hasNext()) {
        const QString from = qm.next();
        QFile::copy(from, tr + QLatin1Char('/') + QFileInfo(from).fileName());
    }
    QDirIterator help(TestPaths::sourceDir() + QStringLiteral("/share/help"), {HelpPage}, QDir::Files,
                      QDirIterator::Subdirectories);
    while (help.hasNext()) {
        const QString from = help.next();
        const QString to = f.shareDir() + QStringLiteral("/help/")
            + QDir(TestPaths::sourceDir() + QStringLiteral("/share/help")).relativeFilePath(from);
        QDir().mkpath(QFileInfo(to).path());
        QFile::copy(from, to);
    }
}

QString placeholdersOf(const QString &text)
{
    static const QRegularExpression rx(QStringLiteral("%(\\d+|s|n)|<[^>]*>|\\n"));
    QStringList found;
    for (auto it = rx.globalMatch(text); it.hasNext();)
        found << it.next().captured();
    found.sort();
    return found.join(QLatin1Char(' '));
}

QStringList attributeValues(const QString &html, const QString &pattern)
{
    QStringList values;
    for (auto it = QRegularExpression(pattern).globalMatch(html); it.hasNext();)
        values << it.next().captured(1);
    values.sort();
    return values;
}

QString readAll(const QString &path)
{
    return QString::fromUtf8(TestSupport::readFile(path));
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

    // What the wizard showed in English, by fixture machine.
    QMap<QString, Shown> m_english;

private slots:
    void initTestCase()
    {
        QW_USE_SHARED_SCHEDULER();
        // The test page goes nowhere: the finish page follows it briefly.
        qputenv("QUEUEWIZ_TESTPAGE_WAIT", "2");
        cleanup();
        // Interfaces exist without it; active, Qt also sends the change
        // events a screen reader gets.
        QAccessible::setActive(true);
    }

    void cleanup()
    {
        for (const char *overriding : { "LC_ALL", "LC_MESSAGES", "LANGUAGE" })
            qunsetenv(overriding);
        const QList<QTranslator *> translators = qApp->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly);
        for (QTranslator *t : translators) {
            QCoreApplication::removeTranslator(t);
            delete t;
        }
        QLocale::setDefault(QLocale::system());
        BrowserLauncher::setCandidates({});
    }

    void catalogue_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"de", "fr", "es", "it", "pt_BR", "nl", "pl", "cs", "ru", "sv", "ja", "zh_CN"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    // Every text is translated with its placeholders, markup, line breaks
    // and mnemonic, each plural form too; the help page has the anchors the
    // program links to.
    void catalogue()
    {
        QFETCH(QString, language);
        QDomDocument ts;
        QVERIFY(ts.setContent(readAll(TestPaths::sourceDir() + "/share/tr/queuewiz-" + language + ".ts")));
        QCOMPARE(ts.documentElement().attribute("language"), language);
        const QDomNodeList messages = ts.elementsByTagName("message");
        QVERIFY(messages.count() > 100);
        QStringList faults;
        for (int i = 0; i < messages.count(); ++i) {
            const QString source = messages.at(i).firstChildElement("source").text();
            const QDomElement translation = messages.at(i).firstChildElement("translation");
            const QDomNodeList forms = translation.elementsByTagName("numerusform");
            QStringList texts;
            for (int f = 0; f < forms.count(); ++f)
                texts << forms.at(f).toElement().text();
            for (const QString &text : texts.isEmpty() ? QStringList{translation.text()} : texts) {
                if (translation.hasAttribute("type") || text.trimmed().isEmpty())
                    faults << "unfinished: " + source;
                else if (placeholdersOf(text) != placeholdersOf(source))
                    faults << "placeholders, markup or line breaks: " + source;
                else if (QKeySequence::mnemonic(text).isEmpty() != QKeySequence::mnemonic(source).isEmpty())
                    faults << "mnemonic: " + source;
                else if (source.endsWith(' ') != text.endsWith(' '))
                    faults << "trailing blank: " + source;
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));

        const QString english = readAll(TestPaths::sourceDir() + "/share/help/" + HelpPage);
        const QString page = readAll(TestPaths::sourceDir() + "/share/help/" + language + "/" + HelpPage);
        QVERIFY(page.contains(QStringLiteral("<html lang=\"%1\">").arg(QString(language).replace('_', '-'))));
        for (const QString &pattern : {AnchorPattern, LinkPattern})
            QCOMPARE(attributeValues(page, pattern), attributeValues(english, pattern));
    }

    void wizardPages_data()
    {
        QTest::addColumn<QString>("locale");  // empty: English
        QTest::addColumn<QString>("machine");
        QTest::addColumn<QStringList>("keys");  // one step after another
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QString>("optionRow");  // read in the options dialog
        QTest::addColumn<QString>("stored");     // the choice after it
        QTest::addColumn<QString>("windowTitle");
        QTest::addColumn<QString>("jobName");  // of the test page
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QStringList>("alike");  // words the language shares with English

        // Local devices need the package's backend: the queues get a port
        // typed by hand. Cancel's question takes No from Return and Escape;
        // the network is searched on the way.
        const QStringList local{ "?Return Escape ?Escape Escape Return", "Down Tab Space",
                                 "Shift+Tab Shift+Tab Down Return", "End Up Up Up F2 =printer.local/q Return Return",
                                 "Return", "Ctrl+A $queue Tab =Lab Return" };
        const QString uri = "lpd://printer.local/q";
        // The device's driver comes in German and English: the wizard's
        // language picks the twin, not the locale of the system.
        const auto row = [&](const char *name, const char *locale, const char *title, const char *job,
                             const QStringList &alike = {}, const char *twin = "en",
                             const char *option = "Resolution: 600 dpi") {
            QTest::newRow(name) << locale << "usb with id" << local << uri << option << "1200dpi" << title << job
                                << QStringLiteral("Acme Laser 1610 Series (%1)").arg(twin) << alike;
        };
        row("English", "", "Add Printer", "Test page");
        row("German", "de_DE", "Drucker hinzufügen", "Testseite", {}, "de", "Auflösung: 600 dpi");
        row("French", "fr_FR", "Ajouter une imprimante", "Page de test");
        row("Spanish", "es_ES", "Añadir impresora", "Página de prueba");
        row("Italian", "it_IT", "Aggiungi stampante", "Pagina di prova", {"File"});
        row("Brazilian Portuguese", "pt_BR", "Adicionar impressora", "Página de teste");
        row("Dutch", "nl_NL", "Printer toevoegen", "Testpagina", {"&Printer:", "Parallel", "&Help"});
        row("Polish", "pl_PL", "Dodaj drukarkę", "Strona testowa");
        row("Czech", "cs_CZ", "Přidat tiskárnu", "Zkušební stránka");
        row("Russian", "ru_RU", "Добавить принтер", "Пробная страница");
        row("Swedish", "sv_SE", "Lägg till skrivare", "Testsida");
        row("Japanese", "ja_JP", "プリンターの追加", "テストページ");
        row("Simplified Chinese", "zh_CN", "添加打印机", "测试页");
        // The checked type has no device: the arrows check the next one.
        QTest::newRow("no local printer")
            << "" << "empty"
            << QStringList{ "Return", "Down Return", "End Up Up Up Up F2 =127.0.0.1:9 Return Return", "Space Return",
                            "Ctrl+A $queue Tab =Lab Return" }
            << "socket://127.0.0.1:9" << "Color Mode: Colour" << "Gray" << "Add Printer" << "Test page"
            << "Acme ColorLaser 2550" << QStringList();
    }

    // From the welcome page to the queue and its options with keys only.
    // Each page is usable by keyboard and screen reader, every text fits, no
    // mnemonic is used twice on a page; in another language no text is left
    // as it reads in English and the wizard's buttons are Qt's translation.
    void wizardPages()
    {
        QFETCH(QString, locale);
        QFETCH(QString, machine);
        QFETCH(QStringList, keys);
        QFETCH(QString, uri);
        QFETCH(QString, optionRow);
        QFETCH(QString, stored);
        QFETCH(QString, windowTitle);
        QFETCH(QString, jobName);
        QFETCH(QString, driver);
        QFETCH(QStringList, alike);
        QVERIFY2(locale.isEmpty() || m_english.contains(machine), "the English row runs first");
        const QString queue = QStringLiteral("kbd%1").arg(QCoreApplication::applicationPid());
        WizardFixture f(machine);
        installLanguageFiles(f);
        if (!locale.isEmpty())
            installTranslations(*qApp, locale);
        // A network printer that tells nothing about itself.
        QVERIFY(f.addScript("bin/netdiscovery", "#!/bin/sh\necho 'ip: 127.0.0.1 slp: 0,0,0,0 snmp: 1,0,1 dsc: \"\"'\n"));
        // The package's test page program reads the translations beside it
        // in the language LANG names: English rows run it in one it has no
        // catalogue for.
        QVERIFY(QFile::copy(TestPaths::binaryDir() + "/tools/printertest/printertest", f.rootDir() + "/bin/printertest"));
        qputenv("LANG", locale.isEmpty() ? "ko_KR.UTF-8" : locale.toUtf8() + ".UTF-8");
        QVERIFY(f.load());
        Shown shown;
        QStringList faults;
        questions.clear();
        for (const QString &step : std::as_const(keys)) {
            checkPage(f.wizard(), shown, &faults);
            type(step, queue);
        }
        const auto removeQueue = qScopeGuard([&] { CUPSManager::m_CUPSManagerInstance.deletePrinter(queue); });
        QCOMPARE(f.wizard()->currentId(), int(W::FinishPage));
        QCOMPARE(f.child<QListWidget>("DriversList")->currentItem()->text(), driver);
        checkPage(f.wizard(), shown, &faults);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QCOMPARE(questions.size(), keys.join(' ').count('?'));
        shown.insert("0/questions", questions.join('\n'));
        CUPSPrinter printer;
        QVERIFY(CUPSManager::m_CUPSManagerInstance.findPrinter(queue, printer));
        QCOMPARE(printer.DeviceURI(), uri);
        QCOMPARE(printer.Location(), QStringLiteral("Lab"));

        // The test page, then the options dialog: the tree's rows read with
        // option and value, the choices named by the option; Return stores
        // the choice taken with the arrows on the scheduler.
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("TestButton"));
        type("Return", queue);
        QTRY_VERIFY_WITH_TIMEOUT(f.child<QPushButton>("TestButton")->isEnabled(), 30000);
        QList<CUPSJob> jobs;
        // A job that ends while it is asked for may be listed twice.
        QVERIFY(CUPSManager::m_CUPSManagerInstance.listJobs(queue, jobs, false) > 0);
        for (const CUPSJob &job : std::as_const(jobs))
            QCOMPARE(job.Name(), jobName);
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("OptionsButton"));
        QString read;
        QTimer::singleShot(0, [&] {
            auto *dialog = qobject_cast<PPDDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            shown.insert("5/options", dialog->windowTitle());
            type("Down Down Down", queue);
            const auto name = [](QAccessibleInterface *a) { return a->text(QAccessible::Name); };
            read = name(QAccessible::queryAccessibleInterface(dialog->findChild<QTreeWidget *>())->focusChild()) + '|'
                + name(QAccessible::queryAccessibleInterface(dialog->findChild<QListWidget *>()));
            type("Tab Down Return", queue);
        });
        type("Return", queue);
        QCOMPARE(read, optionRow + '|' + optionRow.section(':', 0, 0));
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(shown.value("5/options").contains(queue));

        QString options;
        QCOMPARE(CupsSandbox::run({ "lpoptions", "-p", queue, "-l" }, &options), 0);
        QVERIFY2(options.contains(" *" + stored), qPrintable(options));

        QCOMPARE(shown.value("0/window"), windowTitle);
        if (locale.isEmpty()) {
            m_english.insert(machine, shown);
            return;
        }
        const Shown english = m_english.value(machine);
        QCOMPARE(shown.keys(), english.keys());
        QStringList untranslated;
        for (auto it = shown.cbegin(); it != shown.cend(); ++it) {
            if (it.value() == english.value(it.key()) && !sameInEveryLanguage(it.value()) && !alike.contains(it.value()))
                untranslated << it.key() + ": " + it.value();
        }
        QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join('\n')));
        for (auto which : {QWizard::BackButton, QWizard::NextButton, QWizard::CancelButton, QWizard::HelpButton}) {
            const QString key = QStringLiteral("1/wizard:%1").arg(int(which));
            QCOMPARE(shown.value(key), QCoreApplication::translate("QWizard", qPrintable(english.value(key))));
        }
    }

    void helpPages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("ownFolder");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QByteArray>("networkLink");  // in the form; empty: the program's
        QTest::addColumn<QString>("network");  // the button's address, "#..." on the page; empty: hidden

        QTest::newRow("French of Canada") << "fr_CA" << "" << "fr/" + HelpPage << QByteArray() << "#network";
        QTest::newRow("closest locale first") << "de_AT" << "de_AT" << "de_AT/" + HelpPage << QByteArray()
                                              << "#network";
        QTest::newRow("not translated") << "ko_KR" << "" << HelpPage << QByteArray() << "#network";
        QTest::newRow("network page missing from the folder")
            << "ko_KR" << "" << HelpPage << QByteArray("Missing.htm#network") << "";
        QTest::newRow("remote network page") << "ko_KR" << "" << HelpPage
                                             << QByteArray("https://printers.example/network")
                                             << "https://printers.example/network";
    }

    // Help and the network printer button open the page in the user's
    // language where there is one, else the English page; the button is
    // hidden when its local page is missing.
    void helpPages()
    {
        QFETCH(QString, locale);
        QFETCH(QString, ownFolder);
        QFETCH(QString, page);
        QFETCH(QByteArray, networkLink);
        QFETCH(QString, network);
        WizardFixture f;
        installLanguageFiles(f);
        if (!ownFolder.isEmpty()) {
            QVERIFY(QDir().mkpath(f.shareDir() + "/help/" + ownFolder));
            QVERIFY(QFile::copy(f.shareDir() + "/help/" + HelpPage, f.shareDir() + "/help/" + page));
        }
        const QString opened = f.rootDir() + "/opened";
        QVERIFY(f.addScript("bin/browser", "#!/bin/sh\necho \"$1\" > '" + opened.toUtf8() + "'\n"));
        BrowserLauncher::setCandidates({f.rootDir() + "/bin/browser"});
        installTranslations(*qApp, locale);
        QVERIFY(networkLink.isEmpty() ? f.load()
                                      : f.load(WizardFixture::programForm(HelpPage.toUtf8() + "#network", networkLink)));

        const QString url = QUrl::fromLocalFile(f.shareDir() + "/help/" + page).toString();
        auto *networkHelp = f.child<URLPushButton>("ConfigureNetworkButton");
        QVERIFY(f.click(QWizard::NextButton));
        QCOMPARE(networkHelp->isVisible(), !network.isEmpty());
        if (!network.isEmpty())
            QCOMPARE(networkHelp->url(), network.startsWith('#') ? url + network : network);
        QVERIFY(f.click(QWizard::HelpButton));
        QTRY_COMPARE(readAll(opened).trimmed(), url);
    }

    void desktopLanguage_data()
    {
        QTest::addColumn<QStringList>("environment");  // LANGUAGE, LC_ALL, LC_MESSAGES, LANG
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("next");  // the wizard's button
        const QString de = "de_DE.UTF-8";
        QTest::newRow("LANGUAGE and its fallback") << QStringList{"pt_BR:pt", "", "", de} << "pt_BR" << "&Próximo >";
        QTest::newRow("LANGUAGE's first has none") << QStringList{"eo:nl", "", "", de} << "nl" << "&Volgende >";
        QTest::newRow("a country of the language") << QStringList{"", "", "", "fr_CA.UTF-8"} << "fr_CA" << "&Suivant >";
        QTest::newRow("LC_ALL first") << QStringList{"", "ru_RU.UTF-8", "ja_JP.UTF-8", de} << "ru_RU" << "&Далее >";
        QTest::newRow("LC_MESSAGES over LANG") << QStringList{"", "", "ja_JP.UTF-8", de} << "ja_JP" << "次へ(&N) >";
        QTest::newRow("modifier") << QStringList{"", "", "", "de_DE@euro"} << "de_DE" << "&Weiter >";
        QTest::newRow("Qt has no Swedish") << QStringList{"sv", "", "", ""} << "sv" << "&Nästa >";
        QTest::newRow("English asked for first") << QStringList{"en_GB:de", "", "", de} << "en_GB" << "&Next >";
        QTest::newRow("no catalogue") << QStringList{"", "", "", "ko_KR.UTF-8"} << "en" << "&Next >";
        QTest::newRow("Chinese of Taiwan") << QStringList{"", "", "", "zh_TW.UTF-8"} << "en" << "&Next >";
        QTest::newRow("C locale") << QStringList{"", "", "", "C"} << "en" << "&Next >";
    }

    // The desktop's languages choose the catalogue, the default locale and
    // Qt's own texts; English has its singular.
    void desktopLanguage()
    {
        QFETCH(QStringList, environment);
        QFETCH(QString, locale);
        QFETCH(QString, next);
        const char *const variables[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
        for (int i = 0; i < 4; ++i)
            qputenv(variables[i], environment.at(i).toUtf8());
        WizardFixture f;
        installLanguageFiles(f);
        QCOMPARE(installTranslations(*qApp), locale);
        QCOMPARE(QLocale().name(), QLocale(locale).name());
        QCOMPARE(QCoreApplication::translate("QWizard", "&Next >"), next);
        if (locale.startsWith("en"))
            QVERIFY(QCoreApplication::translate("PPDTreeView", "You selected %n options that are in conflict. Resolve the "
                                                "conflict before you continue:\n", nullptr, 1).startsWith("You selected 1 option that is"));
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
