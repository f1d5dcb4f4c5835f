#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "loopbackprinter.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;

const QString RawFormat = u"application/vnd.cups-raw"_s;

QList<CUPSJob> jobsOf(const QString &queue, bool activeOnly, int *count = nullptr)
{
    QList<CUPSJob> jobs;
    const int appended = manager.listJobs(queue, jobs, activeOnly);
    if (count)
        *count = appended;
    return jobs;
}

} // namespace

// Jobs on raw queues whose device is a printer on the loopback interface.
class TestCupsJobs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void printedFileReachesThePrinter();
    void cancelByUriAndById();
    void failuresAreReported();

private:
    CUPSPrinter makeQueue(const QString &name);
    QString writeFile(const QByteArray &data);

    LoopbackPrinter m_printer;
    QTemporaryDir m_dir;
};

void TestCupsJobs::initTestCase()
{
    QString error;
    QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
    QVERIFY(m_printer.isListening());
    IPPLog::openAll(m_dir.path());
}

CUPSPrinter TestCupsJobs::makeQueue(const QString &name)
{
    CUPSPrinter printer(name);
    printer.setDeviceURI(m_printer.deviceUri());
    printer.setState(IPP_PSTATE_IDLE);
    printer.setAcceptingJobs(true);
    CUPSPrinter listed;
    if (!manager.addPrinter(printer) || !manager.findPrinter(name, listed))
        qWarning("queue %s not made: %s", qPrintable(name), qPrintable(manager.lastStatusText()));
    return listed;
}

QString TestCupsJobs::writeFile(const QByteArray &data)
{
    QTemporaryFile *file = new QTemporaryFile(m_dir.filePath(u"job-XXXXXX"_s), this);
    return file->open() && file->write(data) == data.size() && file->flush() ? file->fileName() : QString();
}

void TestCupsJobs::printedFileReachesThePrinter()
{
    const CUPSPrinter printer = makeQueue(u"cupsjobs_print"_s);
    int count = -1;
    QVERIFY(jobsOf(printer.Name(), true, &count).isEmpty() && count == 0);
    QVERIFY(jobsOf(printer.Name(), false, &count).isEmpty() && count == 0);

    const QByteArray data = "%!PS\n% queuewiz job\n" + QByteArray(20000, 'x'); // several network buffers
    CUPSJob job;
    QVERIFY2(manager.printFile(printer, u"hello job"_s, RawFormat, writeFile(data), &job),
             qPrintable(manager.lastStatusText()));
    QVERIFY(job.Uri().endsWith(u"/jobs/%1"_s.arg(job.Id())));
    QCOMPARE(m_printer.waitForJob(), data);

    QTRY_COMPARE_WITH_TIMEOUT(jobsOf(printer.Name(), true).size(), 0, 30000);
    const QList<CUPSJob> all = jobsOf(printer.Name(), false, &count);
    QCOMPARE(count, 1);
    const CUPSJob done = all.first();
    QCOMPARE(QStringList({QString::number(done.Id()), done.Name(), done.Printer(), done.User(),
                          QString::number(done.State())}),
             QStringList({QString::number(job.Id()), "hello job", printer.Name(), "root", "9"}));
    QVERIFY(done.KOctets() >= 19 && done.CreationTime() > 0);
    QVERIFY(done.Uri().isNull());
}

void TestCupsJobs::cancelByUriAndById()
{
    const CUPSPrinter printer = makeQueue(u"cupsjobs_cancel"_s);
    IPPRequest pause(IPP_OP_PAUSE_PRINTER); // jobs wait instead of printing
    pause.addURI("printer-uri", CUPSManager::printerUri(printer.Name()).toUtf8().constData());
    QVERIFY(manager.send(pause, "/admin/") && manager.LastStatus == IPP_STATUS_OK);
    const QString file = writeFile("never printed\n");
    CUPSJob first;
    CUPSJob second;
    QVERIFY(manager.printFile(printer, u"first"_s, RawFormat, file, &first));
    QVERIFY(manager.printFile(printer, u"second"_s, RawFormat, file, &second));
    QCOMPARE(jobsOf(printer.Name(), true).size(), 2);

    QVERIFY2(manager.cancelJob(first.Uri()), qPrintable(manager.lastStatusText()));
    QCOMPARE(jobsOf(printer.Name(), true).size(), 1);
    QVERIFY(manager.cancelJob(printer.Name(), second.Id()));
    QCOMPARE(jobsOf(printer.Name(), true).size(), 0);
    const QList<CUPSJob> all = jobsOf(printer.Name(), false);
    QCOMPARE(all.size(), 2);
    for (const CUPSJob &job : all)
        QCOMPARE(job.State(), int(IPP_JSTATE_CANCELED));
}

void TestCupsJobs::failuresAreReported()
{
    const CUPSPrinter printer = makeQueue(u"cupsjobs_fail"_s);
    QVERIFY(!manager.cancelJob(u"ipp://localhost/jobs/999999"_s));
    QCOMPARE(manager.LastStatus, int(IPP_STATUS_ERROR_NOT_FOUND));
    QVERIFY(!manager.cancelJob(printer.Name(), 999999));
    // A file that can't be read never reaches the scheduler.
    QVERIFY(!manager.printFile(printer, u"missing"_s, RawFormat, m_dir.filePath(u"no-such-file"_s)));
    QCOMPARE(manager.LastStatus, 0);
    QVERIFY(manager.disablePrinter(printer.Name()));
    QVERIFY(!manager.printFile(printer, u"rejected"_s, RawFormat, writeFile("rejected\n")));
    QCOMPARE(manager.lastStatusText(), u"IPP_NOT_ACCEPTING - Not accepting"_s);
}

QTEST_GUILESS_MAIN(TestCupsJobs)
#include "tst_cupsjobs.moc"
