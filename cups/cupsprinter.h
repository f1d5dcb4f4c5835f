#ifndef QUEUEWIZ_CUPSPRINTER_H
#define QUEUEWIZ_CUPSPRINTER_H

#include "cupsdriver.h"

#include <cups/ipp.h>

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

// One print queue (printer or class) as the scheduler reports it, and the
// record from which the wizard creates a queue. Filled attribute by attribute
// from IPP answers; list fields are appended to, never cleared, by filling.
class CUPSPrinter
{
    Q_DECLARE_TR_FUNCTIONS(CUPSPrinter)

public:
    CUPSPrinter() = default;
    explicit CUPSPrinter(const QString &name);
    virtual ~CUPSPrinter();
    CUPSPrinter(const CUPSPrinter &) = default;
    CUPSPrinter &operator=(const CUPSPrinter &) = default;

    // Queue name ("printer-name"); the key of the destination list.
    QString Name() const { return m_Name; }
    void setName(const QString &value) { m_Name = value; }
    // Description shown to users ("printer-info").
    QString Info() const { return m_Info; }
    void setInfo(const QString &value) { m_Info = value; }
    // IPP printer state: 3 idle, 4 processing, 5 stopped ("printer-state").
    int State() const { return m_State; }
    void setState(int value) { m_State = value; }
    QString Location() const { return m_Location; }
    void setLocation(const QString &value) { m_Location = value; }
    // "printer-make-and-model".
    QString ModelInfo() const { return m_ModelInfo; }
    void setModelInfo(const QString &value) { m_ModelInfo = value; }
    // The device (backend) URI of the queue.
    QString DeviceURI() const { return m_DeviceURI; }
    void setDeviceURI(const QString &value) { m_DeviceURI = value; }
    // The queue's own IPP URI ("printer-uri" or the first "printer-uri-supported").
    QString Uri() const { return m_Uri; }
    void setUri(const QString &value) { m_Uri = value; }
    // Every "printer-uri-supported"; the first one is the target of print jobs.
    QStringList URIs() const { return m_URIs; }
    void setURIs(const QStringList &value) { m_URIs = value; }
    bool ColorSupported() const { return m_ColorSupported; }
    QStringList MediaSupported() const { return m_MediaSupported; }
    QString MediaDefault() const { return m_MediaDefault; }
    // CUPS printer-type bits (CUPS_PRINTER_CLASS, CUPS_PRINTER_DEFAULT, ...).
    unsigned int PrinterType() const { return m_PrinterType; }
    void setPrinterType(unsigned int value) { m_PrinterType = value; }
    bool AcceptingJobs() const { return m_AcceptingJobs; }
    void setAcceptingJobs(bool value) { m_AcceptingJobs = value; }
    int CopiesDefault() const { return m_CopiesDefault; }
    int CopiesMin() const { return m_CopiesMin; }
    int CopiesMax() const { return m_CopiesMax; }
    bool PageRangesSupported() const { return m_PageRangesSupported; }
    int OrientationDefault() const { return m_OrientationDefault; }
    QString StateMessage() const { return m_StateMessage; }
    QList<int> OrientationsSupported() const { return m_OrientationsSupported; }
    QStringList JobSheetsSupported() const { return m_JobSheetsSupported; }
    // "job-sheets-default": the banner before and the one after a job.
    QString JobSheetsStart() const { return m_JobSheetsStart; }
    QString JobSheetsEnd() const { return m_JobSheetsEnd; }

    // The driver chosen for the queue; when its DriverFile is not empty, the
    // queue is created with it as "ppd-name". Listing fills Model (and a
    // Manufacturer guessed from it) from "printer-make-and-model".
    CUPSDriver Driver() const { return m_Driver; }
    // Also sets PPDName to the driver's DriverFile.
    void setDriver(const CUPSDriver &driver);
    QString PPDName() const { return m_PPDName; }
    void setPPDName(const QString &value) { m_PPDName = value; }

    // What kind of queue this is, in words; filled by listing, dump only.
    QString Description() const { return m_Description; }
    void setDescription(const QString &value) { m_Description = value; }
    // The URI under which this program addresses the queue; filled by listing.
    QString LocalURI() const { return m_LocalURI; }
    void setLocalURI(const QString &value) { m_LocalURI = value; }
    // The queue is the scheduler's default destination. A rename carries it over.
    bool IsDefault() const { return m_IsDefault; }
    void setDefault(bool value) { m_IsDefault = value; }

    // Takes one attribute of an IPP answer: logs it to "ipp_printer.log" and
    // fills the field it names when it belongs to the printer group.
    virtual void fillFrom(ipp_attribute_t *attr);
    // "idle, accepting jobs" and the like, translated word by word.
    QString stateText() const;
    // The record for diagnostics.
    virtual QString dump() const;

protected:
    // The filling without the log line.
    void fillPrinterAttribute(ipp_attribute_t *attr);

private:
    QString m_Name;
    QString m_Info;
    int m_State = 0;
    QString m_Location;
    QString m_ModelInfo;
    QString m_DeviceURI;
    QString m_Uri;
    QStringList m_URIs;
    bool m_ColorSupported = false;
    QStringList m_MediaSupported;
    QString m_MediaDefault;
    unsigned int m_PrinterType = 0;
    bool m_AcceptingJobs = false;
    int m_CopiesDefault = 0;
    int m_CopiesMin = 0;
    int m_CopiesMax = 0;
    bool m_PageRangesSupported = false;
    int m_OrientationDefault = 0;
    QString m_StateMessage;
    QList<int> m_OrientationsSupported;
    QStringList m_JobSheetsSupported;
    QString m_JobSheetsStart;
    QString m_JobSheetsEnd;
    QString m_PPDName;
    CUPSDriver m_Driver;
    QString m_Description;
    QString m_LocalURI;
    bool m_IsDefault = false;
};

#endif
