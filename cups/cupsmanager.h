#ifndef QUEUEWIZ_CUPSMANAGER_H
#define QUEUEWIZ_CUPSMANAGER_H

#include "cupsclass.h"
#include "cupsdriver.h"
#include "cupsjob.h"
#include "cupsprinter.h"
#include "tempfile.h"
#include "cupsversionprobe.h"

#include <QList>
#include <QMap>
#include <QString>

#include <memory>

class EarlyDriverRequest;
class IPPRequest;

// The one object through which the program works with the print system:
// it sends the IPP requests, keeps the status of the last answer for
// messages, lists queues and drivers, creates, renames and deletes queues,
// edits the user's destination list and prints.
//
// Operations return false at the first request that failed: no connection,
// no readable answer, or an answer whose IPP status is an error (0x0400 and
// up). LastStatus then holds the status for the message (lastStatusText()).
// Listing fails on an error status too, except "not found", which the
// scheduler answers when it has nothing to list. Nothing already done is
// undone after a failure.
class CUPSManager
{
public:
    CUPSManager();
    virtual ~CUPSManager();
    CUPSManager(const CUPSManager &) = delete;
    CUPSManager &operator=(const CUPSManager &) = delete;

    // IPP status code of the last answer; 0 when the last request got none.
    int LastStatus = 0;
    // Version level of the installed CUPS (CupsVersionProbe::level: 101 for
    // 1.1.x, 204 for 2.4.x), -1 when unknown; probed while start-up goes on,
    // used like an int.
    CupsVersionProbe CupsVersion;

    // The instance of the program, made before main() runs.
    static CUPSManager m_CUPSManagerInstance;
    // The scheduler's driver directory, "/usr/share/cups/model/".
    static QString m_DriversDir;

    // What the user is told of the last request: the fixed text of
    // LastStatus, or, when no answer came, why (IPPRequest::lastError()).
    QString lastStatusText() const;
    // Whether the last request got an answer, whatever its status; false
    // when the scheduler could not be reached or did not answer in time.
    bool answered() const { return LastStatus != 0 || m_lastError.isEmpty(); }

    // The URI of a printer or a class: "ipp://localhost/printers/NAME" when
    // the scheduler's local socket exists, else with the server and port.
    static QString printerUri(const QString &name);
    static QString classUri(const QString &name);

    // Sends request (to resource, or to its own resource when null), sets
    // LastStatus and returns whether an answer could be read, whatever its
    // status.
    bool send(IPPRequest &request, const char *resource = nullptr);

    // --- Queues ---------------------------------------------------------
    // The name of the default destination, empty when there is none.
    QString defaultPrinterName() const;
    // Makes the queue of printerUri the scheduler's default destination.
    bool setDefaultPrinter(const QString &printerUri);
    // Creates or changes the queue of printer.Name() from its device URI,
    // state (3 idle or 5 stopped), accepting flag, Info and Location, then,
    // when PPDName() is not empty, sends "ppd-name" empty (CUPS 2 refuses
    // that, which is not counted as a failure) and then PPDName().
    bool addPrinter(const CUPSPrinter &printer);
    // Uploads a local PPD file as the driver of a queue.
    bool attachDriverFile(const QString &printerName, const QString &ppdFile);
    // Creates or changes a class with the members in the order of
    // MemberURIs() (built from MemberNames() when MemberURIs() is empty).
    bool addClass(const CUPSClass &cls);
    // Accept-Jobs and Resume-Printer; the second only after the first.
    bool enablePrinter(const QString &name);
    // Reject-Jobs and Pause-Printer; the second only after the first.
    bool disablePrinter(const QString &name);
    // Disables the printer, drops its destination, takes it out of every
    // class, then deletes it. Classes the scheduler refuses to list are left
    // to it: it drops a deleted printer from them itself.
    bool deletePrinter(const QString &name);
    // Drops the class's destination, then deletes it.
    bool deleteClass(const QString &name);
    // Gives the queue oldName the name newName: creates newPrinter (which must
    // carry newName), copies the destination options, replaces the name in
    // classes, carries over the default flag (newPrinter.IsDefault()) and
    // the driver file, then deletes the old queue.
    bool renamePrinter(const QString &oldName, const QString &newName, const CUPSPrinter &newPrinter);

    // --- Listing --------------------------------------------------------
    // Every queue (printers and classes) whose driver names vendorFilter in
    // its manufacturer or model, ignoring case; a null or empty filter keeps
    // all. Keyed by queue name. One request, whatever the number of queues.
    bool listPrinters(QMap<QString, CUPSPrinter> &printers, const QString &vendorFilter = QString());
    // The queues whose printer-type bits under mask equal type (0 and 0: all)
    // of the package's vendor.
    bool listVendorPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask);
    // Every class with its members, keyed by name; empty and true when there
    // is none, false on any other error status.
    bool listClasses(QMap<QString, CUPSClass> &classes);
    // Fills printer from the scheduler; false when there is no such queue.
    bool findPrinter(const QString &name, CUPSPrinter &printer);
    // Fetches the queue's PPD into a temporary file, within the request
    // timeouts; a null file on failure.
    TempFile fetchPPD(const QString &queue);

    // --- Drivers --------------------------------------------------------
    // The drivers of the package's vendor, keyed by display name: the model,
    // or "model (language)" when several drivers share a model. Empty and
    // false when the scheduler could not be asked or answered an error.
    bool listDrivers(QMap<QString, CUPSDriver> &drivers);
    // The same for any vendor filter; empty keeps every driver.
    bool listDrivers(QMap<QString, CUPSDriver> &drivers, const QString &vendorFilter);
    // Sends the request for the package's drivers without waiting: the
    // scheduler answers while start-up goes on, and the next listDrivers()
    // for the package's vendor takes that answer.
    void sendDriverRequest();

    // --- Destination list (lpoptions) -----------------------------------
    // False when there was no such destination.
    bool removeDestination(const QString &name);
    // Gives to the destination `to` the options the user set for `from`.
    bool copyDestination(const QString &from, const QString &to);

    // --- Jobs -----------------------------------------------------------
    // Appends the not-completed jobs of a queue (all queues when name is
    // empty), and unless activeOnly also the completed ones; returns how many
    // were appended.
    int listJobs(const QString &name, QList<CUPSJob> &jobs, bool activeOnly);
    // Prints a file to the queue at the first of printer.URIs() (or its
    // printerUri() when it has none). job, when given, receives the new job.
    bool printFile(const CUPSPrinter &printer, const QString &jobName, const QString &documentFormat,
                   const QString &fileName, CUPSJob *job = nullptr);
    // Asks the scheduler for one job of a queue: its state and the reasons;
    // false when there is no such job or no answer.
    bool findJob(const QString &queueName, int jobId, CUPSJob &job);
    bool cancelJob(const QString &jobUri);
    // Through cupsCancelJob.
    bool cancelJob(const QString &queueName, int jobId);

    // The version level of what the running scheduler names in its HTTP
    // "Server" header, -1 when none answers within a second.
    static int probeServerVersion();

private:
    // The operations by concern; they send through this object.
    friend class QueueAdmin;
    friend class QueueListing;

    // Why the last request sent through send() got no answer; empty when
    // one came.
    QString m_lastError;
    std::unique_ptr<EarlyDriverRequest> m_earlyDrivers;

    // send(), and the answer's status is not an error.
    bool sendChecked(IPPRequest &request, const char *resource = nullptr);
    // send() that also fails on an error status other than "not found".
    bool sendListing(IPPRequest &request);
};

#endif
