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

namespace {

bool sameAddress(const NetworkPrinter &p, const QString &address)
{
    return QHostAddress(p.address).isEqual(QHostAddress(address));
}

} // namespace

NetworkPrinter &NetworkPrinterList::printerFor(const QString &address, const QString &instance)
{
    NetworkPrinter *snmpOnly = nullptr;
    NetworkPrinter *sibling = nullptr;
    for (NetworkPrinter &p : m_printers) {
        if (!sameAddress(p, address))
            continue;
        if (p.instance.compare(instance, Qt::CaseInsensitive) == 0)
            return p;
        sibling = &p;
        if (p.instance.isEmpty())
            snmpOnly = &p;
    }
    // What SNMP said of the address belongs to the first printer DNS-SD
    // names there, and holds for every other one.
    if (snmpOnly && !instance.isEmpty()) {
        snmpOnly->instance = instance;
        snmpOnly->description.clear();
        return *snmpOnly;
    }
    NetworkPrinter p;
    p.address = QHostAddress(address).toString();
    p.instance = instance;
    if (sibling)
        std::copy(sibling->snmp, sibling->snmp + 3, p.snmp);
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
    NetworkPrinter &p = printerFor(service.address, service.name);
    p.slp[NetworkPrinter::AnsweredDnsSd] = true;
    NetworkPrinter::Endpoint endpoint{ service.port, service.resource };
    if (type == QLatin1String("_ipp._tcp") || type == QLatin1String("_ipps._tcp")) {
        p.slp[NetworkPrinter::OffersIpp] = true;
        p.endpoints[type == QLatin1String("_ipp._tcp") ? NetworkPrinter::Ipp : NetworkPrinter::Ipps] = endpoint;
    } else if (type == QLatin1String("_pdl-datastream._tcp")) {
        p.slp[NetworkPrinter::OffersSocket] = true;
        p.endpoints[NetworkPrinter::Socket] = endpoint;
    } else if (type == QLatin1String("_printer._tcp")) {
        p.slp[NetworkPrinter::OffersLpd] = true;
        p.endpoints[NetworkPrinter::Lpd] = endpoint;
    }

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
    bool known = false;
    for (const NetworkPrinter &p : m_printers)
        known = known || sameAddress(p, device.address);
    if (!known)
        printerFor(device.address, QString());
    for (NetworkPrinter &p : m_printers) {
        if (!sameAddress(p, device.address))
            continue;
        p.snmp[NetworkPrinter::AnsweredSnmp] = true;
        if (device.scheme == QLatin1String("socket"))
            p.snmp[NetworkPrinter::SnmpSocket] = true;
        if (!device.deviceId.isEmpty())
            p.snmp[NetworkPrinter::SnmpDeviceId] = true;
        if (p.description.isEmpty())
            p.description = device.makeAndModel;
    }
}

QStringList NetworkPrinterList::lines() const
{
    QList<NetworkPrinter> sorted = m_printers;
    std::stable_sort(sorted.begin(), sorted.end(), [](const NetworkPrinter &a, const NetworkPrinter &b) {
        const QHostAddress x(a.address);
        const QHostAddress y(b.address);
        if (a.isIpv6() != b.isIpv6())
            return !a.isIpv6();
        if (!x.isEqual(y)) {
            if (!a.isIpv6())
                return x.toIPv4Address() < y.toIPv4Address();
            const Q_IPV6ADDR u = x.toIPv6Address();
            const Q_IPV6ADDR v = y.toIPv6Address();
            return std::lexicographical_compare(u.c, u.c + 16, v.c, v.c + 16);
        }
        return a.instance.compare(b.instance, Qt::CaseInsensitive) < 0;
    });
    // A print server's queues often share a model: their instance names
    // (the server makes them unique) tell them apart.
    QList<bool> twin(sorted.size(), false);
    for (qsizetype i = 0; i < sorted.size(); ++i)
        for (qsizetype k = i + 1; k < sorted.size(); ++k)
            if (sorted[i].address == sorted[k].address && sorted[i].description == sorted[k].description)
                twin[i] = twin[k] = true;
    QStringList out;
    for (qsizetype i = 0; i < sorted.size(); ++i) {
        if (twin[i] && !sorted[i].instance.isEmpty())
            sorted[i].description = sorted[i].instance;
    }
    for (const NetworkPrinter &p : sorted)
        out << p.line();
    return out;
}
