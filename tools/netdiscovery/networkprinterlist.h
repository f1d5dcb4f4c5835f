#ifndef QUEUEWIZ_NETWORKPRINTERLIST_H
#define QUEUEWIZ_NETWORKPRINTERLIST_H

#include "networkprinter.h"

#include <QList>
#include <QStringList>

struct DnsSdService;
struct SnmpDevice;

// The printers found so far: one per DNS-SD service instance and address
// (a print server's queues are printers of their own), every service of an
// instance merged into it; SNMP answers join what DNS-SD found at their
// address, or stand alone. Lines come out IPv4 first, in numeric order.
class NetworkPrinterList
{
public:
    void add(const DnsSdService &service);
    void add(const SnmpDevice &device);

    int count() const { return static_cast<int>(m_printers.size()); }
    QStringList lines() const;

    // Link-local IPv6 needs a zone, which a device URI can't carry well.
    static bool isUsableAddress(const QString &address);

private:
    NetworkPrinter &printerFor(const QString &address, const QString &instance);

    QList<NetworkPrinter> m_printers;
};

#endif
