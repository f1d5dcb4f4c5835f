// Makes a queue as the wizard's commit step does, as whoever runs it (the
// test runs it as an unprivileged account):
//     tst_cupsauth_commit QUEUE PPD-NAME PAPER
// Prints "password asked" for each question for a password, then "created"
// (with the reason), "paper" and "default" with 1 or 0.
#include "cupsmanager.h"
#include "ipprequest.h"
#include "printercreator.h"

#include <QCoreApplication>

#include <cstdio>
#include <utility>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4)
        return 2;
    // The first question gets a wrong password for root, the next a cancel.
    IPPRequest::setPasswordAsker([](const QString &, QString *user, QString *password) {
        static bool answered = false;
        std::puts("password asked");
        *user = QStringLiteral("root");
        *password = QStringLiteral("wrong");
        return !std::exchange(answered, true);
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
