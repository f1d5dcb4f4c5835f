#include "snmpdevice.h"

#include <QStringList>
#include <QUrl>

namespace {

// Splits at blanks, keeping "quoted fields" (with \" inside) whole.
QStringList fields(const QString &line)
{
    QStringList out;
    int i = 0;
    while (i < line.size()) {
        while (i < line.size() && line[i].isSpace())
            ++i;
        if (i >= line.size())
            break;
        QString f;
        if (line[i] == QLatin1Char('"')) {
            for (++i; i < line.size() && line[i] != QLatin1Char('"'); ++i) {
                if (line[i] == QLatin1Char('\\') && i + 1 < line.size())
                    ++i;
                f += line[i];
            }
            ++i;
        } else {
            for (; i < line.size() && !line[i].isSpace(); ++i)
                f += line[i];
        }
        out << f;
    }
    return out;
}

} // namespace

bool SnmpDevice::parse(const QString &line, SnmpDevice *out)
{
    const QStringList f = fields(line);
    if (f.size() < 2 || f[0] != QLatin1String("network"))
        return false;
    const QUrl uri(f[1]);
    if (!uri.isValid() || uri.host().isEmpty())
        return false;
    SnmpDevice d;
    d.scheme = uri.scheme();
    d.address = uri.host();
    d.makeAndModel = f.value(2);
    d.deviceId = f.value(4);
    *out = d;
    return true;
}

QString SnmpDevice::backendProgram()
{
    const QString program = qEnvironmentVariable("NETDISCOVERY_SNMP_BACKEND");
    if (!program.isEmpty())
        return program;
    return qEnvironmentVariable("CUPS_SERVERBIN", QStringLiteral("/usr/lib/cups")) + QStringLiteral("/backend/snmp");
}

QByteArray SnmpDevice::config(const QString &address, const QString &community, int timeoutMs)
{
    QByteArray text = "Address " + address.toUtf8() + "\n";
    if (!community.isEmpty())
        text += "Community " + community.toUtf8() + "\n";
    return text + "MaxRunTime " + QByteArray::number(qMax(1, timeoutMs / 1000 - 1)) + "\n";
}
