#include "networkprinter.h"

namespace {

const int kDescriptionBytes = 95;

QChar flag(bool on)
{
    return on ? QLatin1Char('1') : QLatin1Char('0');
}

} // namespace

QString NetworkPrinter::line() const
{
    return QStringLiteral("ip: %1 slp: %2,%3,%4,%5 snmp: %6,%7,%8 dsc: \"%9\"")
        .arg(address)
        .arg(flag(slp[AnsweredDnsSd]))
        .arg(flag(slp[OffersIpp]))
        .arg(flag(slp[OffersLpd]))
        .arg(flag(slp[OffersSocket]))
        .arg(flag(snmp[AnsweredSnmp]))
        .arg(flag(snmp[SnmpSocket]))
        .arg(flag(snmp[SnmpDeviceId]))
        .arg(cleanDescription(description));
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
