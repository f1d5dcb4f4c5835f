#include "samedevice.h"

#include <QStringList>
#include <QUrl>

#include <arpa/inet.h>

#include <algorithm>

namespace {

bool isNetwork(const QUrl &url)
{
    static const QStringList schemes = { QStringLiteral("ipp"),  QStringLiteral("ipps"),   QStringLiteral("http"),
                                         QStringLiteral("https"), QStringLiteral("socket"), QStringLiteral("lpd") };
    return schemes.contains(url.scheme()) && !url.host().isEmpty();
}

bool sameHost(QString a, QString b)
{
    // "printer.local." and "PRINTER.local" name the same host; so do
    // "::ffff:10.0.0.5" and "10.0.0.5".
    for (QString *h : { &a, &b }) {
        *h = h->toLower();
        if (h->endsWith(QLatin1Char('.')))
            h->chop(1);
    }
    for (QString *h : { &a, &b }) {
        if (h->startsWith(QLatin1String("::ffff:")) && h->count(QLatin1Char('.')) == 3)
            h->remove(0, 7);
    }
    // IPv6 addresses are written in more than one way.
    unsigned char x[16], y[16];
    if (inet_pton(AF_INET6, a.toLatin1().constData(), x) == 1 && inet_pton(AF_INET6, b.toLatin1().constData(), y) == 1)
        return std::equal(x, x + 16, y);
    return a == b;
}

QString resourceOf(const QUrl &url)
{
    QString path = url.path();
    while (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

} // namespace

bool SameDevice::matches(const QString &chosenUri, const QString &queueUri, const QString &serviceName)
{
    if (chosenUri.isEmpty() || queueUri.isEmpty())
        return false;
    if (chosenUri == queueUri)
        return true;
    const QUrl chosen(chosenUri), queue(queueUri);
    if (queue.scheme() == QLatin1String("dnssd")) {
        // dnssd://NAME._ipp._tcp.local/?uuid=...
        const QString instance = QUrl::fromPercentEncoding(queueUri.mid(8).section(QLatin1Char('/'), 0, 0).toUtf8());
        return !serviceName.isEmpty() && instance.section(QStringLiteral("._"), 0, 0) == serviceName;
    }
    return isNetwork(chosen) && isNetwork(queue) && sameHost(chosen.host(), queue.host())
        && resourceOf(chosen) == resourceOf(queue);
}

QString SameDevice::queueOf(const QString &chosenUri, const QMap<QString, CUPSPrinter> &queues,
                            const QString &serviceName)
{
    for (auto it = queues.cbegin(); it != queues.cend(); ++it) {
        if (matches(chosenUri, it.value().DeviceURI(), serviceName))
            return it.key();
    }
    return QString();
}
