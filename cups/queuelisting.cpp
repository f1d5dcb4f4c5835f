#include "queuelisting.h"

#include "cupsmanager.h"
#include "earlydriverrequest.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "listingrecords.h"
#include "requests.h"

#include "oemconfig.h"

#include <QSet>
#include <QUrl>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

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

QueueListing::QueueListing(CUPSManager &cups)
    : m_cups(cups)
{
}

void QueueListing::completeListed(CUPSPrinter &printer)
{
    // The driver of a queue as the listing already tells it: no request per
    // queue. The make is the first word of "printer-make-and-model".
    const QString model = printer.ModelInfo();
    printer.setDriver(CUPSDriver(model.section(QLatin1Char(' '), 0, 0), model, QString(), QString()));
    const bool isClass = printer.PrinterType() & CUPS_PRINTER_CLASS;
    const bool isRemote = printer.PrinterType() & CUPS_PRINTER_REMOTE;
    printer.setDescription(QLatin1String(isRemote ? "remote " : "") + QLatin1String(isClass ? "class" : "printer"));
    printer.setLocalURI(isClass ? CUPSManager::classUri(printer.Name()) : CUPSManager::printerUri(printer.Name()));
    printer.setDefault(printer.PrinterType() & CUPS_PRINTER_DEFAULT);
}

bool QueueListing::fetchPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask, const QString &filter)
{
    printers.clear();
    Requests::GetPrinters request(type, mask);
    request.addKeywordList("requested-attributes", queueAttributes());
    if (!m_cups.sendListing(request))
        return false;
    forEachRecord<CUPSPrinter>(request.response(), [&](CUPSPrinter &printer) {
        completeListed(printer);
        if (printer.Driver().matchesVendor(filter))
            printers.insert(printer.Name(), printer);
    });
    IPPLog::flush(IPPLog::Printer);
    return true;
}

bool QueueListing::listPrinters(QMap<QString, CUPSPrinter> &printers, const QString &vendorFilter)
{
    return fetchPrinters(printers, 0, 0, vendorFilter);
}

bool QueueListing::listVendorPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask)
{
    return fetchPrinters(printers, type, mask, packageVendor());
}

bool QueueListing::listClasses(QMap<QString, CUPSClass> &classes)
{
    classes.clear();
    Requests::GetClasses request;
    request.addKeywordList("requested-attributes",
                           queueAttributes() << QStringLiteral("member-uris") << QStringLiteral("member-names"));
    if (!m_cups.sendListing(request))
        return false;
    forEachRecord<CUPSClass>(request.response(), [&](CUPSClass &cls) {
        completeListed(cls);
        classes.insert(cls.Name(), cls);
    });
    IPPLog::flush(IPPLog::Class);
    IPPLog::flush(IPPLog::Printer);
    return true;
}

bool QueueListing::findPrinter(const QString &name, CUPSPrinter &printer)
{
    Requests::GetPrinterAttributes request;
    request.addURI("printer-uri", CUPSManager::printerUri(name).toUtf8().constData());
    if (!m_cups.sendChecked(request))
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

TempFile QueueListing::fetchPPD(const QString &queue)
{
    // cupsGetPPD() would wait for an answer without end on its shared
    // connection.
    const HttpPtr http = IPPRequest::connectToScheduler();
    m_cups.LastStatus = 0;
    m_cups.m_lastError.clear();
    char path[1024];
    const int fd = http ? cupsTempFd(path, sizeof path) : -1;
    if (fd < 0) {
        m_cups.m_lastError = http ? QString::fromLocal8Bit(strerror(errno)) : IPPRequest::noAnswerText();
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
        m_cups.m_lastError = IPPRequest::noAnswerText();
    else
        m_cups.LastStatus = status == HTTP_STATUS_NOT_FOUND ? IPP_STATUS_ERROR_NOT_FOUND : IPP_STATUS_ERROR_INTERNAL;
    return TempFile();
}

bool QueueListing::listDrivers(QMap<QString, CUPSDriver> &drivers)
{
    return listDrivers(drivers, packageVendor());
}

bool QueueListing::listDrivers(QMap<QString, CUPSDriver> &drivers, const QString &vendorFilter)
{
    drivers.clear();
    IppPtr early;
    bool stalled = false;
    if (m_cups.m_earlyDrivers && m_cups.m_earlyDrivers->vendorFilter() == vendorFilter)
        early = m_cups.m_earlyDrivers->takeAnswer(&stalled);
    m_cups.m_earlyDrivers.reset();
    if (stalled) {
        m_cups.LastStatus = 0;
        m_cups.m_lastError = IPPRequest::noAnswerText();
        return false;
    }
    // An empty filter keeps every driver, so the scheduler is not asked to
    // narrow the list either.
    const QByteArray make = vendorFilter.toUtf8();
    Requests::GetPPDs request(vendorFilter.isEmpty() ? nullptr : make.constData());
    if (early) {
        m_cups.LastStatus = IPP_STATUS_OK;
        m_cups.m_lastError.clear();
    } else if (!m_cups.sendListing(request)) {
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

void QueueListing::sendDriverRequest()
{
    m_cups.m_earlyDrivers = std::make_unique<EarlyDriverRequest>(packageVendor());
}
