// The parsers of the discovery engines' output, and the description clean-up
// whose result must fit the wizard's reader: no double quote, at most 95
// bytes of UTF-8.
#include "fuzztarget.h"
#include "dnssdservice.h"
#include "networkprinter.h"
#include "networkprinterlist.h"
#include "snmpdevice.h"

QW_FUZZ_TARGET
{
    const QString line = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<int>(size));
    NetworkPrinterList list;
    DnsSdService service;
    if (DnsSdService::parse(line, &service))
        list.add(service);
    SnmpDevice device;
    if (SnmpDevice::parse(line, &device))
        list.add(device);
    for (const QString &out : list.lines())
        require(out.count(QLatin1Char('"')) == 2 && !out.contains(QLatin1Char('\n')));

    const QString clean = NetworkPrinter::cleanDescription(line);
    require(!clean.contains(QLatin1Char('"')) && clean.toUtf8().size() <= 95);
    return 0;
}
