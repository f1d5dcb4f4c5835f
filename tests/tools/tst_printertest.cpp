#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "testpaths.h"
#include "testqueue.h"
#include "testsheet.h"
#include "testsupport.h"

#include <QTemporaryDir>
#include <QtTest>

class TestPrinterTest : public QObject
{
    Q_OBJECT

    static TestSupport::Run printertest(const QStringList &args)
    {
        return TestSupport::run(TestPaths::binaryDir() + "/tools/printertest/printertest", args);
    }

private slots:
    void initTestCase() { QW_USE_SHARED_SCHEDULER(); }

    void pageSize_data()
    {
        QTest::addColumn<QString>("media");
        QTest::addColumn<int>("size");
        QTest::newRow("letter") << "na_letter_8.5x11in" << int(QPageSize::Letter);
        QTest::newRow("a4") << "iso_a4_210x297mm" << int(QPageSize::A4);
        QTest::newRow("PPD name") << "Letter" << int(QPageSize::Letter);
        QTest::newRow("unknown keeps the fallback") << "om_small-photo_100x150mm" << int(QPageSize::B5);
    }

    void pageSize()
    {
        QFETCH(QString, media);
        QFETCH(int, size);
        QCOMPARE(int(TestSheet::pageSizeForMedia(media, QPageSize(QPageSize::B5)).id()), size);
    }

    void sheetIsOnePdfPage()
    {
        QTemporaryDir dir;
        TestSheet sheet;
        sheet.queue = "Office";
        sheet.deviceUri = "socket://127.0.0.1:9100";
        sheet.pageSize = QPageSize(QPageSize::Letter);
        const QString pdf = dir.filePath("t.pdf");
        QVERIFY(sheet.writePdf(pdf));
        const QByteArray data = TestSupport::readFile(pdf);
        QVERIFY(data.startsWith("%PDF-"));
        QCOMPARE(data.count("/Type /Page\n") + data.count("/Type /Page\r") + data.count("/Type /Page "), 1);
        // Letter is 612 x 792 points.
        QVERIFY(QRegularExpression("MediaBox \\[0 0 612(\\.0*)? 792(\\.0*)?\\]").match(QString::fromLatin1(data)).hasMatch());
        QVERIFY(!sheet.writePdf(dir.filePath("missing/dir/t.pdf")));
    }

    // Success is exit status 1, the sense the wizard reads.
    void printsToQueue()
    {
        LoopbackPrinter printer;
        const TestQueue queue("printertest_ok", printer.deviceUri(), "acme-laser1610.ppd");
        QVERIFY2(queue.isMade(), qPrintable(queue.error()));
        const TestSupport::Run r = printertest({ queue.name() });
        QCOMPARE(r.status, 1);
        QVERIFY2(QRegularExpression("^printertest: job \\d+ sent to printertest_ok\n$").match(r.out).hasMatch(),
                 qPrintable(r.out));
        const QByteArray job = printer.waitForJob(60000);
        QVERIFY(!job.isNull());
        QVERIFY(job.startsWith("%!PS"));
    }

    void failures_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown queue") << QStringList{ "no_such_queue" } << "there is no printer 'no_such_queue'";
        QTest::newRow("no argument") << QStringList{} << "usage: printertest QUEUE";
        QTest::newRow("queue rejecting jobs") << QStringList{ "printertest_rejecting" } << "did not take the test page";
    }

    void failures()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        const TestQueue rejecting("printertest_rejecting", "socket://127.0.0.1:9", "acme-laser1610.ppd", false);
        QVERIFY2(rejecting.isMade() && CupsSandbox::run({ "cupsreject", rejecting.name() }) == 0,
                 qPrintable(rejecting.error()));
        const TestSupport::Run r = printertest(args);
        QCOMPARE(r.status, 0);
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
    }
};

QTEST_MAIN(TestPrinterTest)
#include "tst_printertest.moc"
