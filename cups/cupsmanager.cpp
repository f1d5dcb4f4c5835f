#include "cupsmanager.h"

#include "cupsptr.h"
#include "destlist.h"
#include "earlydriverrequest.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "queueadmin.h"
#include "queuelisting.h"
#include "requests.h"
#include "tempfile.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <cstring>
#include <sys/socket.h>

CUPSManager CUPSManager::m_CUPSManagerInstance;
QString CUPSManager::m_DriversDir = QStringLiteral("/usr/share/cups/model/");

namespace {

// The probe of the running scheduler must never hold up start-up.
constexpr int ServerProbeTimeoutMs = 1000;

const char *const LocalSocket = "/var/run/cups/cups.sock";

QString queueUri(const char *kind, const QString &name)
{
    const QString path = QLatin1String(kind) + QLatin1Char('/') + name;
    if (QFileInfo::exists(QLatin1String(LocalSocket)))
        return QLatin1String("ipp://localhost/") + path;
    QString host = QString::fromUtf8(cupsServer());
    if (host.startsWith(QLatin1Char('/')))
        host = QStringLiteral("localhost"); // a socket of its own elsewhere
    else if (host.contains(QLatin1Char(':')))
        host = QLatin1Char('[') + host + QLatin1Char(']'); // IPv6 address
    return QStringLiteral("ipp://%1:%2/%3").arg(host).arg(ippPort()).arg(path);
}

// The jobs of one cupsGetJobs call, freed on scope exit.
struct JobArray
{
    cups_job_t *jobs = nullptr;
    int count = 0;
    ~JobArray() { cupsFreeJobs(count, jobs); }
};

// What cupsGetDests mixes into a destination from the scheduler's own
// attributes; these are not the user's options and must not be copied.
bool isSchedulerAttribute(const char *name)
{
    return !strncmp(name, "printer-", 8) || !strncmp(name, "marker-", 7) || !strcmp(name, "device-uri")
        || !strcmp(name, "auth-info-required");
}

} // namespace

CUPSManager::CUPSManager()
    : CupsVersion(&CUPSManager::probeServerVersion)
{
}

CUPSManager::~CUPSManager() = default;

// --- Version probe -------------------------------------------------------

int CUPSManager::probeServerVersion()
{
    // The scheduler names itself in every answer: "Server: CUPS/2.4 IPP/2.1".
    HttpPtr http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1,
                              ServerProbeTimeoutMs, nullptr));
    if (!http)
        return -1;
    httpSetTimeout(http.get(), ServerProbeTimeoutMs / 1000.0, nullptr, nullptr);
    httpClearFields(http.get());
    if (httpHead(http.get(), "/") != 0)
        return -1;
    http_status_t status;
    while ((status = httpUpdate(http.get())) == HTTP_STATUS_CONTINUE) {
    }
    if (status == HTTP_STATUS_ERROR)
        return -1;
    static const QRegularExpression product(QStringLiteral("CUPS/(\\d+)\\.(\\d+)"));
    const QRegularExpressionMatch match = product.match(QString::fromLatin1(httpGetField(http.get(), HTTP_FIELD_SERVER)));
    return match.hasMatch() ? CupsVersionProbe::level(match.captured(1).toInt(), match.captured(2).toInt()) : -1;
}

// --- Sending -------------------------------------------------------------

QString CUPSManager::lastStatusText() const
{
    if (LastStatus == 0 && !m_lastError.isEmpty())
        return m_lastError;
    return IPPRequest::statusText(LastStatus);
}

QString CUPSManager::printerUri(const QString &name)
{
    return queueUri("printers", name);
}

QString CUPSManager::classUri(const QString &name)
{
    return queueUri("classes", name);
}

bool CUPSManager::send(IPPRequest &request, const char *resource)
{
    const bool answered = request.Execute(resource);
    LastStatus = request.response() ? ippGetStatusCode(request.response()) : 0;
    m_lastError = request.response() ? QString() : IPPRequest::lastError();
    return answered;
}

bool CUPSManager::sendChecked(IPPRequest &request, const char *resource)
{
    return send(request, resource) && LastStatus < IPP_STATUS_ERROR_BAD_REQUEST;
}

bool CUPSManager::sendListing(IPPRequest &request)
{
    // "Not found" is the scheduler's answer when it has nothing to list.
    return send(request) && (LastStatus < IPP_STATUS_ERROR_BAD_REQUEST || LastStatus == IPP_STATUS_ERROR_NOT_FOUND);
}

// --- Queues --------------------------------------------------------------

QString CUPSManager::defaultPrinterName() const
{
    return QString::fromUtf8(cupsGetDefault());
}

bool CUPSManager::setDefaultPrinter(const QString &printerUri)
{
    return QueueAdmin(*this).setDefaultPrinter(printerUri);
}

bool CUPSManager::addPrinter(const CUPSPrinter &printer)
{
    return QueueAdmin(*this).addPrinter(printer);
}

bool CUPSManager::attachDriverFile(const QString &printerName, const QString &ppdFile)
{
    return QueueAdmin(*this).attachDriverFile(printerName, ppdFile);
}

bool CUPSManager::addClass(const CUPSClass &cls)
{
    return QueueAdmin(*this).addClass(cls);
}

bool CUPSManager::enablePrinter(const QString &name)
{
    return QueueAdmin(*this).enablePrinter(name);
}

bool CUPSManager::disablePrinter(const QString &name)
{
    return QueueAdmin(*this).disablePrinter(name);
}

bool CUPSManager::deletePrinter(const QString &name)
{
    return QueueAdmin(*this).deletePrinter(name);
}

bool CUPSManager::deleteClass(const QString &name)
{
    return QueueAdmin(*this).deleteClass(name);
}

bool CUPSManager::renamePrinter(const QString &oldName, const QString &newName, const CUPSPrinter &newPrinter)
{
    return QueueAdmin(*this).renamePrinter(oldName, newName, newPrinter);
}

// --- Listing -------------------------------------------------------------

bool CUPSManager::listPrinters(QMap<QString, CUPSPrinter> &printers, const QString &vendorFilter)
{
    return QueueListing(*this).listPrinters(printers, vendorFilter);
}

bool CUPSManager::listVendorPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask)
{
    return QueueListing(*this).listVendorPrinters(printers, type, mask);
}

bool CUPSManager::listClasses(QMap<QString, CUPSClass> &classes)
{
    return QueueListing(*this).listClasses(classes);
}

bool CUPSManager::findPrinter(const QString &name, CUPSPrinter &printer)
{
    return QueueListing(*this).findPrinter(name, printer);
}

TempFile CUPSManager::fetchPPD(const QString &queue)
{
    return QueueListing(*this).fetchPPD(queue);
}

// --- Drivers -------------------------------------------------------------

bool CUPSManager::listDrivers(QMap<QString, CUPSDriver> &drivers)
{
    return QueueListing(*this).listDrivers(drivers);
}

bool CUPSManager::listDrivers(QMap<QString, CUPSDriver> &drivers, const QString &vendorFilter)
{
    return QueueListing(*this).listDrivers(drivers, vendorFilter);
}

void CUPSManager::sendDriverRequest()
{
    QueueListing(*this).sendDriverRequest();
}

// --- Destination list ----------------------------------------------------

bool CUPSManager::removeDestination(const QString &name)
{
    DestList dests;
    if (!dests.remove(name))
        return false;
    dests.save();
    return true;
}

bool CUPSManager::copyDestination(const QString &from, const QString &to)
{
    DestList dests;
    const cups_dest_t *source = dests.find(from);
    if (!source)
        return false;
    QList<QPair<QByteArray, QByteArray>> options;
    for (int i = 0; i < source->num_options; ++i) {
        if (!isSchedulerAttribute(source->options[i].name))
            options.append({ QByteArray(source->options[i].name), QByteArray(source->options[i].value) });
    }
    cups_dest_t *target = dests.add(to);
    if (!target)
        return false;
    for (const auto &option : options) {
        target->num_options = cupsAddOption(option.first.constData(), option.second.constData(),
                                            target->num_options, &target->options);
    }
    dests.save();
    return true;
}

// --- Jobs ----------------------------------------------------------------

int CUPSManager::listJobs(const QString &name, QList<CUPSJob> &jobs, bool activeOnly)
{
    const QByteArray queue = name.toUtf8();
    int appended = 0;
    auto take = [&](int whichJobs) {
        JobArray list;
        list.count = cupsGetJobs(&list.jobs, queue.isEmpty() ? nullptr : queue.constData(), 0, whichJobs);
        for (int i = 0; i < list.count; ++i)
            jobs.append(CUPSJob(list.jobs[i]));
        appended += qMax(list.count, 0);
    };
    take(CUPS_WHICHJOBS_ACTIVE);
    if (!activeOnly)
        take(CUPS_WHICHJOBS_COMPLETED);
    return appended;
}

bool CUPSManager::printFile(const CUPSPrinter &printer, const QString &jobName, const QString &documentFormat,
                            const QString &fileName, CUPSJob *job)
{
    const QString uri = printer.URIs().isEmpty() ? printerUri(printer.Name()) : printer.URIs().first();
    Requests::PrintFile request(printer.Name().toUtf8().constData());
    request.addURI("printer-uri", uri.toUtf8().constData());
    request.addName("job-name", jobName.toUtf8().constData());
    request.addMimeType("document-format", documentFormat.toUtf8().constData());
    request.setFileName(fileName);
    if (!sendChecked(request))
        return false;
    if (job) {
        ipp_t *response = request.response();
        for (ipp_attribute_t *attr = ippFirstAttribute(response); attr; attr = ippNextAttribute(response))
            job->fillFrom(attr);
        IPPLog::flush(IPPLog::Job);
    }
    return true;
}

bool CUPSManager::findJob(const QString &queueName, int jobId, CUPSJob &job)
{
    Requests::GetJobAttributes request(printerUri(queueName).toUtf8().constData(), jobId);
    if (!sendChecked(request))
        return false;
    ipp_t *response = request.response();
    for (ipp_attribute_t *attr = ippFirstAttribute(response); attr; attr = ippNextAttribute(response))
        job.fillFrom(attr);
    IPPLog::flush(IPPLog::Job);
    return true;
}

bool CUPSManager::cancelJob(const QString &jobUri)
{
    Requests::CancelJob request(jobUri.toUtf8().constData());
    return sendChecked(request);
}

bool CUPSManager::cancelJob(const QString &queueName, int jobId)
{
    const bool cancelled = cupsCancelJob(queueName.toUtf8().constData(), jobId) != 0;
    LastStatus = cupsLastError();
    return cancelled;
}
