#ifndef QUEUEWIZ_NETWORKPRINTER_H
#define QUEUEWIZ_NETWORKPRINTER_H

#include <QString>

// One printer address as the discovery engines saw it, merged over every
// service it offers; printed as one line for the wizard.
struct NetworkPrinter
{
    enum Slp { AnsweredDnsSd, OffersIpp, OffersLpd, OffersSocket };
    enum Snmp { AnsweredSnmp, SnmpSocket, SnmpDeviceId };

    QString address;
    bool slp[4] = { false, false, false, false };
    bool snmp[3] = { false, false, false };
    QString description;

    bool isIpv6() const { return address.contains(QLatin1Char(':')); }

    // "ip: ADDRESS slp: S1,S2,S3,S4 snmp: N1,N2,N3 dsc: "DESCRIPTION""
    QString line() const;

    // The reader takes the description up to the line's last double quote
    // and keeps 95 bytes, so: no double quotes or line breaks inside, and
    // cut on a character boundary.
    static QString cleanDescription(const QString &text);
};

#endif
