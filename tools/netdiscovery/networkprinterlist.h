#ifndef QUEUEWIZ_NETWORKPRINTERLIST_H
#define QUEUEWIZ_NETWORKPRINTERLIST_H

#include "networkprinter.h"

#include <QList>
#include <QStringList>

struct DnsSdService;
struct SnmpDevice;

// The printers found so far, one per address, every engine's answer merged
// into it. Lines come out IPv4 first, in numeric order.
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
    NetworkPrinter &printerFor(const QString &address);

    QList<NetworkPrinter> m_printers;
};

#endif
