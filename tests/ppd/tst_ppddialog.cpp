#include "cupssandbox.h"
#include "mimesourcefactory_ppdwidgets.h"
#include "pendingppdwriters.h"
#include "ppddialog.h"
#include "ppdoptionview.h"
#include "ppdrewriter.h"
#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"
#include "testpaths.h"
#include "testqueue.h"
#include "testsupport.h"

#include <cups/cups.h>

#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

// A sample PPD with its defaults marked, then the marks "Option=Choice ...";
// null when a mark does not fit it.
PpdFilePtr openSample(const QString &name, const QByteArray &marks)
{
    PpdFilePtr ppd(ppdOpenFile(QFile::encodeName(TestPaths::samplePpd(name)).constData()));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    for (const QByteArray &mark : marks.split(' ')) {
        if (mark.isEmpty())
            continue;
        const QList<QByteArray> parts = mark.split('=');
        if (!ppd || !ppdFindChoice(ppdFindOption(ppd.get(), parts.at(0).constData()), parts.value(1).constData()))
            return nullptr;
        ppdMarkOption(ppd.get(), parts.at(0).constData(), parts.at(1).constData());
    }
    return ppd;
}

struct FileCloser
{
    void operator()(FILE *file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<FILE, FileCloser>;

// What rewriteDefaults() writes for input.
QByteArray rewritten(ppd_file_t *ppd, QByteArray input)
{
    char *buffer = nullptr;
    size_t size = 0;
    {
        FilePtr in(fmemopen(input.data(), size_t(input.size()), "r"));
        FilePtr out(open_memstream(&buffer, &size));
        if (ppd && in && out)
            PPDRewriter(ppd).rewriteDefaults(in.get(), out.get());
    }
    const QByteArray output(buffer, qsizetype(size));
    std::free(buffer);
    return output;
}

// The dialog, shown, with its children.
struct Dialog
{
    explicit Dialog(const QString &printer)
        : dialog(std::make_unique<PPDDialog>(printer))
        , tree(dialog->findChild<PPDTreeView *>(QStringLiteral("ppdTreeView")))
        , list(dialog->findChild<PPDOptionView *>(QStringLiteral("ppdOptionView"))->findChild<QListWidget *>())
        , ok(dialog->findChild<QPushButton *>(QStringLiteral("OkButton")))
    {
        dialog->resize(800, 600);
        dialog->show();
    }
    // Picks a choice of a pick-one option the way a user does.
    bool pick(const char *keyword, const QString &choice) const
    {
        QTreeWidgetItem *item = tree->findOption(QString::fromLatin1(keyword));
        if (!item)
            return false;
        tree->scrollToItem(item);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
        const QList<QListWidgetItem *> rows = list->findItems(choice, Qt::MatchExactly);
        if (rows.size() != 1)
            return false;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(rows.first()).center());
        return true;
    }
    bool isConflict(const QString &text) const
    {
        const auto items = tree->findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive);
        return !items.isEmpty() && static_cast<PPDTree::BaseItem *>(items.first())->isConflict();
    }

    std::unique_ptr<PPDDialog> dialog;
    PPDTreeView *tree;
    QListWidget *list;
    QPushButton *ok;
};

// The "*Default" lines of the queue's PPD on the server, and whether
// `lpoptions -l` stars the same choices.
QStringList serverDefaults(const QString &queue, const QList<QByteArray> &keywords)
{
    const char *path = cupsGetPPD(queue.toUtf8().constData());
    QFile file(QFile::decodeName(path));
    const QByteArray ppd = path && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.remove();
    QString options;
    CupsSandbox::run({QStringLiteral("lpoptions"), QStringLiteral("-p"), queue, QStringLiteral("-l")}, &options);
    QStringList lines;
    for (const QByteArray &keyword : keywords) {
        const qsizetype start = ppd.indexOf("\n*Default" + keyword + ": ") + 1;
        const QString line = QString::fromUtf8(ppd.mid(start, ppd.indexOf('\n', start) - start));
        const QRegularExpression starred(QStringLiteral("^%1/.*: .*\\*%2( |$)").arg(keyword, line.section(' ', 1)),
                                         QRegularExpression::MultilineOption);
        lines << (start > 0 && options.contains(starred) ? line : line + QStringLiteral(" (not in lpoptions)"));
    }
    return lines;
}

} // namespace

// The options dialog against the scheduler, and the rewriting of the
// defaults in the drivers the package ships.
class TestPPDDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QW_USE_SHARED_SCHEDULER();
        // libcups puts its temporary files here: the tests count them.
        qputenv("TMPDIR", QFile::encodeName(m_temp.path()));
        MimeSourceFactory_ppdwidgets::registerFactory();
        // Message boxes are answered with their default button and noted as
        // "title|button,button|text", so that no test waits on one.
        connect(&m_answerer, &QTimer::timeout, this, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isVisible())
                return;
            QStringList buttons;
            for (QAbstractButton *button : box->buttons())
                buttons << button->text();
            m_boxes << box->windowTitle() + '|' + buttons.join(',') + '|' + box->text();
            box->defaultButton() ? box->defaultButton()->click() : box->buttons().constFirst()->click();
        });
        m_answerer.start(20);
    }

    void cleanup()
    {
        m_boxes.clear();
        QCOMPARE(temporaryFiles(), QStringList());
    }

    void okStoresTheChoices()
    {
        const TestQueue made = addQueue("save", "acme-laser1610.ppd");
        QVERIFY2(made.isMade(), qPrintable(made.error()));
        const QString &queue = made.name();
        QCOMPARE(serverDefaults(queue, {"PageSize", "Duplex"}),
                 QStringList({"*DefaultPageSize: Letter", "*DefaultDuplex: None"}));
        Dialog d(queue);
        QCOMPARE(d.dialog->windowTitle(), QStringLiteral("'%1' Properties").arg(queue));
        // The copy of the PPD stays while the dialog is open.
        QCOMPARE(temporaryFiles(), QStringList{QFileInfo(d.dialog->ppdFileName()).fileName()});

        QVERIFY(d.pick("PageSize", QStringLiteral("US Legal")));
        QVERIFY(d.pick("Duplex", QStringLiteral("Long Edge Binding")));
        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(d.dialog->result(), int(QDialog::Accepted));
        QVERIFY(!d.dialog->isVisible());
        d.dialog.reset();
        QCOMPARE(serverDefaults(queue, {"PageSize", "Duplex", "Resolution"}),
                 QStringList({"*DefaultPageSize: Legal", "*DefaultDuplex: DuplexNoTumble",
                              "*DefaultResolution: 600dpi"}));
    }

    void conflictBlocksOkUntilResolved()
    {
        const TestQueue made = addQueue("conflict", "acme-colorlaser2550.ppd");
        QVERIFY2(made.isMade(), qPrintable(made.error()));
        const QString &queue = made.name();
        Dialog d(queue);
        QVERIFY(d.pick("Duplex", QStringLiteral("Long Edge Binding")));
        QVERIFY(d.pick("MediaType", QStringLiteral("Transparency")));
        QCOMPARE(m_boxes.size(), 1);
        const QString box = m_boxes.constFirst();
        QVERIFY2(box.startsWith(QLatin1String("Driver configuration|OK|You selected 2 options that are in conflict. "
                                              "Resolve the conflict before you continue:\n\n")),
                 qPrintable(box));
        QVERIFY2(box.contains(QLatin1String("\n  Media Type = Transparency")), qPrintable(box));
        QVERIFY2(box.contains(QLatin1String("\n  Two-Sided Printing = Long Edge Binding")), qPrintable(box));
        QVERIFY(!d.ok->isEnabled());
        for (const char *text : {"Media Type", "Two-Sided Printing", "General", "Acme ColorLaser 2550"})
            QVERIFY2(d.isConflict(QString::fromLatin1(text)), text);
        QVERIFY(!d.isConflict(QStringLiteral("Colour")));

        // Another change that leaves the conflict warns again.
        QVERIFY(d.pick("PageSize", QStringLiteral("A5")));
        QCOMPARE(m_boxes.size(), 2);
        QVERIFY(!d.ok->isEnabled());
        QVERIFY(d.pick("Duplex", QStringLiteral("Off")));
        QCOMPARE(m_boxes.size(), 2);
        QVERIFY(d.ok->isEnabled());
        QVERIFY(!d.isConflict(QStringLiteral("Acme ColorLaser 2550")));
        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(serverDefaults(queue, {"MediaType", "Duplex", "PageSize"}),
                 QStringList({"*DefaultMediaType: Transparency", "*DefaultDuplex: None", "*DefaultPageSize: A5"}));
    }

    void vanishedPrinter()
    {
        const TestQueue made = addQueue("gone", "acme-laser1610.ppd");
        QVERIFY2(made.isMade(), qPrintable(made.error()));
        const QString &queue = made.name();
        Dialog d(queue);
        QVERIFY(d.pick("Duplex", QStringLiteral("Short Edge Binding")));
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-x"), queue}), 0);

        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Failed to find printer <%1>").arg(queue)));
        QTest::mouseClick(d.ok, Qt::LeftButton);
        QCOMPARE(m_boxes, QStringList{"Error!|Ok|Can't save results to PPD file!"});
        QVERIFY(d.dialog->isVisible());
        QCOMPARE(d.tree->findOption(QStringLiteral("Duplex"))->text(0),
                 QStringLiteral("Two-Sided Printing: <Short Edge Binding>"));

        // Opened now, it has nothing to show.
        QTest::ignoreMessage(QtWarningMsg, "cupsGetPPD failed");
        QVERIFY(!PPDDialog(queue).isLoaded());
        QCOMPARE(m_boxes.value(1), QStringLiteral("Error!|Ok|Can't open PPD file!"));
    }

    // The scheduler lists them all: tst_cupsmanager's driverCatalogue.
    void samplesAreValid_data()
    {
        QTest::addColumn<QString>("ppd");
        const QStringList files = QDir(TestPaths::samplePpd()).entryList({QStringLiteral("*.ppd")}, QDir::Files);
        QVERIFY(files.size() >= 5);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file;
    }

    // Valid, and their defaults free of conflicts.
    void samplesAreValid()
    {
        QFETCH(QString, ppd);
        QString output;
        QVERIFY2(CupsSandbox::run({"cupstestppd", "-W", "all", TestPaths::samplePpd(ppd)}, &output) == 0,
                 qPrintable(output));
        QCOMPARE(ppdConflicts(openSample(ppd, QByteArray()).get()), 0);
    }

    void sampleConstraints_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QByteArray>("marks");
        QTest::addColumn<bool>("conflict");
        QTest::newRow("no duplexer, duplex") << "acme-mfp4200.ppd" << QByteArray("Duplex=DuplexNoTumble") << true;
        QTest::newRow("duplexer installed")
            << "acme-mfp4200.ppd" << QByteArray("OptionDuplexer=True Duplex=DuplexNoTumble") << false;
        QTest::newRow("tray 2 missing") << "acme-mfp4200.ppd" << QByteArray("InputSlot=Tray2") << true;
        QTest::newRow("transparency duplex")
            << "acme-laser1610.ppd" << QByteArray("MediaType=Transparency Duplex=DuplexTumble") << true;
    }

    void sampleConstraints()
    {
        QFETCH(QString, ppd);
        QFETCH(QByteArray, marks);
        QFETCH(bool, conflict);
        const PpdFilePtr file = openSample(ppd, marks);
        QVERIFY(file);
        QCOMPARE(ppdConflicts(file.get()) > 0, conflict);
    }

    void rewrite_data()
    {
        QTest::addColumn<QByteArray>("mark"); // on top of the defaults
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("output");
        using B = QByteArray;

        // acme-laser1610.ppd defaults to PageSize Letter, Resolution 600dpi, Duplex None.
        QTest::newRow("Letter becomes A4") << B("PageSize=A4") << B("*DefaultPageSize: Letter\n")
                                           << B("*DefaultPageSize: A4\n");
        QTest::newRow("unchanged value in normal form") << B() << B("*DefaultResolution :  600dpi\n")
                                                        << B("*DefaultResolution: 600dpi\n");
        QTest::newRow("trailing remark is lost") << B("Duplex=DuplexTumble") << B("*DefaultDuplex: None *% off\n")
                                                 << B("*DefaultDuplex: DuplexTumble\n");
        QTest::newRow("no marked choice") << B() << B("*DefaultFont: Courier  \n") << B("*DefaultFont: Courier  \n");
        QTest::newRow("no colon") << B("PageSize=A4") << B("*DefaultPageSize Letter\n")
                                  << B("*DefaultPageSize Letter\n");
        QTest::newRow("last line without line feed is dropped")
            << B("PageSize=A4") << B("*DefaultPageSize: Letter\n*% End") << B("*DefaultPageSize: A4\n");
        QTest::newRow("CR LF and lone CR become LF") << B("PageSize=A4")
                                                     << B("*% a\r\n*DefaultPageSize: Letter\r\n\r\n*% b\r*% c\r")
                                                     << B("*% a\n*DefaultPageSize: A4\n\n*% b\n*% c\n");
        QTest::newRow("300 characters become 255 and 45")
            << B() << B(300, 'x') + '\n' << B(255, 'x') + '\n' + B(45, 'x') + '\n';
    }

    void rewrite()
    {
        QFETCH(QByteArray, mark);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, output);
        PpdFilePtr ppd = openSample(QStringLiteral("acme-laser1610.ppd"), mark);
        QVERIFY(ppd);
        QCOMPARE(rewritten(ppd.get(), input), output);
    }

    // Nothing but the changed defaults differs in a whole file.
    void wholeSample()
    {
        const QString name = QStringLiteral("acme-colorlaser2550.ppd");
        PpdFilePtr ppd = openSample(name, "PageSize=Letter TonerSave=True");
        QFile file(TestPaths::samplePpd(name));
        QVERIFY(ppd && file.open(QIODevice::ReadOnly));
        QByteArray expected = file.readAll();
        const QByteArray written = rewritten(ppd.get(), expected);
        expected.replace("*DefaultPageSize: A4\n", "*DefaultPageSize: Letter\n");
        expected.replace("*DefaultTonerSave: False\n", "*DefaultTonerSave: True\n");
        QCOMPARE(written, expected);
        // Marking PageSize unmarks PageRegion, so its line stays as it was.
        QVERIFY(written.contains("*DefaultPageRegion: A4\n"));
    }

    void paperSize_data()
    {
        QTest::addColumn<QByteArray>("paper");
        QTest::newRow("Letter") << QByteArray("Letter");
        QTest::newRow("not offered by the driver") << QByteArray("Tabloid");
    }

    // A new queue's paper: the defaults of PageSize and PageRegion both,
    // nothing else; no file for a paper the driver lacks.
    void paperSize()
    {
        QFETCH(QByteArray, paper);
        const QString name = QStringLiteral("acme-colorlaser2550.ppd");
        PpdFilePtr ppd = openSample(name, QByteArray());
        QFile file(TestPaths::samplePpd(name));
        QVERIFY(ppd && file.open(QIODevice::ReadOnly));
        const TempFile copy = PPDRewriter(ppd.get()).paperSizeCopy(file.fileName(), paper.constData());
        QByteArray expected = file.readAll();
        expected.replace("*DefaultPageSize: A4\n", "*DefaultPageSize: " + paper + '\n');
        expected.replace("*DefaultPageRegion: A4\n", "*DefaultPageRegion: " + paper + '\n');
        QCOMPARE(copy.isNull() ? QByteArray() : TestSupport::readFile(copy.path()),
                 paper == "Tabloid" ? QByteArray() : expected);
    }

    // A program still storing a queue's PPD is waited for, then ended;
    // those of other queues go on.
    void pendingWriters()
    {
        qint64 late = 0;
        qint64 other = 0;
        QVERIFY(QProcess::startDetached(QStringLiteral("sleep"), {QStringLiteral("30")}, QString(), &late));
        QVERIFY(QProcess::startDetached(QStringLiteral("sleep"), {QStringLiteral("30")}, QString(), &other));
        PendingPPDWriters::add(QStringLiteral("late"), late);
        PendingPPDWriters::add(QStringLiteral("other"), other);
        PendingPPDWriters::settle(QStringLiteral("late"), 300);
        QVERIFY(!PendingPPDWriters::isRunning(late));
        QVERIFY(PendingPPDWriters::isRunning(other));
        PendingPPDWriters::settle(QStringLiteral("other"), 0);
        QVERIFY(!PendingPPDWriters::isRunning(other));
    }

private:
    static TestQueue addQueue(const char *tag, const char *ppd)
    {
        return TestQueue(QStringLiteral("ppddlg_%1_%2").arg(QCoreApplication::applicationPid()).arg(QLatin1String(tag)),
                         QStringLiteral("socket://127.0.0.1:9"), QLatin1String(ppd));
    }

    QStringList temporaryFiles() const
    {
        return QDir(m_temp.path()).entryList(QDir::Files | QDir::System | QDir::Hidden);
    }

    QTemporaryDir m_temp;
    QTimer m_answerer;
    QStringList m_boxes;
};

QTEST_MAIN(TestPPDDialog)
#include "tst_ppddialog.moc"
