#include "queueadmin.h"

#include "cupsmanager.h"
#include "requests.h"
#include "softassert.h"
#include "tempfile.h"

QueueAdmin::QueueAdmin(CUPSManager &cups)
    : m_cups(cups)
{
}

bool QueueAdmin::sendPlain(int operation, const QString &printerName)
{
    IPPRequest request(static_cast<ipp_op_t>(operation));
    request.addURI("printer-uri", CUPSManager::printerUri(printerName).toUtf8().constData());
    return m_cups.sendChecked(request, "/admin/");
}

bool QueueAdmin::setDefaultPrinter(const QString &printerUri)
{
    Requests::SetDefaultPrinter request(printerUri.toUtf8().constData());
    return m_cups.sendChecked(request);
}

bool QueueAdmin::setPPDName(const QByteArray &uri, const QString &ppdName)
{
    Requests::AddPrinter request;
    request.addURI("printer-uri", uri.constData());
    request.addName("ppd-name", ppdName.toUtf8().constData());
    // CUPS 2 answers the empty name with an internal error and leaves the
    // queue as it was; only an unanswered request stops the sequence there.
    return ppdName.isEmpty() ? m_cups.send(request) : m_cups.sendChecked(request);
}

bool QueueAdmin::addPrinter(const CUPSPrinter &printer)
{
    const QByteArray uri = CUPSManager::printerUri(printer.Name()).toUtf8();
    {
        Requests::AddPrinter request;
        request.addURI("printer-uri", uri.constData());
        request.addURI("device-uri", printer.DeviceURI().toUtf8().constData());
        request.addInteger("printer-state", printer.State(), IPP_TAG_ENUM);
        request.addBoolean("printer-is-accepting-jobs", printer.AcceptingJobs());
        request.addText("printer-info", printer.Info().toUtf8().constData());
        request.addText("printer-location", printer.Location().toUtf8().constData());
        if (!m_cups.sendChecked(request))
            return false;
    }
    if (printer.PPDName().isEmpty())
        return true;
    // The empty name first, also when the driver stays the same: the
    // scheduler then really installs the driver again.
    return setPPDName(uri, QString(QLatin1String(""))) && setPPDName(uri, printer.PPDName());
}

bool QueueAdmin::attachDriverFile(const QString &printerName, const QString &ppdFile)
{
    Requests::AddPrinter request;
    request.addURI("printer-uri", CUPSManager::printerUri(printerName).toUtf8().constData());
    request.setFileName(ppdFile);
    return m_cups.sendChecked(request);
}

bool QueueAdmin::addClass(const CUPSClass &cls)
{
    QStringList members = cls.MemberURIs();
    if (members.isEmpty()) {
        for (const QString &name : cls.MemberNames())
            members.append(CUPSManager::printerUri(name));
    }
    Requests::AddClass request;
    request.addURI("printer-uri", CUPSManager::classUri(cls.Name()).toUtf8().constData());
    request.addText("printer-location", cls.Location().toUtf8().constData());
    request.addText("printer-info", cls.Info().toUtf8().constData());
    // The scheduler takes only idle or stopped here and refuses the whole
    // request otherwise. A class that is printing is running: idle to it.
    const int state = cls.State() == IPP_PSTATE_PROCESSING ? int(IPP_PSTATE_IDLE) : cls.State();
    if (state == IPP_PSTATE_IDLE || state == IPP_PSTATE_STOPPED)
        request.addInteger("printer-state", state, IPP_TAG_ENUM);
    request.addBoolean("printer-is-accepting-jobs", cls.AcceptingJobs());
    request.addURIList("member-uris", members);
    return m_cups.sendChecked(request);
}

bool QueueAdmin::enablePrinter(const QString &name)
{
    return sendPlain(IPP_OP_CUPS_ACCEPT_JOBS, name) && sendPlain(IPP_OP_RESUME_PRINTER, name);
}

bool QueueAdmin::disablePrinter(const QString &name)
{
    return sendPlain(IPP_OP_CUPS_REJECT_JOBS, name) && sendPlain(IPP_OP_PAUSE_PRINTER, name);
}

bool QueueAdmin::updateClasses(QMap<QString, CUPSClass> &classes, const QString &printerName,
                               const QString &newName)
{
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
                printerUris[index] = CUPSManager::printerUri(newName);
        }
        cls.setMemberNames(printerNames);
        cls.setMemberURIs(printerUris);
        if (!addClass(cls))
            return false;
    }
    return true;
}

bool QueueAdmin::deletePrinter(const QString &name)
{
    if (!disablePrinter(name))
        return false;
    m_cups.removeDestination(name);
    // The scheduler takes a deleted printer out of its classes itself: when
    // it refuses to list them, only the re-sending is left out. Without an
    // answer the printer is kept.
    QMap<QString, CUPSClass> classes;
    if (m_cups.listClasses(classes) ? !updateClasses(classes, name, QString()) : !m_cups.answered())
        return false;
    Requests::DeletePrinter request(CUPSManager::printerUri(name).toUtf8().constData());
    return m_cups.sendChecked(request);
}

bool QueueAdmin::deleteClass(const QString &name)
{
    m_cups.removeDestination(name);
    Requests::DeleteClass request(CUPSManager::classUri(name).toUtf8().constData());
    return m_cups.sendChecked(request);
}

bool QueueAdmin::renamePrinter(const QString &oldName, const QString &newName, const CUPSPrinter &newPrinter)
{
    CUPSPrinter renamed(newPrinter);
    if (!QW_CHECK(newPrinter.Name() == newName, "CUPSManager", 377))
        renamed.setName(newName);
    if (!addPrinter(renamed))
        return false;
    m_cups.copyDestination(oldName, newName);
    // Unlisted classes would lose the printer with the old queue.
    QMap<QString, CUPSClass> classes;
    if (!m_cups.listClasses(classes) || !updateClasses(classes, oldName, newName))
        return false;
    if (renamed.IsDefault() && !setDefaultPrinter(CUPSManager::printerUri(newName)))
        return false;

    const TempFile ppd = m_cups.fetchPPD(oldName);
    if (ppd.isNull()) {
        // A queue without a driver (raw) has no file to carry over; any other
        // failure keeps the old queue, lest its driver be lost.
        if (m_cups.LastStatus != IPP_STATUS_ERROR_NOT_FOUND)
            return false;
    } else if (!attachDriverFile(newName, ppd.path())) {
        return false;
    }
    return deletePrinter(oldName);
}
