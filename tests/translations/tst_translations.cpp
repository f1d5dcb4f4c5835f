#include "AddPrinterWizard.h"
#include "browserlauncher.h"
#include "cupsmanager.h"
#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "testpaths.h"
#include "testqueue.h"
#include "testsupport.h"
#include "translations.h"
#include "urlpushbutton.h"
#include "wizardfixture.h"

#include <QComboBox>
#include <QDirIterator>
#include <QDomDocument>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTranslator>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QtTest>

using W = AddPrinterWizard;

namespace {

const QString Driver = QStringLiteral("Acme Laser 1610 Series (en)");
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

// Collects the visible texts of the current page and the wizard's buttons.
// A keyboard mnemonic of the page used twice, or also by a wizard button,
// and a label or button too narrow for its text land in *faults.
void collect(const W *wizard, Shown &shown, QStringList *faults)
{
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
    for (const QWidget *w : root->findChildren<QWidget *>()) {
        if (!w->isVisibleTo(root))
            continue;
        const QString key = objectPath(w, root);
        add(key + QStringLiteral(":toolTip"), w->toolTip());
        add(key + QStringLiteral(":accessibleName"), w->accessibleName());
        QString mnemonicText;
        bool oneLine = false;
        if (auto *label = qobject_cast<const QLabel *>(w)) {
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
        if (mnemonic.isEmpty())
            continue;
        if (taken.contains(mnemonic))
            *faults << page + taken.value(mnemonic) + QStringLiteral(" / ") + mnemonicText;
        taken.insert(mnemonic, mnemonicText);
    }
}

// From the welcome page to the finish page by a port typed by hand, making
// the queue on the way; the Cancel question is asked and declined on page 0,
// and the network is searched on page 1.
bool walk(const WizardFixture &f, const QString &queue, Shown &shown, QStringList *faults)
{
    W *wizard = f.wizard();
    collect(wizard, shown, faults);
    QString question;
    TestSupport::answerMessageBox(QString(), &question, 1000);
    if (!f.click(QWizard::CancelButton) || !wizard->isVisible())
        return false;
    shown.insert(QStringLiteral("0/cancel question"), question);

    if (!f.click(QWizard::NextButton))
        return false;
    collect(wizard, shown, faults);
    // A network printer that tells nothing about itself.
    if (!f.addScript("bin/netdiscovery", "#!/bin/sh\necho 'ip: 127.0.0.1 slp: 0,0,0,0 snmp: 1,0,1 dsc: \"\"'\n"))
        return false;
    f.clickRadio("NetworkButton");
    QTest::mouseClick(f.child<QPushButton>("SearchNetworkButton"), Qt::LeftButton);
    collect(wizard, shown, faults);
    f.clickRadio("OfflineButton");
    if (!f.click(QWizard::NextButton))
        return false;
    collect(wizard, shown, faults);

    if (!f.typePort(QStringLiteral("socket://127.0.0.1:9")) || !f.click(QWizard::NextButton))
        return false;
    collect(wizard, shown, faults);

    if (!f.toNamePage(Driver))
        return false;
    collect(wizard, shown, faults);
    auto *name = f.child<QLineEdit>("NameEdit");
    name->selectAll();
    QTest::keyClicks(name, queue);
    if (!f.click(QWizard::NextButton) || wizard->currentId() != W::FinishPage)
        return false;
    collect(wizard, shown, faults);
    return true;
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
    static const QRegularExpression rx(QStringLiteral("%(\\d+|s)|<[^>]*>|\\n"));
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

    QString m_queue;
    Shown m_english;

private slots:
    void initTestCase()
    {
        QW_USE_SHARED_SCHEDULER();
        m_queue = QStringLiteral("tr%1").arg(QCoreApplication::applicationPid());
        WizardFixture f(QStringLiteral("usb with id"));
        QVERIFY(f.load());
        QStringList faults;
        const bool walked = walk(f, m_queue, m_english, &faults);
        CUPSManager::m_CUPSManagerInstance.deletePrinter(m_queue);
        QVERIFY(walked);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
    }

    void cleanup()
    {
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
        QTest::newRow("German") << "de";
        QTest::newRow("French") << "fr";
        QTest::newRow("Spanish") << "es";
    }

    // Every text is translated with its placeholders, markup, line breaks
    // and mnemonic; the help page has the anchors the program links to.
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
            const QString text = translation.text();
            if (translation.hasAttribute("type") || text.trimmed().isEmpty())
                faults << "unfinished: " + source;
            else if (placeholdersOf(text) != placeholdersOf(source))
                faults << "placeholders, markup or line breaks: " + source;
            else if (QKeySequence::mnemonic(text).isEmpty() != QKeySequence::mnemonic(source).isEmpty())
                faults << "mnemonic: " + source;
            else if (source.endsWith(' ') != text.endsWith(' '))
                faults << "trailing blank: " + source;
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));

        const QString english = readAll(TestPaths::sourceDir() + "/share/help/" + HelpPage);
        const QString page = readAll(TestPaths::sourceDir() + "/share/help/" + language + "/" + HelpPage);
        QVERIFY(page.contains(QStringLiteral("<html lang=\"%1\">").arg(language)));
        for (const QString &pattern : {AnchorPattern, LinkPattern})
            QCOMPARE(attributeValues(page, pattern), attributeValues(english, pattern));
    }

    void wizardPages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("windowTitle");
        QTest::newRow("German") << "de_DE" << "Drucker hinzufügen";
        QTest::newRow("French") << "fr_FR" << "Ajouter une imprimante";
        QTest::newRow("Spanish") << "es_ES" << "Añadir impresora";
    }

    // The six pages, the Cancel question and the wizard's buttons speak the
    // language: no text is left as it reads in English, the buttons are
    // Qt's own translation, every text fits and no mnemonic is used twice
    // on a page.
    void wizardPages()
    {
        QFETCH(QString, locale);
        QFETCH(QString, windowTitle);
        WizardFixture f(QStringLiteral("usb with id"));
        installLanguageFiles(f);
        installTranslations(*qApp, locale);
        QVERIFY(f.load());
        Shown shown;
        QStringList faults;
        const bool walked = walk(f, m_queue, shown, &faults);
        CUPSManager::m_CUPSManagerInstance.deletePrinter(m_queue);
        QVERIFY(walked);

        QCOMPARE(shown.value("0/window"), windowTitle);
        QCOMPARE(shown.keys(), m_english.keys());
        QStringList untranslated;
        for (auto it = shown.cbegin(); it != shown.cend(); ++it) {
            if (it.value() == m_english.value(it.key()) && !sameInEveryLanguage(it.value()))
                untranslated << it.key() + ": " + it.value();
        }
        QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join('\n')));
        for (auto which : {QWizard::BackButton, QWizard::NextButton, QWizard::CancelButton, QWizard::HelpButton}) {
            const QString key = QStringLiteral("1/wizard:%1").arg(int(which));
            QCOMPARE(shown.value(key), QCoreApplication::translate("QWizard", qPrintable(m_english.value(key))));
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void helpPages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("ownFolder");
        QTest::addColumn<QString>("page");

        QTest::newRow("French of Canada") << "fr_CA" << "" << "fr/" + HelpPage;
        QTest::newRow("closest locale first") << "de_AT" << "de_AT" << "de_AT/" + HelpPage;
        QTest::newRow("not translated") << "pt_BR" << "" << HelpPage;
    }

    // Help and the network printer button open the page in the user's
    // language where there is one, else the English page.
    void helpPages()
    {
        QFETCH(QString, locale);
        QFETCH(QString, ownFolder);
        QFETCH(QString, page);
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
        QVERIFY(f.load());

        const QString url = QUrl::fromLocalFile(f.shareDir() + "/help/" + page).toString();
        QCOMPARE(f.child<URLPushButton>("ConfigureNetworkButton")->url(), url + "#network");
        QVERIFY(f.click(QWizard::HelpButton));
        QTRY_COMPARE(readAll(opened).trimmed(), url);
    }

    void testPageJob_data()
    {
        QTest::addColumn<QString>("lang");
        QTest::addColumn<QString>("jobName");
        QTest::newRow("German") << "de_DE.UTF-8" << "Testseite";
        QTest::newRow("not translated") << "pt_BR.UTF-8" << "Test page";
    }

    // The package's test page program reads the translations beside it:
    // its job is listed under a name in the user's language.
    void testPageJob()
    {
        QFETCH(QString, lang);
        QFETCH(QString, jobName);
        WizardFixture f;
        installLanguageFiles(f);
        const QString program = f.rootDir() + "/bin/printertest";
        QVERIFY(QDir().mkpath(f.rootDir() + "/bin"));
        QVERIFY(QFile::copy(TestPaths::binaryDir() + "/tools/printertest/printertest", program));
        LoopbackPrinter printer;
        const TestQueue queue(m_queue + "_" + QString(lang).remove(QRegularExpression("[._-].*")), printer.deviceUri(),
                              "acme-laser1610.ppd");
        QVERIFY2(queue.isMade(), qPrintable(queue.error()));

        QProcessEnvironment env = TestSupport::environmentWithout({"LC_ALL", "LC_MESSAGES", "LANGUAGE"});
        env.insert("LANG", lang);
        QCOMPARE(TestSupport::run(program, {queue.name()}, env).status, 1);
        QVERIFY(!printer.waitForJob().isNull());
        QList<CUPSJob> jobs;
        // A job that ends while it is asked for may be listed twice.
        QVERIFY(CUPSManager::m_CUPSManagerInstance.listJobs(queue.name(), jobs, false) > 0);
        for (const CUPSJob &job : std::as_const(jobs))
            QCOMPARE(job.Name(), jobName);
    }
};

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
