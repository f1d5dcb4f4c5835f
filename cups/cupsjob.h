#ifndef QUEUEWIZ_CUPSJOB_H
#define QUEUEWIZ_CUPSJOB_H

#include <cups/cups.h>

#include <QString>
#include <QStringList>

// One print job, from an IPP answer or from cupsGetJobs.
class CUPSJob
{
public:
    CUPSJob() = default;
    // From a cupsGetJobs entry; Uri stays null there.
    explicit CUPSJob(const cups_job_t &job);

    int Id() const { return m_Id; }
    QString Name() const { return m_Name; }
    // "job-printer-uri" in IPP answers, the queue name from cupsGetJobs.
    QString Printer() const { return m_Printer; }
    QString User() const { return m_User; }
    QString Uri() const { return m_Uri; }
    int KOctets() const { return m_KOctets; }
    int CreationTime() const { return m_CreationTime; }
    // IPP job state: 3 pending ... 9 completed.
    int State() const { return m_State; }
    // "job-state-reasons" keywords, as the scheduler gives them.
    QStringList StateReasons() const { return m_StateReasons; }

    // Takes one attribute of an IPP answer, whatever its group, and logs it
    // to "ipp_job.log".
    void fillFrom(ipp_attribute_t *attr);

private:
    int m_Id = 0;
    QString m_Name;
    QString m_Printer;
    QString m_User;
    QString m_Uri;
    int m_KOctets = 0;
    int m_CreationTime = 0;
    int m_State = 0;
    QStringList m_StateReasons;
};

#endif
