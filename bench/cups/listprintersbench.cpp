// Times CUPSManager::listPrinters on a private scheduler with many queues
// (1000 unless a count is given on the command line). The printer manager
// must list them in about the time `lpstat -p` takes: one request, whatever
// the number of queues. Each time is printed as a ratio against two
// baselines measured in the same run: `lpstat -p` as a child program, and a
// bare CUPS-Get-Printers request whose answer is not looked at.

#include "cupsmanager.h"
#include "cupsptr.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "requests.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>

namespace {

// What the printer manager asks for of every queue.
const char *const kAttributes[] = {
    "printer-name", "printer-location", "printer-info", "printer-make-and-model", "printer-state",
    "printer-state-message", "device-uri", "color-supported", "media-supported", "media-default",
    "job-sheets-supported", "job-sheets-default", "printer-type", "printer-is-accepting-jobs",
    "printer-uri-supported", "copies-supported", "copies-default", "page-ranges-supported",
    "orientation-requested-supported", "orientation-requested-default"};

// Milliseconds: the best of several calls.
double timeIt(const std::function<bool()> &call, int rounds = 7)
{
    double best = 1e300;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        if (!call()) {
            fprintf(stderr, "bench_listprinters: a measured call failed\n");
            return -1;
        }
        best = std::min(best, double(clock.nsecsElapsed()) / 1e6);
    }
    return best;
}

bool runLpstat()
{
    QProcess lpstat;
    lpstat.start(QStringLiteral("lpstat"), {QStringLiteral("-p")});
    return lpstat.waitForFinished(120000) && lpstat.exitStatus() == QProcess::NormalExit && lpstat.exitCode() == 0;
}

// The same question as the printer manager's, on a fresh connection like
// its, with nothing done to the answer.
bool bareGetPrinters()
{
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    HttpPtr http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1, 10000,
                              nullptr));
    IppPtr answer(cupsDoRequest(http.get(), request, "/printers/"));
    return answer && ippGetStatusCode(answer.get()) == IPP_STATUS_OK;
}

// The printer manager's own request on its own connection, with the answer
// read but not walked: what listing costs beyond this is record building.
bool ownRequestOnly()
{
    QStringList attributes;
    for (const char *name : kAttributes)
        attributes << QLatin1String(name);
    Requests::GetPrinters request(0, 0);
    request.addKeywordList("requested-attributes", attributes);
    return CUPSManager::m_CUPSManagerInstance.send(request) && ippGetStatusCode(request.response()) == IPP_STATUS_OK;
}

bool createQueues(int count)
{
    CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;
    for (int i = 0; i < count; ++i) {
        CUPSPrinter printer(QStringLiteral("bench_%1").arg(i, 5, 10, QLatin1Char('0')));
        printer.setDeviceURI(QStringLiteral("socket://127.0.0.1:9"));
        printer.setInfo(QStringLiteral("Benchmark queue %1").arg(i));
        printer.setLocation(QStringLiteral("Floor %1").arg(i % 7));
        printer.setState(IPP_PSTATE_IDLE);
        printer.setAcceptingJobs(true);
        // Some queues with a driver, so that the vendor filter has work.
        if (i % 10 == 0)
            printer.setPPDName(i % 20 == 0 ? QStringLiteral("acme-laser1610.ppd")
                                           : QStringLiteral("globex-pagewriter40.ppd"));
        if (!manager.addPrinter(printer)) {
            fprintf(stderr, "bench_listprinters: creating %s failed: %s\n", qPrintable(printer.Name()),
                    qPrintable(manager.lastStatusText()));
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const int count = argc > 1 ? std::max(1, atoi(argv[1])) : 1000;

    QTemporaryDir logs;
    IPPLog::openAll(logs.path());
    CupsSandbox sandbox;
    QString error;
    if (!sandbox.start(&error)) {
        fprintf(stderr, "bench_listprinters: %s\n", qPrintable(error));
        return 1;
    }
    sandbox.use();
    printf("creating %d queues...\n", count);
    fflush(stdout);
    if (!createQueues(count))
        return 1;

    CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;
    QMap<QString, CUPSPrinter> printers;
    int listed = 0;
    int acme = 0;
    const double lpstat = timeIt(runLpstat);
    const double bare = timeIt(bareGetPrinters);
    const double own = timeIt(ownRequestOnly);
    const double all = timeIt([&] {
        const bool ok = manager.listPrinters(printers);
        listed = int(printers.size());
        return ok;
    });
    const double vendor = timeIt([&] {
        const bool ok = manager.listPrinters(printers, QStringLiteral("ACME"));
        acme = int(printers.size());
        return ok;
    });
    // What the records' logs cost: the same listing with the logs closed.
    IPPLog::closeAll();
    const double unlogged = timeIt([&] { return manager.listPrinters(printers); });
    IPPLog::openAll(logs.path());
    if (lpstat <= 0 || bare <= 0 || own <= 0 || all <= 0 || vendor <= 0 || unlogged <= 0)
        return 1;

    printf("%d queues (%d listed, %d of vendor ACME)\n", count, listed, acme);
    printf("%-34s %10s %12s %12s\n", "case", "ms", "vs lpstat", "vs bare");
    const auto row = [&](const char *name, double ms) {
        printf("%-34s %10.2f %12.2f %12.2f\n", name, ms, ms / lpstat, ms / bare);
    };
    row("lpstat -p (baseline)", lpstat);
    row("bare CUPS-Get-Printers (baseline)", bare);
    row("the manager's request, not walked", own);
    row("listPrinters, all", all);
    row("listPrinters, vendor ACME", vendor);
    row("listPrinters, all, logs closed", unlogged);
    return listed == count ? 0 : 1;
}
