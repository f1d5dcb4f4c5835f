#include "cupsprinter.h"

#include "ipplog.h"

#include <cstring>

namespace {

QString firstText(ipp_attribute_t *attr)
{
    return QString::fromUtf8(ippGetString(attr, 0, nullptr));
}

void appendTexts(QStringList &list, ipp_attribute_t *attr)
{
    const int count = ippGetCount(attr);
    for (int i = 0; i < count; ++i)
        list.append(QString::fromUtf8(ippGetString(attr, i, nullptr)));
}

} // namespace

CUPSPrinter::CUPSPrinter(const QString &name)
    : m_Name(name)
{
}

CUPSPrinter::~CUPSPrinter() = default;

void CUPSPrinter::setDriver(const CUPSDriver &driver)
{
    m_Driver = driver;
    m_PPDName = driver.DriverFile();
}

void CUPSPrinter::fillFrom(ipp_attribute_t *attr)
{
    IPPLog::dumpAttribute(IPPLog::Printer, attr);
    fillPrinterAttribute(attr);
}

void CUPSPrinter::fillPrinterAttribute(ipp_attribute_t *attr)
{
    const char *name = ippGetName(attr);
    if (!name || ippGetGroupTag(attr) != IPP_TAG_PRINTER)
        return;
    auto is = [name](const char *wanted) { return strcmp(name, wanted) == 0; };

    if (is("printer-name")) {
        m_Name = firstText(attr);
    } else if (is("printer-location")) {
        m_Location = firstText(attr);
    } else if (is("printer-info")) {
        m_Info = firstText(attr);
    } else if (is("printer-make-and-model")) {
        m_ModelInfo = firstText(attr);
    } else if (is("printer-state")) {
        m_State = ippGetInteger(attr, 0);
    } else if (is("printer-state-message")) {
        m_StateMessage = firstText(attr);
    } else if (is("device-uri")) {
        m_DeviceURI = firstText(attr);
    } else if (is("color-supported")) {
        m_ColorSupported = ippGetBoolean(attr, 0);
    } else if (is("media-supported")) {
        appendTexts(m_MediaSupported, attr);
    } else if (is("media-default")) {
        m_MediaDefault = firstText(attr);
    } else if (is("job-sheets-supported")) {
        appendTexts(m_JobSheetsSupported, attr);
    } else if (is("job-sheets-default")) {
        m_JobSheetsStart = firstText(attr);
        if (ippGetCount(attr) == 2)
            m_JobSheetsEnd = QString::fromUtf8(ippGetString(attr, 1, nullptr));
    } else if (is("printer-type")) {
        m_PrinterType = static_cast<unsigned int>(ippGetInteger(attr, 0));
    } else if (is("printer-is-accepting-jobs")) {
        m_AcceptingJobs = ippGetBoolean(attr, 0);
    } else if (is("printer-uri")) {
        m_Uri = firstText(attr);
    } else if (is("printer-uri-supported")) {
        m_Uri = firstText(attr);
        appendTexts(m_URIs, attr);
    } else if (is("copies-supported")) {
        int upper = 0;
        m_CopiesMin = ippGetRange(attr, 0, &upper);
        m_CopiesMax = upper;
    } else if (is("copies-default")) {
        m_CopiesDefault = ippGetInteger(attr, 0);
    } else if (is("page-ranges-supported")) {
        m_PageRangesSupported = ippGetBoolean(attr, 0);
    } else if (is("orientation-requested-supported")) {
        const int count = ippGetCount(attr);
        for (int i = 0; i < count; ++i)
            m_OrientationsSupported.append(ippGetInteger(attr, i));
    } else if (is("orientation-requested-default")) {
        m_OrientationDefault = ippGetInteger(attr, 0);
    }
}

QString CUPSPrinter::stateText() const
{
    QString state;
    switch (m_State) {
    case IPP_PSTATE_IDLE: state = tr("idle"); break;
    case IPP_PSTATE_PROCESSING: state = tr("processing"); break;
    case IPP_PSTATE_STOPPED: state = tr("stopped"); break;
    default: state = tr("unknown"); break;
    }
    return state + QLatin1String(", ") + (m_AcceptingJobs ? tr("accepting jobs") : tr("rejecting jobs"));
}

QString CUPSPrinter::dump() const
{
    return QStringLiteral("\n\tName/Description/Location: <%1/%2/%3>"
                          "\n\tInfo/ModelInfo: <%4/%5>"
                          "\n\tLocalURI: <%6>"
                          "\n\tUri: <%7>"
                          "\n\tURIs: <%8>"
                          "\n\tPrinterType: 0x%9")
        .arg(m_Name, m_Description, m_Location, m_Info, m_ModelInfo, m_LocalURI, m_Uri,
             m_URIs.join(QLatin1String(", ")), QString::asprintf("%.8x", m_PrinterType));
}
