#include "cupssandbox.h"
#include "messageboxanswerer.h"
#include "mimesourcefactory_ppdwidgets.h"
#include "ppddialog.h"
#include "ppdoptionview.h"
#include "ppdtestfiles.h"
#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"

#include <cups/cups.h>

#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

// The dialog, shown, with its children.
struct Dialog
{
    explicit Dialog(const QString &printer)
        : dialog(std::make_unique<PPDDialog>(printer))
        , tree(dialog->findChild<PPDTreeView *>(QStringLiteral("ppdTreeView")))
        , view(dialog->findChild<PPDOptionView *>(QStringLiteral("ppdOptionView")))
        , list(view->findChild<QListWidget *>())
        , ok(dialog->findChild<QPushButton *>(QStringLiteral("OkButton")))
    {
        dialog->resize(800, 600);
        dialog->show();
    }

    PPDTree::BaseItem *option(const char *keyword) const
    {
        return tree->findOption(QString::fromLatin1(keyword));
    }
    PPDTree::BaseItem *item(const QString &text) const
    {
        return static_cast<PPDTree::BaseItem *>(
            tree->findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive).value(0));
    }
    // Picks a choice of a pick-one option the way a user does.
    bool pick(const char *keyword, const QString &choice) const
    {
        QTreeWidgetItem *item = option(keyword);
        if (!item)
            return false;
        tree->scrollToItem(item);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
        const QList<QListWidgetItem *> rows = list->findItems(choice, Qt::MatchExactly);
        if (view->item() != item || rows.size() != 1)
            return false;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(rows.first()).center());
        return true;
    }

    std::unique_ptr<PPDDialog> dialog;
    PPDTreeView *tree;
    PPDOptionView *view;
    QListWidget *list;
    QPushButton *ok;
};

// The "*Default" value of a keyword in a PPD text.
QByteArray defaultOf(const QByteArray &ppd, const QByteArray &keyword)
{
    const QByteArray prefix = "*Default" + keyword + ": ";
    for (const QByteArray &line : ppd.split('\n')) {
        if (line.startsWith(prefix))
            return line.mid(prefix.size());
    }
    return QByteArray();
}

// The choices of an option as `lpoptions -l` lists them, the default
// starred.
QString lpoptionsLine(const QString &queue, const QString &keyword)
{
    QString output;
    if (CupsSandbox::run({QStringLiteral("lpoptions"), QStringLiteral("-p"), queue, QStringLiteral("-l")}, &output)
        != 0)
        return QString();
    for (const QString &line : output.split(QLatin1Char('\n'))) {
        if (line.startsWith(keyword + QLatin1Char('/')))
            return line.section(QLatin1Char(':'), 1).trimmed();
    }
    return QString();
}

} // namespace

class TestPPDDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
        QVERIFY(m_temp.isValid());
        // libcups puts its temporary files here: the tests count them.
        qputenv("TMPDIR", QFile::encodeName(m_temp.path()));
        MimeSourceFactory_ppdwidgets::registerFactory();
    }

    void cleanup()
    {
        for (const QString &queue : std::as_const(m_queues))
            CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-x"), queue});
        m_queues.clear();
        QCOMPARE(temporaryFiles(), QStringList());
    }

    void okStoresTheChoices()
    {
        const QString queue = addQueue(QStringLiteral("save"), QStringLiteral("acme-laser1610.ppd"));
        QVERIFY(!queue.isEmpty());
        const QByteArray before = serverPpd(queue);
        QVERIFY(!defaultOf(before, "PageSize").isEmpty());
        QVERIFY(defaultOf(before, "PageSize") != "Legal");

        Dialog d(queue);
        QCOMPARE(d.dialog->windowTitle(), QStringLiteral("'%1' Properties").arg(queue));
        QCOMPARE(d.tree->rootItem()->text(0), QStringLiteral("Acme Laser 1610 Series"));
        // The copy of the PPD stays while the dialog is open.
        QCOMPARE(temporaryFiles(), QStringList{QFileInfo(d.dialog->ppdFileName()).fileName()});

        QVERIFY(d.pick("PageSize", QStringLiteral("US Legal")));
        QVERIFY(d.pick("Duplex", QStringLiteral("Long Edge Binding")));
        QVERIFY(d.ok->isEnabled());
        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(d.dialog->result(), int(QDialog::Accepted));
        QVERIFY(!d.dialog->isVisible());
        QCOMPARE(temporaryFiles().size(), 1);
        d.dialog.reset();
        QCOMPARE(temporaryFiles(), QStringList());

        const QByteArray after = serverPpd(queue);
        QCOMPARE(defaultOf(after, "PageSize"), QByteArray("Legal"));
        QCOMPARE(defaultOf(after, "Duplex"), QByteArray("DuplexNoTumble"));
        QCOMPARE(defaultOf(after, "Resolution"), QByteArray("600dpi"));
        QVERIFY(after.contains("*PageSize Legal/US Legal:"));
        QVERIFY(lpoptionsLine(queue, QStringLiteral("PageSize")).split(QLatin1Char(' ')).contains("*Legal"));
        QVERIFY(lpoptionsLine(queue, QStringLiteral("Duplex")).split(QLatin1Char(' ')).contains("*DuplexNoTumble"));
    }

    // What the server holds when OK is pressed is rewritten, not the copy
    // the dialog opened.
    void rewritesTheServersCurrentFile()
    {
        const QString queue = addQueue(QStringLiteral("current"), QStringLiteral("acme-laser1610.ppd"));
        QVERIFY(!queue.isEmpty());
        Dialog d(queue);
        QVERIFY(d.pick("Resolution", QStringLiteral("1200 dpi")));
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-p"), queue, QStringLiteral("-m"),
                                   QStringLiteral("acme-laser1610-de.ppd")}),
                 0);
        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(d.dialog->result(), int(QDialog::Accepted));

        const QByteArray after = serverPpd(queue);
        QVERIFY(after.contains("*LanguageVersion: German\n"));
        QCOMPARE(defaultOf(after, "Resolution"), QByteArray("1200dpi"));
    }

    void conflictBlocksOkUntilResolved()
    {
        const QString queue = addQueue(QStringLiteral("conflict"), QStringLiteral("acme-colorlaser2550.ppd"));
        QVERIFY(!queue.isEmpty());
        Dialog d(queue);
        MessageBoxAnswerer answerer;
        QVERIFY(d.pick("Duplex", QStringLiteral("Long Edge Binding")));
        QCOMPARE(answerer.count(), 0);
        QVERIFY(d.ok->isEnabled());

        QVERIFY(d.pick("MediaType", QStringLiteral("Transparency")));
        QCOMPARE(answerer.count(), 1);
        const MessageBoxAnswerer::Box box = answerer.boxes().constFirst();
        QCOMPARE(box.title, QStringLiteral("Driver configuration"));
        QVERIFY2(box.text.contains(QLatin1String("\n  Media Type = Transparency")), qPrintable(box.text));
        QVERIFY2(box.text.contains(QLatin1String("\n  Two-Sided Printing = Long Edge Binding")), qPrintable(box.text));
        QVERIFY(!d.ok->isEnabled());
        for (const char *text : {"Media Type", "Two-Sided Printing", "General", "Acme ColorLaser 2550"})
            QVERIFY2(d.item(QString::fromLatin1(text))->isConflict(), text);
        QVERIFY(!d.item(QStringLiteral("Colour"))->isConflict());

        // Another change that leaves the conflict warns again.
        QVERIFY(d.pick("PageSize", QStringLiteral("A5")));
        QCOMPARE(answerer.count(), 2);
        QVERIFY(!d.ok->isEnabled());

        QVERIFY(d.pick("Duplex", QStringLiteral("Off")));
        QCOMPARE(answerer.count(), 2);
        QVERIFY(d.ok->isEnabled());

        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(d.dialog->result(), int(QDialog::Accepted));
        const QByteArray after = serverPpd(queue);
        QCOMPARE(defaultOf(after, "MediaType"), QByteArray("Transparency"));
        QCOMPARE(defaultOf(after, "Duplex"), QByteArray("None"));
        QCOMPARE(defaultOf(after, "PageSize"), QByteArray("A5"));
    }

    void vanishedPrinterKeepsTheDialogOpen()
    {
        const QString queue = addQueue(QStringLiteral("gone"), QStringLiteral("acme-laser1610.ppd"));
        QVERIFY(!queue.isEmpty());
        Dialog d(queue);
        QVERIFY(d.pick("Duplex", QStringLiteral("Short Edge Binding")));
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-x"), queue}), 0);

        MessageBoxAnswerer answerer;
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Failed to find printer <%1>").arg(queue)));
        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(answerer.count(), 1);
        const MessageBoxAnswerer::Box box = answerer.boxes().constFirst();
        QCOMPARE(QStringList({box.title, box.text}), QStringList({"Error!", "Can't save results to PPD file!"}));
        QCOMPARE(box.buttons, QStringList{"Ok"});
        QVERIFY(d.dialog->isVisible());
        QCOMPARE(d.dialog->result(), int(QDialog::Rejected));
        QCOMPARE(d.option("Duplex")->text(0), QStringLiteral("Two-Sided Printing: <Short Edge Binding>"));
    }

    void unknownPrinterCannotOpen()
    {
        const QString queue = QStringLiteral("ppddlg_%1_nosuch").arg(QCoreApplication::applicationPid());
        MessageBoxAnswerer answerer;
        QTest::ignoreMessage(QtWarningMsg, "cupsGetPPD failed");
        PPDDialog dialog(queue);
        QVERIFY(!dialog.isLoaded());
        QCOMPARE(answerer.count(), 1);
        const MessageBoxAnswerer::Box box = answerer.boxes().constFirst();
        QCOMPARE(QStringList({box.title, box.text}), QStringList({"Error!", "Can't open PPD file!"}));
        QCOMPARE(box.buttons, QStringList{"Ok"});

        // The static entry does not show an empty dialog.
        QTest::ignoreMessage(QtWarningMsg, "cupsGetPPD failed");
        QVERIFY(!PPDDialog::runForPrinter(queue, nullptr));
        QCOMPARE(answerer.count(), 2);
    }

    void runForPrinter_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("OK") << "OkButton" << true;
        QTest::newRow("Cancel") << "CancelButton" << false;
    }

    void runForPrinter()
    {
        QFETCH(QString, button);
        QFETCH(bool, accepted);
        const QString queue = addQueue(QStringLiteral("run"), QStringLiteral("acme-laser1610.ppd"));
        QVERIFY(!queue.isEmpty());

        QWidget parent;
        QString title;
        bool modal = false;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<PPDDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            closer.stop();
            title = dialog->windowTitle();
            modal = dialog->isModal() && dialog->parentWidget() == &parent;
            QTest::mouseClick(dialog->findChild<QPushButton *>(button), Qt::LeftButton);
        });
        closer.start(20);
        QCOMPARE(PPDDialog::runForPrinter(queue, &parent), accepted);
        QCOMPARE(title, QStringLiteral("'%1' Properties").arg(queue));
        QVERIFY(modal);
    }

private:
    QString addQueue(const QString &tag, const QString &ppd)
    {
        const QString queue = QStringLiteral("ppddlg_%1_%2").arg(QCoreApplication::applicationPid()).arg(tag);
        const bool file = ppd.contains(QLatin1Char('/'));
        QString output;
        const int status = CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-p"), queue,
                                             QStringLiteral("-E"), QStringLiteral("-v"),
                                             QStringLiteral("socket://127.0.0.1:9"),
                                             file ? QStringLiteral("-P") : QStringLiteral("-m"), ppd},
                                            &output);
        if (status != 0) {
            qWarning("lpadmin failed: %s", qPrintable(output));
            return QString();
        }
        m_queues << queue;
        return queue;
    }

    QStringList temporaryFiles() const
    {
        return QDir(m_temp.path()).entryList(QDir::Files | QDir::System | QDir::Hidden);
    }

    QByteArray serverPpd(const QString &queue) const
    {
        const char *path = cupsGetPPD(queue.toUtf8().constData());
        if (!path)
            return QByteArray();
        QFile file(QFile::decodeName(path));
        const QByteArray data = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        file.remove();
        return data;
    }

    QTemporaryDir m_temp;
    QStringList m_queues;
};

QTEST_MAIN(TestPPDDialog)
#include "tst_ppddialog.moc"
