#include "printerprobe.h"

#include "cupsptr.h"
#include "snmpdevice.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>

namespace {

QString attributeText(ipp_t *response, const char *name)
{
    ipp_attribute_t *attr = ippFindAttribute(response, name, IPP_TAG_ZERO);
    return attr ? QString::fromUtf8(ippGetString(attr, 0, nullptr)) : QString();
}

} // namespace

bool PrinterProbe::canAsk(const QString &uri)
{
    const QUrl url(uri);
    static const QStringList schemes = { QStringLiteral("ipp"), QStringLiteral("ipps"), QStringLiteral("socket"),
                                         QStringLiteral("lpd") };
    return url.isValid() && !url.host().isEmpty() && schemes.contains(url.scheme());
}

PrinterProbe::Answer PrinterProbe::ask(const QString &uri, int timeoutMs)
{
    if (!canAsk(uri))
        return {};
    const QString scheme = QUrl(uri).scheme();
    return scheme.startsWith(QLatin1String("ipp")) ? askIpp(uri, timeoutMs) : askSnmp(uri, timeoutMs);
}

PrinterProbe::Answer PrinterProbe::askIpp(const QString &uri, int timeoutMs)
{
    const QUrl url(uri);
    const bool secure = url.scheme() == QLatin1String("ipps");
    const QByteArray host = url.host().toUtf8();
    const int port = url.port(631);
    HttpPtr http(httpConnect2(host.constData(), port, nullptr, AF_UNSPEC,
                              secure ? HTTP_ENCRYPTION_ALWAYS : HTTP_ENCRYPTION_IF_REQUESTED, 1, timeoutMs, nullptr));
    if (!http)
        return {};
    httpSetTimeout(http.get(), timeoutMs / 1000.0, nullptr, nullptr);

    // An address typed without a resource is tried where printers
    // usually answer.
    QStringList resources;
    if (url.path().size() > 1)
        resources << url.path();
    resources << QStringLiteral("/ipp/print") << QStringLiteral("/");
    resources.removeDuplicates();
    static const char *const wanted[] = { "printer-make-and-model", "printer-device-id" };
    for (const QString &resource : resources) {
        char printerUri[HTTP_MAX_URI];
        const QByteArray path = resource.toUtf8();
        httpAssembleURI(HTTP_URI_CODING_ALL, printerUri, sizeof printerUri, secure ? "ipps" : "ipp", nullptr,
                        host.constData(), port, path.constData());
        ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, printerUri);
        ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2, nullptr, wanted);
        IppPtr response(cupsDoRequest(http.get(), request, path.constData()));
        if (!response && httpGetFd(http.get()) < 0)
            break;
        if (!response || ippGetStatusCode(response.get()) > IPP_STATUS_OK_EVENTS_COMPLETE)
            continue;
        Answer answer;
        answer.answered = true;
        answer.makeAndModel = attributeText(response.get(), "printer-make-and-model");
        answer.deviceId = attributeText(response.get(), "printer-device-id");
        QUrl answeredUrl(url);
        answeredUrl.setPath(resource);
        answer.uri = answeredUrl.toString();
        return answer;
    }
    return {};
}

PrinterProbe::Answer PrinterProbe::askSnmp(const QString &uri, int timeoutMs)
{
    // Found and set up as the network search does it.
    const QString program = SnmpDevice::backendProgram();
    QTemporaryDir config;
    QFile conf(QDir(config.path()).filePath(QStringLiteral("snmp.conf")));
    if (!QFile::exists(program) || !config.isValid() || !conf.open(QIODevice::WriteOnly))
        return {};
    conf.write(SnmpDevice::config(QUrl(uri).host(), QString(), timeoutMs));
    conf.close();

    QProcess backend;
    QStringList env = QProcess::systemEnvironment();
    env << QStringLiteral("CUPS_SERVERROOT=") + config.path();
    backend.setEnvironment(env);
    backend.setStandardInputFile(QProcess::nullDevice());
    backend.start(program, {});
    if (!backend.waitForFinished(timeoutMs + 1000)) {
        backend.kill();
        backend.waitForFinished(1000);
        return {};
    }
    SnmpDevice device;
    const QStringList lines = QString::fromUtf8(backend.readAllStandardOutput()).split(QLatin1Char('\n'));
    if (std::none_of(lines.cbegin(), lines.cend(), [&](const QString &l) { return SnmpDevice::parse(l, &device); }))
        return {};
    Answer answer;
    answer.answered = true;
    answer.makeAndModel = device.makeAndModel;
    answer.deviceId = device.deviceId;
    answer.uri = uri;
    return answer;
}
