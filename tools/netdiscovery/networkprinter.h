#ifndef QUEUEWIZ_NETWORKPRINTER_H
#define QUEUEWIZ_NETWORKPRINTER_H

#include <QString>

// One printer as the discovery engines saw it: a DNS-SD service instance at
// one address, merged over every service it offers (IPP, IPPS, raw socket,
// LPD), or an address that only SNMP answered for. Printed as one line for
// the wizard.
struct NetworkPrinter
{
    enum Slp { AnsweredDnsSd, OffersIpp, OffersLpd, OffersSocket };
    enum Snmp { AnsweredSnmp, SnmpSocket, SnmpDeviceId };
    enum Service { Ipp, Ipps, Socket, Lpd, ServiceCount };

    // Where a service was announced; port 0 when it was not.
    struct Endpoint
    {
        int port = 0;
        QString resource;  // TXT "rp": the IPP resource or the LPD queue
    };

    QString address;
    QString instance;  // the DNS-SD instance name; empty for SNMP alone
    bool slp[4] = { false, false, false, false };
    bool snmp[3] = { false, false, false };
    Endpoint endpoints[ServiceCount];
    QString description;

    bool isIpv6() const { return address.contains(QLatin1Char(':')); }

    // The device URI of the announced service, preferred in the order IPP,
    // socket, LPD; empty for a printer that announced none (SNMP alone).
    QString uri() const;

    // "ip: ADDRESS slp: S1,S2,S3,S4 snmp: N1,N2,N3 dsc: "DESCRIPTION"",
    // then " uri: URI" when there is one.
    QString line() const;

    // The reader takes the description up to the line's last double quote
    // and keeps 95 bytes, so: no double quotes or line breaks inside, and
    // cut on a character boundary.
    static QString cleanDescription(const QString &text);
};

#endif
