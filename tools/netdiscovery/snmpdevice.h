#ifndef QUEUEWIZ_SNMPDEVICE_H
#define QUEUEWIZ_SNMPDEVICE_H

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
};

#endif
