#include "cupsjob.h"

#include "ipplog.h"

#include <cstring>

CUPSJob::CUPSJob(const cups_job_t &job)
    : m_Id(job.id)
    , m_Name(QString::fromUtf8(job.title))
    , m_Printer(QString::fromUtf8(job.dest))
    , m_User(QString::fromUtf8(job.user))
    , m_KOctets(job.size)
    , m_CreationTime(static_cast<int>(job.creation_time))
    , m_State(job.state)
{
}

void CUPSJob::fillFrom(ipp_attribute_t *attr)
{
    IPPLog::dumpAttribute(IPPLog::Job, attr);
    const char *name = ippGetName(attr);
    if (!name)
        return;
    const QString text = QString::fromUtf8(ippGetString(attr, 0, nullptr));
    if (!strcmp(name, "job-id"))
        m_Id = ippGetInteger(attr, 0);
    else if (!strcmp(name, "job-name"))
        m_Name = text;
    else if (!strcmp(name, "job-printer-uri"))
        m_Printer = text;
    else if (!strcmp(name, "job-originating-user-name"))
        m_User = text;
    else if (!strcmp(name, "job-uri"))
        m_Uri = text;
    else if (!strcmp(name, "job-k-octets"))
        m_KOctets = ippGetInteger(attr, 0);
    else if (!strcmp(name, "time-at-creation"))
        m_CreationTime = ippGetInteger(attr, 0);
    else if (!strcmp(name, "job-state"))
        m_State = ippGetInteger(attr, 0);
    else if (!strcmp(name, "job-state-reasons")) {
        m_StateReasons.clear();
        for (int i = 0; i < ippGetCount(attr); ++i)
            m_StateReasons << QString::fromUtf8(ippGetString(attr, i, nullptr));
    }
}
