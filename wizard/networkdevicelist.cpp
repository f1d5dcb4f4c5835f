#include "networkdevicelist.h"

#include "cupsversionprobe.h"
#include "mfp.h"
#include "waitcursor.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QRegularExpression>
#include <QUrl>

#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <sys/wait.h>

namespace {

struct PipeCloser
{
    void operator()(FILE *pipe) const { pclose(pipe); }
};
using PipePtr = std::unique_ptr<FILE, PipeCloser>;

constexpr char DescriptionMarker[] = "dsc: \"";
constexpr char UriMarker[] = " uri: ";
constexpr char UnavailableMarker[] = "# unavailable: ";
constexpr size_t CommunityMax = 512;

// The package root and the community come from files a user may edit:
// quoted, blanks and shell characters in them stay what they are.
QByteArray shellQuoted(const QByteArray &text)
{
    QByteArray quoted = text;
    quoted.replace('\'', "'\\''");
    return '\'' + quoted + '\'';
}

// At most max characters, a character outside the basic plane whole or not at all.
QString cut(const QString &text, int max)
{
    if (text.size() <= max)
        return text;
    return text.left(text.at(max - 1).isHighSurrogate() ? max - 1 : max);
}

QString bracketed(const QString &address)
{
    // A zone ("fe80::1%eth0") is written "%25" inside a URI.
    QString host = address;
    host.replace(QLatin1Char('%'), QLatin1String("%25"));
    return QLatin1Char('[') + host + QLatin1Char(']');
}

// The announced URI at the end of a line, after the description's closing
// quote: a printer's own scheme and host, no blank, no quote; else empty.
QString announcedUri(const char *line)
{
    const char *quote = strrchr(line, '"');
    const char *marker = nullptr;
    for (const char *m = strstr(quote ? quote : line, UriMarker); m; m = strstr(m + 1, UriMarker))
        marker = m;
    if (!marker)
        return QString();
    const QString text = QString::fromUtf8(marker + strlen(UriMarker));
    const QUrl url(text, QUrl::StrictMode);
    static const QStringList schemes{QStringLiteral("ipp"), QStringLiteral("ipps"), QStringLiteral("socket"),
                                     QStringLiteral("lpd"), QStringLiteral("dnssd")};
    if (text.isEmpty() || text.contains(QLatin1Char('"')) || text.contains(QRegularExpression(QStringLiteral("\\s")))
        || !url.isValid() || url.host().isEmpty() || !schemes.contains(url.scheme())
        || !text.startsWith(url.scheme() + QLatin1String("://")))
        return QString();
    return text;
}

} // namespace

bool NetworkDeviceList::Device::isLoopback() const
{
    return QHostAddress(address).isLoopback();
}

QString NetworkDeviceList::Device::protocolText() const
{
    if (!slp[SlpAnswered])
        return QStringLiteral("IPP");
    QString text;
    if (slp[SlpIpp])
        text += QLatin1String("IPP,");
    if (slp[SlpSocket])
        text += QLatin1String("socket,");
    if (slp[SlpLpd])
        text += QLatin1String("LPD,");
    text.chop(1);
    return text;
}

QString NetworkDeviceList::Device::uriScheme() const
{
    if (!uri.isEmpty())
        return uri.section(QLatin1Char(':'), 0, 0);
    if (isIPv6())
        return QStringLiteral("socket");
    if (!slp[SlpAnswered] || slp[SlpIpp])
        return QStringLiteral("ipp");
    if (slp[SlpSocket])
        return QStringLiteral("socket");
    if (slp[SlpLpd])
        return QStringLiteral("lpd");
    return QString();
}

QString NetworkDeviceList::Device::deviceUri() const
{
    if (!uri.isEmpty())
        return uri;
    const QString scheme = uriScheme();
    const QString host = isIPv6() ? bracketed(address) : address;
    if (scheme == QLatin1String("ipp"))
        return QStringLiteral("ipp://%1/ipp/print").arg(host);
    if (scheme == QLatin1String("socket"))
        return QStringLiteral("socket://%1:9100").arg(host);
    if (scheme == QLatin1String("lpd"))
        return QStringLiteral("lpd://%1/lp").arg(host);
    return QString();
}

QString NetworkDeviceList::Device::entryText() const
{
    // The stand-in for a missing description is shown in the user's language.
    const QString shown = description == QLatin1String("UNKNOWN")
        ? QCoreApplication::translate("AddPrinterWizard", "UNKNOWN")
        : description;
    // ipp-usb serves a USB printer at the loopback address: its model is
    // what the user knows it by.
    if (isLoopback())
        return QCoreApplication::translate("AddPrinterWizard", "%1 (connected by USB)")
            .arg(shown.isEmpty() ? QCoreApplication::translate("AddPrinterWizard", "UNKNOWN") : shown);
    return QStringLiteral("%1 (%2)  %3").arg(address, protocolText(), shown);
}

void NetworkDeviceList::clear()
{
    m_devices.clear();
    m_outcome = NothingFound;
    m_problem.clear();
}

QByteArray NetworkDeviceList::command(const char *rootDir, const char *shareDir)
{
    QByteArray command = shellQuoted(QByteArray(rootDir) + "/bin/netdiscovery");

    char config[4096 + sizeof "/OEM.ini"];
    const int n = snprintf(config, sizeof config, "%s/%s", shareDir, "OEM.ini");
    char community[CommunityMax] = {};
    if (n > 0 && size_t(n) < sizeof config && textfile_process(config, "SNMP_COMMUNITY", community, sizeof community))
        command += " -c " + shellQuoted(community);

    return command.size() <= CommandMax ? command : QByteArray();
}

bool NetworkDeviceList::discover(const char *rootDir, const char *shareDir, int cupsVersion)
{
    WaitCursor wait;
    clear();

    const QByteArray program = QByteArray(rootDir) + "/bin/netdiscovery";
    if (!file_exists(program.constData())) {
        m_outcome = ProgramMissing;
        m_problem = QString::fromLocal8Bit(program);
        return false;
    }
    const QByteArray cmd = command(rootDir, shareDir);
    if (cmd.isEmpty()) {
        qWarning("The discovery command is too long: %s", program.constData());
        m_outcome = ProgramFailed;
        return false;
    }
    PipePtr pipe(popen(cmd.constData(), "r"));
    if (!pipe) {
        m_outcome = ProgramFailed;
        m_problem = QString::fromLocal8Bit(strerror(errno));
        return false;
    }

    char line[LineMax + 2];  // the line, its line end, the terminator
    while (fgets(line, sizeof line, pipe.get())) {
        const size_t length = strlen(line);
        if (length > 0 && line[length - 1] != '\n' && length == sizeof line - 1) {
            // Too long: the first LineMax characters stand for the line.
            line[LineMax] = '\0';
            int c;
            while ((c = fgetc(pipe.get())) != EOF && c != '\n') {
            }
        }
        chomp(line);
        if (strncmp(line, UnavailableMarker, strlen(UnavailableMarker)) == 0)
            m_problem += (m_problem.isEmpty() ? "" : "\n") + QString::fromUtf8(line + strlen(UnavailableMarker));
        else
            addLine(line, cupsVersion);
    }
    const int status = pclose(pipe.release());
    if (!isEmpty())
        m_outcome = Found;
    else if (status != 0 || !m_problem.isEmpty())
        m_outcome = ProgramFailed;
    if (m_problem.isEmpty() && status != 0)
        m_problem = WIFEXITED(status) ? QStringLiteral("exit status %1").arg(WEXITSTATUS(status))
                                      : QStringLiteral("ended abnormally");
    return !isEmpty();
}

bool NetworkDeviceList::addLine(const char *line, int cupsVersion)
{
    const char *first = line;
    while (*first && isspace(static_cast<unsigned char>(*first)))
        ++first;
    if (*first == '#')
        return false;

    static_assert(NetworkDeviceList::LineMax == 1022, "the address field's width below");
    char address[LineMax + 1];
    int slp[4];
    int snmp[3];
    if (sscanf(line, "ip: %1022s slp: %d,%d,%d,%d snmp: %d,%d,%d", address, &slp[0], &slp[1], &slp[2], &slp[3],
               &snmp[0], &snmp[1], &snmp[2])
        != 8)
        return false;

    Device device;
    device.address = cut(QString::fromUtf8(address), AddressMax);
    // Older schedulers take no IPv6 address in a device URI.
    if (!CupsVersionProbe::takesIpv6(cupsVersion) && device.isIPv6())
        return false;
    for (int i = 0; i < 4; ++i)
        device.slp[i] = slp[i] != 0;
    for (int i = 0; i < 3; ++i)
        device.snmp[i] = snmp[i] != 0;

    if (const char *marker = strstr(line, DescriptionMarker)) {
        const char *begin = marker + strlen(DescriptionMarker);
        const char *end = strrchr(line, '"');
        if (end > begin)
            device.description = cut(QString::fromUtf8(begin, end - begin), DescriptionMax);
        if (device.description.isEmpty())
            device.description = QStringLiteral("UNKNOWN");
    }
    device.uri = announcedUri(line);
    m_devices.append(device);
    return true;
}
