#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "testpaths.h"
#include "testsheet.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestPrinterTest : public QObject
{
    Q_OBJECT

private:
    struct Result
    {
        int status;
        QString out;
        QString err;
    };

    Result printertest(const QStringList &args)
    {
        QProcess p;
        p.start(TestPaths::binaryDir() + "/tools/printertest/printertest", args);
        if (!p.waitForFinished(60000))
            return { -1, {}, "did not end" };
        return { p.exitCode(), QString::fromLocal8Bit(p.readAllStandardOutput()),
                 QString::fromLocal8Bit(p.readAllStandardError()) };
    }

private slots:
    void initTestCase()
    {
        QString why;
        QVERIFY2(CupsSandbox::useShared(&why), qPrintable(why));
    }

    void pageSize_data()
    {
        QTest::addColumn<QString>("media");
        QTest::addColumn<int>("size");
        QTest::newRow("letter") << "na_letter_8.5x11in" << int(QPageSize::Letter);
        QTest::newRow("a4") << "iso_a4_210x297mm" << int(QPageSize::A4);
        QTest::newRow("legal") << "na_legal_8.5x14in" << int(QPageSize::Legal);
        QTest::newRow("PPD name") << "Letter" << int(QPageSize::Letter);
        QTest::newRow("unknown keeps the fallback") << "om_small-photo_100x150mm" << int(QPageSize::B5);
        QTest::newRow("none") << "" << int(QPageSize::B5);
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
        QFile f(pdf);
        QVERIFY(f.open(QIODevice::ReadOnly));
        const QByteArray data = f.readAll();
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
        const QString queue = "printertest_ok";
        QCOMPARE(CupsSandbox::run({ "lpadmin", "-p", queue, "-E", "-v", printer.deviceUri(), "-m",
                                    "acme-laser1610.ppd" }),
                 0);
        const Result r = printertest({ queue });
        QCOMPARE(r.status, 1);
        QVERIFY2(QRegularExpression("^printertest: job \\d+ sent to printertest_ok\n$").match(r.out).hasMatch(),
                 qPrintable(r.out));
        const QByteArray job = printer.waitForJob(60000);
        QVERIFY(!job.isNull());
        QVERIFY(job.startsWith("%!PS"));
        CupsSandbox::run({ "lpadmin", "-x", queue });
    }

    void failures_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown queue") << QStringList{ "no_such_queue" } << "there is no printer 'no_such_queue'";
        QTest::newRow("no argument") << QStringList{} << "usage: printertest QUEUE";
        QTest::newRow("two arguments") << QStringList{ "a", "b" } << "usage: printertest QUEUE";
    }

    void failures()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        const Result r = printertest(args);
        QCOMPARE(r.status, 0);
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
    }

    void queueRejectingJobs()
    {
        const QString queue = "printertest_rejecting";
        QCOMPARE(CupsSandbox::run({ "lpadmin", "-p", queue, "-v", "socket://127.0.0.1:9", "-m", "acme-laser1610.ppd" }), 0);
        QCOMPARE(CupsSandbox::run({ "cupsreject", queue }), 0);
        const Result r = printertest({ queue });
        QCOMPARE(r.status, 0);
        QVERIFY2(r.err.contains("did not take the test page"), qPrintable(r.err));
        CupsSandbox::run({ "lpadmin", "-x", queue });
    }
};

QTEST_MAIN(TestPrinterTest)
#include "tst_printertest.moc"
