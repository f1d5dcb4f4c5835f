#include "urivalidator.h"

#include "softassert.h"

#include <QFileInfo>
#include <QHostAddress>
#include <QStringList>
#include <QStringTokenizer>

namespace {

// The expressions are matched against whole strings only. Unicode properties
// make \w and \d accept letters and digits of every script, as host names
// typed by users may carry them.
struct Patterns
{
    explicit Patterns()
        : hostPort(make(R"rx((?:(?:\w|(?:\w(?:\w|-)*\w))\.)*(?:\w|(?:\w(?:\w|-)*\w))\.?(?::(\d*))?)rx"))
        , ipv4Port(make(R"rx((\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3})(?::(\d*))?)rx"))
        , ipv6(make(R"rx(((?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*|(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*::(?:(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*)?|::(?:(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*)?(?::\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3})?))rx"))
        , ipv6Port(make(R"rx(\[((?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*|(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*::(?:(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*)?|::(?:(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*)?(?::\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3})?)\](?::(\d*))?)rx"))
        , ipv6Parts(make(R"rx(((?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*|(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*::(?:(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*)?|::(?:(?:\d|[a-fA-F]){1,4}(?::(?:\d|[a-fA-F]){1,4})*)?)(?::(\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3}))?)rx"))
        , host(make(R"rx((?:(?:\w|(?:\w(?:\w|-)*\w))\.)*(?:\w|(?:\w(?:\w|-)*\w))\.?)rx"))
        , token(make(R"rx([\d\w_.~-]+)rx"))
        , smb(make(R"rx((?:([^:]+):([^@]*)@)?(?:([^/]+)/)?([^/]+)/(.*))rx"))
    {
    }

    static QRegularExpression make(const char *pattern)
    {
        QRegularExpression rx(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)),
                              QRegularExpression::UseUnicodePropertiesOption);
        // Compile (and JIT) now rather than on the first keystroke.
        rx.optimize();
        return rx;
    }

    const QRegularExpression hostPort;
    const QRegularExpression ipv4Port;
    const QRegularExpression ipv6;
    const QRegularExpression ipv6Port;
    const QRegularExpression ipv6Parts;
    const QRegularExpression host;
    const QRegularExpression token;
    const QRegularExpression smb;
};

const Patterns &patterns()
{
    static const Patterns p;
    return p;
}

const QStringList &prefixTable()
{
    static const QStringList table{
        QString(),
        QStringLiteral("ipp://"),
        QStringLiteral("socket://"),
        QStringLiteral("lpd://"),
        QStringLiteral("smb://"),
        QStringLiteral("file:"),
    };
    return table;
}

bool matches(const QRegularExpression &rx, const QString &text, QRegularExpressionMatch *m = nullptr)
{
    QRegularExpressionMatch match = rx.match(text);
    const bool ok = match.hasMatch();
    if (m)
        *m = match;
    return ok;
}

bool optionalMatch(const QString &text, const QRegularExpression &rx, bool required)
{
    if (!required && text.isEmpty())
        return true;
    return matches(rx, text);
}

bool isIPv4Address(const QString &text)
{
    QHostAddress address;
    return address.setAddress(text) && address.protocol() == QAbstractSocket::IPv4Protocol;
}

bool allowed()
{
    return true;
}

bool refused()
{
    return false;
}

} // namespace

UriValidator::UriValidator(int scheme, bool ipv6Allowed, QObject *parent)
    : UriValidator(scheme, ipv6Allowed ? &allowed : &refused, parent)
{
}

UriValidator::UriValidator(int scheme, bool (*ipv6Allowed)(), QObject *parent)
    : QRegularExpressionValidator(parent)
    , m_scheme(scheme)
    , m_ipv6Allowed(ipv6Allowed)
{
}

QString UriValidator::prefix(int scheme)
{
    const QStringList &table = prefixTable();
    return scheme >= 0 && scheme < table.size() ? table.at(scheme) : QString();
}

QValidator::State UriValidator::validate(QString &input, int &pos) const
{
    const int fromEnd = static_cast<int>(input.size()) - pos;
    const QString head = prefix(m_scheme);
    QString rest = input;
    // Only a complete prefix is dropped; "ip" stays part of the host.
    if (rest.startsWith(head))
        rest.remove(0, head.size());

    bool ok = false;
    // Nothing typed is invalid for every scheme. Judged without a pattern
    // and without the IPv6 decision, the empty entries that the forms set
    // up neither compile the patterns nor wait for the CUPS version.
    const bool typed = !rest.isEmpty();
    switch (m_scheme) {
    case IppScheme:
    case SocketScheme:
        ok = typed && checkHost(rest, ipv6Allowed(), true);
        break;
    case LpdScheme:
        ok = typed && checkLpd(rest, ipv6Allowed());
        break;
    case SmbScheme:
        ok = typed && checkSmb(rest, ipv6Allowed());
        break;
    case FileScheme:
        ok = !QFileInfo(rest).isRelative();
        break;
    default:
        qWarning("Unexpected scheme %d", m_scheme);
        break;
    }

    // Whatever the user deleted or typed, the result carries its scheme. The
    // repairs work at the front (prefix, brackets), so the cursor keeps its
    // place counted from the end.
    input = head + rest;
    pos = qBound(0, static_cast<int>(input.size()) - fromEnd, static_cast<int>(input.size()));
    return ok ? Acceptable : Invalid;
}

bool UriValidator::checkHost(QString &text, bool ipv6Allowed, bool portAllowed)
{
    const Patterns &rx = patterns();
    QRegularExpressionMatch m;
    bool hostOk = true;
    bool bare = false;
    QString port;

    // A dotted quad is also a host name here (\w covers digits), so the IPv4
    // branch sees only what the host name pattern refused.
    if (matches(rx.hostPort, text, &m)) {
        port = m.captured(1);
    } else if (matches(rx.ipv4Port, text, &m)) {
        hostOk = isIPv4Address(m.captured(1));
        port = m.captured(2);
    } else if (ipv6Allowed && ((bare = matches(rx.ipv6, text, &m)) || matches(rx.ipv6Port, text, &m))) {
        const QString address = m.captured(1);
        port = bare ? QString() : m.captured(2);

        QRegularExpressionMatch parts;
        if (!softAssert(matches(rx.ipv6Parts, address, &parts), "exactMatch(rx, RX_IPv6_PARTS_CAP, ip)",
                        "urivalidator", 233)) {
            qWarning("IPv6 matching failed unexpectedly");
            return false;
        }
        // An empty piece between colons is the "::" that stands for the
        // missing groups.
        bool compressed = false;
        int missing = 8;
        for (QStringView group : parts.capturedView(1).tokenize(u':')) {
            if (group.isEmpty())
                compressed = true;
            else
                --missing;
        }
        const QString embedded = parts.captured(2);
        if (!embedded.isEmpty()) {
            // The trailing IPv4 address stands for two groups.
            missing -= 2;
            hostOk = isIPv4Address(embedded);
        }
        const bool countOk = (missing > 0 && compressed) || (missing == 0 && !compressed);
        hostOk = hostOk && countOk;
        // CUPS needs brackets to tell the address from a port.
        if (hostOk && bare)
            text = QLatin1Char('[') + text + QLatin1Char(']');
    } else {
        return false;
    }

    bool portOk = true;
    if (!port.isEmpty()) {
        if (portAllowed) {
            bool isNumber = false;
            const uint value = port.toUInt(&isNumber, 10);
            portOk = isNumber && value < 65536;
        } else {
            portOk = false;
        }
    }
    return hostOk && portOk;
}

bool UriValidator::checkLpd(QString &text, bool ipv6Allowed)
{
    // Exactly host and queue; empty pieces ("host//queue") do not count.
    QStringList pieces;
    for (QStringView piece : QStringView(text).tokenize(u'/', Qt::SkipEmptyParts)) {
        if (pieces.size() == 2)
            return false;
        pieces << piece.toString();
    }
    if (pieces.size() != 2)
        return false;

    QString host = pieces.at(0);
    // The LPD port is fixed; a port in the address is an error.
    bool ok = checkHost(host, ipv6Allowed, false);
    if (ok)
        ok = optionalMatch(pieces.at(1), patterns().token, true);
    if (ok && host != pieces.at(0))
        text = host + QLatin1Char('/') + pieces.at(1);
    return ok;
}

bool UriValidator::checkSmb(QString &text, bool ipv6Allowed)
{
    QRegularExpressionMatch m;
    if (!matches(patterns().smb, text, &m))
        return false;

    const QString user = m.captured(1);
    const QString password = m.captured(2);
    const QString workgroup = m.captured(3);
    const QString server = m.captured(4);
    const QString share = m.captured(5);

    QString host = server;
    const bool ok = optionalMatch(user, patterns().token, false)
                    && optionalMatch(workgroup, patterns().host, false)
                    && checkHost(host, ipv6Allowed, false)
                    && optionalMatch(share, patterns().token, true);
    if (ok && host != server) {
        QString s = host + QLatin1Char('/') + share;
        if (!workgroup.isEmpty())
            s = workgroup + QLatin1Char('/') + s;
        if (!user.isEmpty())
            s = user + QLatin1Char(':') + password + QLatin1Char('@') + s;
        text = s;
    }
    return ok;
}
