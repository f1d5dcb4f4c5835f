#ifndef QUEUEWIZ_SNMPDEVICE_H
#define QUEUEWIZ_SNMPDEVICE_H

#include <QByteArray>
#include <QString>

// A printer the scheduler's snmp backend reported, from one line of its
// device listing: CLASS URI "MAKE-AND-MODEL" "INFO" "DEVICE-ID" "LOCATION".
struct SnmpDevice
{
    QString scheme;
    QString address;
    QString makeAndModel;
    QString deviceId;

    static bool parse(const QString &line, SnmpDevice *out);

    // The scheduler's snmp backend: NETDISCOVERY_SNMP_BACKEND when set
    // ("none" asks no printer), else CUPS_SERVERBIN/backend/snmp.
    static QString backendProgram();
    // The backend's settings, which it reads from CUPS_SERVERROOT/snmp.conf:
    // whom to ask, with which community (none: the backend's own), and done
    // in time.
    static QByteArray config(const QString &address, const QString &community, int timeoutMs);
};

#endif
