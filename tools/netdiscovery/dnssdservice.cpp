#include "dnssdservice.h"

#include <QStringList>

QString DnsSdService::unescape(const QString &text)
{
    QByteArray out;
    const QByteArray in = text.toUtf8();
    for (int i = 0; i < in.size(); ++i) {
        if (in[i] != '\\' || i + 1 >= in.size()) {
            out += in[i];
            continue;
        }
        const auto isDigit = [&](int k) { return k < in.size() && in[k] >= '0' && in[k] <= '9'; };
        if (isDigit(i + 1) && isDigit(i + 2) && isDigit(i + 3)) {
            const int code = (in[i + 1] - '0') * 100 + (in[i + 2] - '0') * 10 + (in[i + 3] - '0');
            if (code < 256) {
                out += static_cast<char>(code);
                i += 3;
                continue;
            }
        }
        out += in[++i];
    }
    return QString::fromUtf8(out);
}

namespace {

// The TXT field is a run of quoted strings: "k=v" "k2=v2".
QString txtValue(const QString &txt, const QString &key)
{
    const QString wanted = key + QLatin1Char('=');
    int i = 0;
    while (i < txt.size()) {
        const int open = txt.indexOf(QLatin1Char('"'), i);
        if (open < 0)
            break;
        QString entry;
        int k = open + 1;
        for (; k < txt.size() && txt[k] != QLatin1Char('"'); ++k) {
            if (txt[k] == QLatin1Char('\\') && k + 1 < txt.size())
                entry += txt[k++];
            entry += txt[k];
        }
        entry = DnsSdService::unescape(entry);
        if (entry.startsWith(wanted, Qt::CaseInsensitive))
            return entry.mid(wanted.size());
        i = k + 1;
    }
    return QString();
}

} // namespace

bool DnsSdService::parse(const QString &line, DnsSdService *out)
{
    if (!line.startsWith(QLatin1String("=;")))
        return false;
    const QStringList f = line.split(QLatin1Char(';'));
    if (f.size() < 10)
        return false;
    DnsSdService s;
    s.name = unescape(f[3]);
    s.type = f[4];
    s.address = f[7];
    bool ok = false;
    s.port = f[8].toInt(&ok);
    if (s.address.isEmpty() || !ok)
        return false;
    // The TXT strings may hold ';' themselves.
    const QString txt = f.mid(9).join(QLatin1Char(';'));
    s.productName = txtValue(txt, QStringLiteral("ty"));
    s.resource = txtValue(txt, QStringLiteral("rp"));
    *out = s;
    return true;
}
