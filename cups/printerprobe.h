#ifndef QUEUEWIZ_PRINTERPROBE_H
#define QUEUEWIZ_PRINTERPROBE_H

#include <QString>

// Asks a network printer itself, not the scheduler, what it is: over IPP
// (Get-Printer-Attributes) for ipp and ipps, through the scheduler's snmp
// backend for that one host for socket and lpd.
class PrinterProbe
{
public:
    struct Answer
    {
        bool answered = false;
        QString makeAndModel;
        QString deviceId;
        // The URI that answered: for IPP with the resource that answered.
        QString uri;
    };

    // Whether uri is of a scheme the printer can be asked about.
    static bool canAsk(const QString &uri);
    // Blocks for at most about timeoutMs per address tried.
    static Answer ask(const QString &uri, int timeoutMs);

private:
    static Answer askIpp(const QString &uri, int timeoutMs);
    static Answer askSnmp(const QString &uri, int timeoutMs);
};

#endif
