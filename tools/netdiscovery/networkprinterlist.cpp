#include "networkprinterlist.h"

#include "dnssdservice.h"
#include "snmpdevice.h"

#include <QHostAddress>

#include <algorithm>

bool NetworkPrinterList::isUsableAddress(const QString &address)
{
    QHostAddress a;
    if (!a.setAddress(address))
        return false;
    return !a.isLinkLocal() && !a.isNull() && address.size() <= 39;
}

NetworkPrinter &NetworkPrinterList::printerFor(const QString &address)
{
    for (NetworkPrinter &p : m_printers)
        if (QHostAddress(p.address).isEqual(QHostAddress(address)))
            return p;
    NetworkPrinter p;
    p.address = QHostAddress(address).toString();
    m_printers.append(p);
    return m_printers.last();
}

void NetworkPrinterList::add(const DnsSdService &service)
{
    // Port 0 only holds the name: a printer without LPD announces
    // "_printer._tcp" so. Such a record offers no service at all.
    if (service.port <= 0 || !isUsableAddress(service.address))
        return;
    const QString type = service.type.toLower();
    NetworkPrinter &p = printerFor(service.address);
    p.slp[NetworkPrinter::AnsweredDnsSd] = true;
    if (type == QLatin1String("_ipp._tcp") || type == QLatin1String("_ipps._tcp"))
        p.slp[NetworkPrinter::OffersIpp] = true;
    else if (type == QLatin1String("_pdl-datastream._tcp"))
        p.slp[NetworkPrinter::OffersSocket] = true;
    else if (type == QLatin1String("_printer._tcp"))
        p.slp[NetworkPrinter::OffersLpd] = true;

    // The product name is the better description; the service name is a
    // fallback that another service of the same printer may improve on.
    if (!service.productName.isEmpty())
        p.description = service.productName;
    else if (p.description.isEmpty())
        p.description = service.name;
}

void NetworkPrinterList::add(const SnmpDevice &device)
{
    if (!isUsableAddress(device.address))
        return;
    NetworkPrinter &p = printerFor(device.address);
    p.snmp[NetworkPrinter::AnsweredSnmp] = true;
    if (device.scheme == QLatin1String("socket"))
        p.snmp[NetworkPrinter::SnmpSocket] = true;
    if (!device.deviceId.isEmpty())
        p.snmp[NetworkPrinter::SnmpDeviceId] = true;
    if (p.description.isEmpty())
        p.description = device.makeAndModel;
}

QStringList NetworkPrinterList::lines() const
{
    QList<NetworkPrinter> sorted = m_printers;
    std::stable_sort(sorted.begin(), sorted.end(), [](const NetworkPrinter &a, const NetworkPrinter &b) {
        const QHostAddress x(a.address);
        const QHostAddress y(b.address);
        if (a.isIpv6() != b.isIpv6())
            return !a.isIpv6();
        if (!a.isIpv6())
            return x.toIPv4Address() < y.toIPv4Address();
        const Q_IPV6ADDR u = x.toIPv6Address();
        const Q_IPV6ADDR v = y.toIPv6Address();
        return std::lexicographical_compare(u.c, u.c + 16, v.c, v.c + 16);
    });
    QStringList out;
    for (const NetworkPrinter &p : sorted)
        out << p.line();
    return out;
}
