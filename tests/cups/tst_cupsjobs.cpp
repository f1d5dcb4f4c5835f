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

QList<CUPSJob> jobsOf(const QString &queue, bool activeOnly)
{
    QList<CUPSJob> jobs;
    manager.listJobs(queue, jobs, activeOnly);
    return jobs;
}

} // namespace

// Jobs on raw queues whose device is a printer on the loopback interface.
class TestCupsJobs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
        QVERIFY(m_printer.isListening());
        IPPLog::openAll(m_dir.path());
    }

    void printedFileReachesThePrinter()
    {
        const CUPSPrinter printer = makeQueue(u"cupsjobs_print"_s);
        QVERIFY(jobsOf(printer.Name(), true).isEmpty());
        QVERIFY(jobsOf(printer.Name(), false).isEmpty());

        const QByteArray data = "%!PS\n% queuewiz job\n" + QByteArray(20000, 'x'); // several network buffers
        CUPSJob job;
        QVERIFY2(manager.printFile(printer, u"hello job"_s, RawFormat, writeFile(data), &job),
                 qPrintable(manager.lastStatusText()));
        QVERIFY(job.Uri().endsWith(u"/jobs/%1"_s.arg(job.Id())));
        QCOMPARE(m_printer.waitForJob(), data);

        QTRY_COMPARE_WITH_TIMEOUT(jobsOf(printer.Name(), true).size(), 0, 30000);
        QList<CUPSJob> all;
        QCOMPARE(manager.listJobs(printer.Name(), all, false), 1);
        const CUPSJob done = all.first();
        QCOMPARE(QStringList({QString::number(done.Id()), done.Name(), done.Printer(), done.User(),
                              QString::number(done.State())}),
                 QStringList({QString::number(job.Id()), "hello job", printer.Name(), "root", "9"}));
        QVERIFY(done.KOctets() >= 19 && done.CreationTime() > 0);
    }

    void cancelByUriAndById()
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
        QVERIFY(!manager.cancelJob(printer.Name(), second.Id() + 1000));
        QCOMPARE(manager.LastStatus, int(IPP_STATUS_ERROR_NOT_FOUND));
    }

private:
    CUPSPrinter makeQueue(const QString &name)
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

    QString writeFile(const QByteArray &data)
    {
        auto *file = new QTemporaryFile(m_dir.filePath(u"job-XXXXXX"_s), this);
        return file->open() && file->write(data) == data.size() && file->flush() ? file->fileName() : QString();
    }

    LoopbackPrinter m_printer;
    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(TestCupsJobs)
#include "tst_cupsjobs.moc"
