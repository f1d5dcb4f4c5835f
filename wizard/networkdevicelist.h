#ifndef QUEUEWIZ_NETWORKDEVICELIST_H
#define QUEUEWIZ_NETWORKDEVICELIST_H

#include <QList>
#include <QString>

// The printers that the package's discovery program "bin/netdiscovery"
// finds on the network, in the order it prints them, one line each:
//   ip: ADDRESS slp: S1,S2,S3,S4 snmp: N1,N2,N3 dsc: "DESCRIPTION" uri: URI
// The URI the printer announced may end the line; a line without it gets
// the URI its flags and address give. Lines beginning with "#" and lines
// that don't fit are passed over, but for "# unavailable: REASON", a part of
// the search that could not run.
class NetworkDeviceList
{
public:
    using size_type = qsizetype;

    enum Outcome { Found, NothingFound, ProgramMissing, ProgramFailed };

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
        QString uri;  // as announced; empty when the line had none

        bool isIPv6() const { return address.contains(QLatin1Char(':')); }
        // At this computer's own address: a USB printer served over IPP.
        bool isLoopback() const;
        // The services offered, "IPP,socket,LPD" or part of it; "IPP" for a
        // printer that did not answer the service query.
        QString protocolText() const;
        // The announced URI's scheme; else "ipp", "socket" or "lpd",
        // preferred in that order; null when the printer offers none of them.
        QString uriScheme() const;
        // The announced URI; else the one for uriScheme():
        // "ipp://ADDRESS/ipp/print", "socket://ADDRESS:9100" or
        // "lpd://ADDRESS/lp", an IPv6 address in brackets; empty without scheme.
        QString deviceUri() const;
        // The entry of the network printer list: "ADDRESS (PROTOCOLS)  DESCRIPTION";
        // a USB printer on this computer by its model.
        QString entryText() const;
    };

    // Runs rootDir/bin/netdiscovery, with "-c COMMUNITY" when
    // shareDir/OEM.ini sets "SNMP_COMMUNITY", and reads what it prints until
    // it exits. IPv6 printers are left out when the scheduler's version
    // level (CupsVersionProbe) is below 1.2. True when at least one printer
    // was read; outcome() and problem() say more.
    bool discover(const char *rootDir, const char *shareDir, int cupsVersion);
    // Appends the printer of one output line (without its line end); false
    // when the line holds none.
    bool addLine(const char *line, int cupsVersion);

    Outcome outcome() const { return m_outcome; }
    // Why the search failed or may have missed printers, for the user.
    const QString &problem() const { return m_problem; }

    size_type count() const { return m_devices.count(); }
    bool isEmpty() const { return m_devices.isEmpty(); }
    const Device &at(size_type i) const { return m_devices.at(i); }
    void clear();

    // The command that runs the program, quoted for the shell; empty when
    // it would be longer than CommandMax.
    static QByteArray command(const char *rootDir, const char *shareDir);

private:
    QList<Device> m_devices;
    Outcome m_outcome = NothingFound;
    QString m_problem;
};

#endif
