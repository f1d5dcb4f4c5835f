#ifndef QUEUEWIZ_NETWORKDEVICELIST_H
#define QUEUEWIZ_NETWORKDEVICELIST_H

#include <QList>
#include <QString>

// The printers that the package's discovery program "bin/netdiscovery"
// finds on the network, in the order it prints them, one line each:
//   ip: ADDRESS slp: S1,S2,S3,S4 snmp: N1,N2,N3 dsc: "DESCRIPTION"
// Lines beginning with "#" and lines that don't fit are passed over.
class NetworkDeviceList
{
public:
    using size_type = qsizetype;

    static constexpr int AddressMax = 39;
    static constexpr int DescriptionMax = 95;
    // Longer output lines are cut here; their rest is not a line of its own.
    static constexpr int LineMax = 1022;
    static constexpr int CommandMax = 4095;

    struct Device
    {
        enum Slp { SlpAnswered, SlpIpp, SlpLpd, SlpSocket };

        QString address;  // an address holding ":" is IPv6
        bool slp[4] = {};
        bool snmp[3] = {};
        QString description;

        bool isIPv6() const { return address.contains(QLatin1Char(':')); }
        // The services offered, "IPP,socket,LPD" or part of it; "IPP" for a
        // printer that did not answer the service query.
        QString protocolText() const;
        // "ipp", "socket" or "lpd", preferred in that order; null when the
        // printer offers none of them.
        QString uriScheme() const;
        // The queue's device URI for uriScheme(): "ipp://ADDRESS/ipp/print",
        // "socket://ADDRESS:9100" or "lpd://ADDRESS/lp", an IPv6 address in
        // brackets; empty without scheme.
        QString deviceUri() const;
        // The entry of the network printer list: "ADDRESS (PROTOCOLS)  DESCRIPTION".
        QString entryText() const;
    };

    // Runs rootDir/bin/netdiscovery, with "-c COMMUNITY" when
    // shareDir/OEM.ini sets "SNMP_COMMUNITY", and reads what it prints until
    // it exits. IPv6 printers are left out when cupsVersion is below 2.
    // True when at least one printer was read.
    bool discover(const char *rootDir, const char *shareDir, int cupsVersion);
    // Appends the printer of one output line (without its line end); false
    // when the line holds none.
    bool addLine(const char *line, int cupsVersion);

    size_type count() const { return m_devices.count(); }
    bool isEmpty() const { return m_devices.isEmpty(); }
    const Device &at(size_type i) const { return m_devices.at(i); }
    void clear() { m_devices.clear(); }

    // The command that runs the program, quoted for the shell; empty when
    // it would be longer than CommandMax.
    static QByteArray command(const char *rootDir, const char *shareDir);

private:
    QList<Device> m_devices;
};

#endif
