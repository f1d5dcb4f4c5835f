// A line of the discovery program's output as the wizard reads it: the
// record keeps its limits, and a URI comes exactly with a scheme; an
// announced URI is one word of a printer's scheme.
#include "cupsversionprobe.h"
#include "fuzztarget.h"
#include "networkdevicelist.h"

#include <QRegularExpression>

#include <string>

QW_FUZZ_TARGET
{
    if (size < 1)
        return 0;
    // The reader hands over at most LineMax characters, without the line end.
    std::string line(reinterpret_cast<const char *>(data + 1), size - 1);
    line = line.substr(0, NetworkDeviceList::LineMax);
    line = line.substr(0, line.find_first_of("\r\n"));

    NetworkDeviceList list;
    const int levels[] = { -1, 101, 102, 300 };
    const int cupsVersion = levels[data[0] % 4];
    if (!list.addLine(line.c_str(), cupsVersion))
        return 0;
    const NetworkDeviceList::Device &d = list.at(0);
    // The limits are in bytes of the line; every byte makes at most one
    // character (a byte that is not text becomes a replacement character).
    require(d.address.size() <= NetworkDeviceList::AddressMax
            && d.description.size() <= NetworkDeviceList::DescriptionMax);
    require(!d.isIPv6() || CupsVersionProbe::takesIpv6(cupsVersion));
    static const QRegularExpression announced(QStringLiteral("^(ipps?|socket|lpd|dnssd)://[^\\s\"]+$"));
    require(d.uri.isEmpty() || (announced.match(d.uri).hasMatch() && d.deviceUri() == d.uri));
    const QString uri = d.deviceUri();
    require(uri.isEmpty() == d.uriScheme().isNull()
            && (uri.isEmpty() || uri.startsWith(d.uriScheme() + QLatin1String("://"))));
    (void)d.entryText();
    return 0;
}
