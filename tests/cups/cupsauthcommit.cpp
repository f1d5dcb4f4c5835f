// Makes a queue as the wizard's commit step does, as whoever runs it (the
// test runs it as an unprivileged account):
//     tst_cupsauth_commit QUEUE PPD-NAME PAPER
// Prints "password asked" if the scheduler wanted a password (none is
// given), then "created", "paper" and "default" with 1 or 0.
#include "cupsmanager.h"
#include "ipprequest.h"
#include "printercreator.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4)
        return 2;
    IPPRequest::setPasswordAsker([](const QString &, QString *, QString *) {
        std::puts("password asked");
        return false;
    });
    CUPSManager &cups = CUPSManager::m_CUPSManagerInstance;
    const PrinterCreator creator(cups);
    CUPSPrinter printer(args[1]);
    printer.setDeviceURI(QStringLiteral("socket://127.0.0.1:9"));
    printer.setState(IPP_PSTATE_IDLE);
    printer.setAcceptingJobs(true);
    printer.setPPDName(args[2]);
    const bool created = creator.create(printer);
    std::printf("created %d %s\n", created, qPrintable(cups.lastStatusText()));
    if (!created)
        return 1;
    std::printf("paper %d\n", creator.applyPaperSize(args[1], args[3].toLatin1().constData()));
    std::printf("default %d\n", creator.makeDefault(args[1]));
    return 0;
}
