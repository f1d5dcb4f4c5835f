#include "networkprinter.h"

#include <QUrl>

namespace {

const int kDescriptionBytes = 95;

QChar flag(bool on)
{
    return on ? QLatin1Char('1') : QLatin1Char('0');
}

QString endpointUri(const QString &scheme, const QString &address, int port, const QString &path)
{
    QUrl url;
    url.setScheme(scheme);
    url.setHost(address);
    url.setPort(port);
    url.setPath(path);
    return url.toString(QUrl::FullyEncoded);
}

// The announced resource, or what today's printers use when none was.
QString resourcePath(const NetworkPrinter::Endpoint &e, const QString &fallback)
{
    QString rp = e.resource;
    while (rp.startsWith(QLatin1Char('/')))
        rp.remove(0, 1);
    return QLatin1Char('/') + (rp.isEmpty() ? fallback : rp);
}

} // namespace

// The URI names the address the printer announced, not its ".local" host
// name nor its DNS-SD instance ("dnssd://NAME._ipp._tcp.local/"). An
// instance would survive a changed address, but the scheduler's dnssd
// backend resolves it to "ipp://HOST.local:PORT/..." and hands that on to
// the ipp backend, which finds HOST.local only through nss-mdns; Debian
// installs that only as a recommendation of avahi-daemon, and without it
// every job stops at "Unable to locate printer". The address is what the
// search has just reached.
QString NetworkPrinter::uri() const
{
    const Endpoint &ipp = endpoints[Ipp];
    const Endpoint &ipps = endpoints[Ipps];
    // Both offered: plain IPP, which needs no certificate to be trusted.
    if (ipp.port > 0)
        return endpointUri(QStringLiteral("ipp"), address, ipp.port, resourcePath(ipp, QStringLiteral("ipp/print")));
    if (ipps.port > 0)
        return endpointUri(QStringLiteral("ipps"), address, ipps.port, resourcePath(ipps, QStringLiteral("ipp/print")));
    if (endpoints[Socket].port > 0)
        return endpointUri(QStringLiteral("socket"), address, endpoints[Socket].port, QString());
    const Endpoint &lpd = endpoints[Lpd];
    if (lpd.port > 0)
        return endpointUri(QStringLiteral("lpd"), address, lpd.port == 515 ? -1 : lpd.port,
                           resourcePath(lpd, QStringLiteral("lp")));
    return QString();
}

QString NetworkPrinter::line() const
{
    // The URI goes last and unquoted (it holds no blank and no double quote),
    // so that a reader that takes the description up to the line's last
    // double quote reads the line as before.
    const QString u = uri();
    return QStringLiteral("ip: %1 slp: %2,%3,%4,%5 snmp: %6,%7,%8 dsc: \"%9\"")
        .arg(address)
        .arg(flag(slp[AnsweredDnsSd]))
        .arg(flag(slp[OffersIpp]))
        .arg(flag(slp[OffersLpd]))
        .arg(flag(slp[OffersSocket]))
        .arg(flag(snmp[AnsweredSnmp]))
        .arg(flag(snmp[SnmpSocket]))
        .arg(flag(snmp[SnmpDeviceId]))
        .arg(cleanDescription(description))
        + (u.isEmpty() ? QString() : QStringLiteral(" uri: ") + u);
}

QString NetworkPrinter::cleanDescription(const QString &text)
{
    QString clean;
    clean.reserve(text.size());
    for (const QChar c : text) {
        if (c == QLatin1Char('"'))
            clean += QLatin1Char('\'');
        else if (c.category() == QChar::Other_Control || c == QChar::LineSeparator
                 || c == QChar::ParagraphSeparator)
            clean += QLatin1Char(' ');
        else
            clean += c;
    }
    clean = clean.simplified();

    while (clean.toUtf8().size() > kDescriptionBytes) {
        clean.chop(1);
        if (!clean.isEmpty() && clean.back().isHighSurrogate())
            clean.chop(1);
    }
    return clean;
}
