// printertest QUEUE: prints a test sheet on a queue.
// The exit status is what the wizard reads: 1 when the scheduler accepted
// the job (its id is printed), 0 when it did not.

#include "cupsmanager.h"
#include "cupsprinter.h"
#include "desktoplanguage.h"
#include "oemconfig.h"
#include "papersize.h"
#include "testsheet.h"

#include <QDir>
#include <QGuiApplication>
#include <QHostInfo>
#include <QTemporaryDir>

#include <cstdio>

namespace {

const int kAccepted = 1;
const int kFailed = 0;

} // namespace

int main(int argc, char **argv)
{
    // The sheet is drawn, never shown: no display is needed.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);

    // The sheet speaks the user's language, as the wizard does.
    readOemConfig(argv[0]);
    DesktopLanguage::install(app, QDir(QString::fromLocal8Bit(actx.shareDir)).filePath(QStringLiteral("tr")),
                             QStringLiteral("queuewiz"));

    if (argc != 2 || argv[1][0] == '\0') {
        fprintf(stderr, "usage: printertest QUEUE\n");
        return kFailed;
    }
    const QString queue = QString::fromLocal8Bit(argv[1]);

    CUPSManager &cups = CUPSManager::m_CUPSManagerInstance;
    CUPSPrinter printer;
    if (!cups.findPrinter(queue, printer)) {
        fprintf(stderr, "printertest: there is no printer '%s' (%s)\n", argv[1],
                cups.lastStatusText().toLocal8Bit().constData());
        return kFailed;
    }

    TestSheet sheet;
    sheet.queue = printer.Name();
    sheet.driver = printer.ModelInfo();
    sheet.deviceUri = printer.DeviceURI();
    sheet.host = QHostInfo::localHostName();
    sheet.pageSize = TestSheet::pageSizeForMedia(
        printer.MediaDefault(), QPageSize(qstrcmp(defaultPaperSize(), "Letter") == 0 ? QPageSize::Letter : QPageSize::A4));

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("testpage.pdf"));
    if (!dir.isValid() || !sheet.writePdf(pdf)) {
        fprintf(stderr, "printertest: can't write the test page\n");
        return kFailed;
    }

    CUPSJob job;
    // The job's name is what print queue windows list.
    const QString jobName = QCoreApplication::translate("TestSheet", "Test page");
    if (!cups.printFile(printer, jobName, QStringLiteral("application/pdf"), pdf, &job)) {
        fprintf(stderr, "printertest: the printer '%s' did not take the test page (%s)\n", argv[1],
                cups.lastStatusText().toLocal8Bit().constData());
        return kFailed;
    }
    printf("printertest: job %d sent to %s\n", job.Id(), argv[1]);
    return kAccepted;
}
