// netdiscovery: lists the printers on the local network for the wizard, one
// line per printer (a DNS-SD service instance, or an address only SNMP knows):
//   ip: ADDRESS slp: S1,S2,S3,S4 snmp: N1,N2,N3 dsc: "DESCRIPTION" uri: URI
// S1 answered by DNS-SD, S2 IPP, S3 LPD, S4 raw socket offered;
// N1 answered by SNMP, N2 SNMP names a raw socket port, N3 a device ID known;
// URI is the device URI the printer announced (left out without one).
// An engine that could not be used is named on a comment line
// "# unavailable: REASON", and on standard error.

#include "discoveryrun.h"

#include <QCoreApplication>

#include <cstdio>
#include <getopt.h>

namespace {

void usage(FILE *to)
{
    fputs("usage: netdiscovery [-c COMMUNITY] [-t SECONDS]\n"
          "  -c COMMUNITY  SNMP community (default: the backend's own, public)\n"
          "  -t SECONDS    stop looking after this time (default 5)\n",
          to);
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);

    QString community;
    int seconds = 5;
    int c;
    while ((c = getopt(argc, argv, "c:t:h")) != -1) {
        switch (c) {
        case 'c':
            community = QString::fromLocal8Bit(optarg);
            break;
        case 't': {
            bool ok = false;
            seconds = QString::fromLocal8Bit(optarg).toInt(&ok);
            if (!ok || seconds < 1 || seconds > 300) {
                fprintf(stderr, "netdiscovery: -t takes 1 to 300 seconds\n");
                return 2;
            }
            break;
        }
        case 'h':
            usage(stdout);
            return 0;
        default:
            usage(stderr);
            return 2;
        }
    }

    DiscoveryRun run(community, seconds * 1000);
    run.exec();

    printf("# netdiscovery: %d printer(s)\n", run.printers().count());
    for (const QString &line : run.printers().lines())
        printf("%s\n", line.toUtf8().constData());
    for (const QString &why : run.unavailable()) {
        printf("# unavailable: %s\n", why.simplified().toUtf8().constData());
        fprintf(stderr, "netdiscovery: %s\n", why.toLocal8Bit().constData());
    }
    fflush(stdout);
    return 0;
}
