#include "cupsmanager.h"

#include "cupsptr.h"
#include "destlist.h"
#include "earlydriverrequest.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "listingrecords.h"
#include "requests.h"
#include "tempfile.h"

#include "oemconfig.h"
#include "softassert.h"

#include <QFileInfo>
#include <QUrl>
#include <QRegularExpression>
#include <QSet>

#include <cups/ppd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

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

// The attributes that the queue records read. Asking for these alone keeps
// the answer for a scheduler with many queues small.
QStringList queueAttributes()
{
    return {QStringLiteral("printer-name"), QStringLiteral("printer-location"), QStringLiteral("printer-info"),
            QStringLiteral("printer-make-and-model"), QStringLiteral("printer-state"),
            QStringLiteral("printer-state-message"), QStringLiteral("device-uri"), QStringLiteral("color-supported"),
            QStringLiteral("media-supported"), QStringLiteral("media-default"), QStringLiteral("job-sheets-supported"),
            QStringLiteral("job-sheets-default"), QStringLiteral("printer-type"),
            QStringLiteral("printer-is-accepting-jobs"), QStringLiteral("printer-uri-supported"),
            QStringLiteral("copies-supported"), QStringLiteral("copies-default"),
            QStringLiteral("page-ranges-supported"), QStringLiteral("orientation-requested-supported"),
            QStringLiteral("orientation-requested-default")};
}

// What cupsGetDests mixes into a destination from the scheduler's own
// attributes; these are not the user's options and must not be copied.
bool isSchedulerAttribute(const char *name)
{
    return !strncmp(name, "printer-", 8) || !strncmp(name, "marker-", 7) || !strcmp(name, "device-uri")
        || !strcmp(name, "auth-info-required");
}

// The filter for the package's own queues and drivers.
QString packageVendor()
{
    return QString::asprintf("%s", actx.vendorUpper);
}

// The display key for a driver that shares its model with others.
QString taggedKey(const CUPSDriver &driver)
{
    const QString tag = driver.Language().isEmpty() ? driver.DriverFile() : driver.Language();
    return QStringLiteral("%1 (%2)").arg(driver.Model(), tag);
}

void insertUnique(QMap<QString, CUPSDriver> &drivers, QString key, const CUPSDriver &driver)
{
    if (drivers.contains(key))
        key = QStringLiteral("%1 (%2)").arg(driver.Model(), driver.DriverFile());
    for (int n = 2; drivers.contains(key); ++n)
        key = QStringLiteral("%1 (%2)").arg(driver.Model()).arg(n);
    drivers.insert(key, driver);
}

void insertDriver(QMap<QString, CUPSDriver> &drivers, QSet<QString> &sharedModels, const CUPSDriver &driver)
{
    const QString model = driver.Model();
    if (sharedModels.contains(model)) {
        insertUnique(drivers, taggedKey(driver), driver);
        return;
    }
    const auto it = drivers.find(model);
    if (it == drivers.end()) {
        drivers.insert(model, driver);
        return;
    }
    // The second driver of a model: both are named by language from now on.
    const CUPSDriver first = it.value();
    drivers.erase(it);
    sharedModels.insert(model);
    insertUnique(drivers, taggedKey(first), first);
    insertUnique(drivers, taggedKey(driver), driver);
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

bool CUPSManager::sendPlain(int operation, const QString &printerName)
{
    IPPRequest request(static_cast<ipp_op_t>(operation));
    request.addURI("printer-uri", printerUri(printerName).toUtf8().constData());
    return sendChecked(request, "/admin/");
}

// --- Queues --------------------------------------------------------------

QString CUPSManager::defaultPrinterName() const
{
    return QString::fromUtf8(cupsGetDefault());
}

bool CUPSManager::setDefaultPrinter(const QString &printerUri)
{
    Requests::SetDefaultPrinter request(printerUri.toUtf8().constData());
    return sendChecked(request);
}

bool CUPSManager::setPPDName(const QByteArray &uri, const QString &ppdName)
{
    Requests::AddPrinter request;
    request.addURI("printer-uri", uri.constData());
    request.addName("ppd-name", ppdName.toUtf8().constData());
    // CUPS 2 answers the empty name with an internal error and leaves the
    // queue as it was; only an unanswered request stops the sequence there.
    return ppdName.isEmpty() ? send(request) : sendChecked(request);
}

bool CUPSManager::addPrinter(const CUPSPrinter &printer)
{
    const QByteArray uri = printerUri(printer.Name()).toUtf8();
    {
        Requests::AddPrinter request;
        request.addURI("printer-uri", uri.constData());
        request.addURI("device-uri", printer.DeviceURI().toUtf8().constData());
        request.addInteger("printer-state", printer.State(), IPP_TAG_ENUM);
        request.addBoolean("printer-is-accepting-jobs", printer.AcceptingJobs());
        request.addText("printer-info", printer.Info().toUtf8().constData());
        request.addText("printer-location", printer.Location().toUtf8().constData());
        if (!sendChecked(request))
            return false;
    }
    if (printer.PPDName().isEmpty())
        return true;
    // The empty name first, also when the driver stays the same: the
    // scheduler then really installs the driver again.
    return setPPDName(uri, QString(QLatin1String(""))) && setPPDName(uri, printer.PPDName());
}

bool CUPSManager::attachDriverFile(const QString &printerName, const QString &ppdFile)
{
    Requests::AddPrinter request;
    request.addURI("printer-uri", printerUri(printerName).toUtf8().constData());
    request.setFileName(ppdFile);
    return sendChecked(request);
}

bool CUPSManager::addClass(const CUPSClass &cls)
{
    QStringList members = cls.MemberURIs();
    if (members.isEmpty()) {
        for (const QString &name : cls.MemberNames())
            members.append(printerUri(name));
    }
    Requests::AddClass request;
    request.addURI("printer-uri", classUri(cls.Name()).toUtf8().constData());
    request.addText("printer-location", cls.Location().toUtf8().constData());
    request.addText("printer-info", cls.Info().toUtf8().constData());
    // The scheduler takes only idle or stopped here and refuses the whole
    // request otherwise. A class that is printing is running: idle to it.
    const int state = cls.State() == IPP_PSTATE_PROCESSING ? int(IPP_PSTATE_IDLE) : cls.State();
    if (state == IPP_PSTATE_IDLE || state == IPP_PSTATE_STOPPED)
        request.addInteger("printer-state", state, IPP_TAG_ENUM);
    request.addBoolean("printer-is-accepting-jobs", cls.AcceptingJobs());
    request.addURIList("member-uris", members);
    return sendChecked(request);
}

bool CUPSManager::enablePrinter(const QString &name)
{
    return sendPlain(IPP_OP_CUPS_ACCEPT_JOBS, name) && sendPlain(IPP_OP_RESUME_PRINTER, name);
}

bool CUPSManager::disablePrinter(const QString &name)
{
    return sendPlain(IPP_OP_CUPS_REJECT_JOBS, name) && sendPlain(IPP_OP_PAUSE_PRINTER, name);
}

bool CUPSManager::updateClasses(const QString &printerName, const QString &newName)
{
    QMap<QString, CUPSClass> classes;
    if (!listClasses(classes))
        return false;
    for (CUPSClass &cls : classes) {
        QStringList printerNames = cls.MemberNames();
        QStringList printerUris = cls.MemberURIs();
        const int index = printerNames.indexOf(printerName);
        if (index < 0)
            continue;
        if (!QW_CHECK(printerNames.count() == printerUris.count(), "CUPSManager", 412)) {
            // Not parallel: the URIs can't be trusted, so name every member.
            printerUris.clear();
        }
        if (newName.isEmpty()) {
            printerNames.removeAt(index);
            if (index < printerUris.size())
                printerUris.removeAt(index);
        } else {
            printerNames[index] = newName;
            if (index < printerUris.size())
                printerUris[index] = printerUri(newName);
        }
        cls.setMemberNames(printerNames);
        cls.setMemberURIs(printerUris);
        if (!addClass(cls))
            return false;
    }
    return true;
}

bool CUPSManager::deletePrinter(const QString &name)
{
    if (!disablePrinter(name))
        return false;
    removeDestination(name);
    if (!updateClasses(name, QString()))
        return false;
    Requests::DeletePrinter request(printerUri(name).toUtf8().constData());
    return sendChecked(request);
}

bool CUPSManager::deleteClass(const QString &name)
{
    removeDestination(name);
    Requests::DeleteClass request(classUri(name).toUtf8().constData());
    return sendChecked(request);
}

bool CUPSManager::renamePrinter(const QString &oldName, const QString &newName, const CUPSPrinter &newPrinter)
{
    CUPSPrinter renamed(newPrinter);
    if (!QW_CHECK(newPrinter.Name() == newName, "CUPSManager", 377))
        renamed.setName(newName);
    if (!addPrinter(renamed))
        return false;
    copyDestination(oldName, newName);
    if (!updateClasses(oldName, newName))
        return false;
    if (renamed.IsDefault() && !setDefaultPrinter(printerUri(newName)))
        return false;

    const TempFile ppd = fetchPPD(oldName);
    if (ppd.isNull()) {
        // A queue without a driver (raw) has no file to carry over; any other
        // failure keeps the old queue, lest its driver be lost.
        if (LastStatus != IPP_STATUS_ERROR_NOT_FOUND)
            return false;
    } else if (!attachDriverFile(newName, ppd.path())) {
        return false;
    }
    return deletePrinter(oldName);
}

// --- Listing -------------------------------------------------------------

void CUPSManager::completeListed(CUPSPrinter &printer)
{
    // The driver of a queue as the listing already tells it: no request per
    // queue. The make is the first word of "printer-make-and-model".
    const QString model = printer.ModelInfo();
    printer.setDriver(CUPSDriver(model.section(QLatin1Char(' '), 0, 0), model, QString(), QString()));
    const bool isClass = printer.PrinterType() & CUPS_PRINTER_CLASS;
    const bool isRemote = printer.PrinterType() & CUPS_PRINTER_REMOTE;
    printer.setDescription(QLatin1String(isRemote ? "remote " : "") + QLatin1String(isClass ? "class" : "printer"));
    printer.setLocalURI(isClass ? classUri(printer.Name()) : printerUri(printer.Name()));
    printer.setDefault(printer.PrinterType() & CUPS_PRINTER_DEFAULT);
}

bool CUPSManager::fetchPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask, const QString &filter)
{
    printers.clear();
    Requests::GetPrinters request(type, mask);
    request.addKeywordList("requested-attributes", queueAttributes());
    if (!sendListing(request))
        return false;
    forEachRecord<CUPSPrinter>(request.response(), [&](CUPSPrinter &printer) {
        completeListed(printer);
        if (printer.Driver().matchesVendor(filter))
            printers.insert(printer.Name(), printer);
    });
    IPPLog::flush(IPPLog::Printer);
    return true;
}

bool CUPSManager::listPrinters(QMap<QString, CUPSPrinter> &printers, const QString &vendorFilter)
{
    return fetchPrinters(printers, 0, 0, vendorFilter);
}

bool CUPSManager::listVendorPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask)
{
    return fetchPrinters(printers, type, mask, packageVendor());
}

bool CUPSManager::listClasses(QMap<QString, CUPSClass> &classes)
{
    classes.clear();
    Requests::GetClasses request;
    request.addKeywordList("requested-attributes",
                           queueAttributes() << QStringLiteral("member-uris") << QStringLiteral("member-names"));
    if (!send(request))
        return false;
    forEachRecord<CUPSClass>(request.response(), [&](CUPSClass &cls) {
        completeListed(cls);
        classes.insert(cls.Name(), cls);
    });
    IPPLog::flush(IPPLog::Class);
    IPPLog::flush(IPPLog::Printer);
    return true;
}

bool CUPSManager::findPrinter(const QString &name, CUPSPrinter &printer)
{
    Requests::GetPrinterAttributes request;
    request.addURI("printer-uri", printerUri(name).toUtf8().constData());
    if (!sendChecked(request))
        return false;
    CUPSPrinter found;
    ipp_t *response = request.response();
    for (ipp_attribute_t *attr = ippFirstAttribute(response); attr; attr = ippNextAttribute(response))
        found.fillFrom(attr);
    IPPLog::flush(IPPLog::Printer);
    if (found.Name().isEmpty())
        return false;
    completeListed(found);
    printer = found;
    return true;
}

TempFile CUPSManager::fetchPPD(const QString &queue)
{
    // cupsGetPPD() would wait for an answer without end on its shared
    // connection.
    const HttpPtr http = IPPRequest::connectToScheduler();
    LastStatus = 0;
    m_lastError.clear();
    char path[1024];
    const int fd = http ? cupsTempFd(path, sizeof path) : -1;
    if (fd < 0) {
        m_lastError = http ? QString::fromLocal8Bit(strerror(errno)) : IPPRequest::noAnswerText();
        return TempFile();
    }
    const QByteArray resource = "/printers/" + QUrl::toPercentEncoding(queue) + ".ppd";
    const http_status_t status = cupsGetFd(http.get(), resource.constData(), fd);
    close(fd);
    TempFile copy(path);
    if (status == HTTP_STATUS_OK)
        return copy;
    // HTTP_STATUS_ERROR: the connection broke or the answer timed out.
    if (status == HTTP_STATUS_ERROR)
        m_lastError = IPPRequest::noAnswerText();
    else
        LastStatus = status == HTTP_STATUS_NOT_FOUND ? IPP_STATUS_ERROR_NOT_FOUND : IPP_STATUS_ERROR_INTERNAL;
    return TempFile();
}

// --- Drivers -------------------------------------------------------------

bool CUPSManager::listDrivers(QMap<QString, CUPSDriver> &drivers)
{
    return listDrivers(drivers, packageVendor());
}

bool CUPSManager::listDrivers(QMap<QString, CUPSDriver> &drivers, const QString &vendorFilter)
{
    drivers.clear();
    IppPtr early;
    bool stalled = false;
    if (m_earlyDrivers && m_earlyDrivers->vendorFilter() == vendorFilter)
        early = m_earlyDrivers->takeAnswer(&stalled);
    m_earlyDrivers.reset();
    if (stalled) {
        LastStatus = 0;
        m_lastError = IPPRequest::noAnswerText();
        return false;
    }
    // An empty filter keeps every driver, so the scheduler is not asked to
    // narrow the list either.
    const QByteArray make = vendorFilter.toUtf8();
    Requests::GetPPDs request(vendorFilter.isEmpty() ? nullptr : make.constData());
    if (early) {
        LastStatus = IPP_STATUS_OK;
        m_lastError.clear();
    } else if (!sendListing(request)) {
        return false;
    }
    ipp_t *response = early ? early.get() : request.response();
    QSet<QString> sharedModels;
    forEachRecord<CUPSDriver>(response, [&](CUPSDriver &driver) {
        if (driver.matchesVendor(vendorFilter))
            insertDriver(drivers, sharedModels, driver);
    });
    IPPLog::flush(IPPLog::Driver);
    return true;
}

void CUPSManager::sendDriverRequest()
{
    m_earlyDrivers = std::make_unique<EarlyDriverRequest>(packageVendor());
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
