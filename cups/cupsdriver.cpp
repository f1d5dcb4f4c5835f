#include "cupsdriver.h"

#include "ipplog.h"

#include <cstring>

CUPSDriver::CUPSDriver(const QString &manufacturer, const QString &model, const QString &driverFile,
                       const QString &language)
    : m_Manufacturer(manufacturer)
    , m_Model(model)
    , m_DriverFile(driverFile)
    , m_Language(language)
{
}

void CUPSDriver::fillFrom(ipp_attribute_t *attr)
{
    IPPLog::dumpAttribute(IPPLog::Driver, attr);
    const char *name = ippGetName(attr);
    if (!name || ippGetGroupTag(attr) != IPP_TAG_PRINTER)
        return;
    const QString value = QString::fromUtf8(ippGetString(attr, 0, nullptr));
    if (!strcmp(name, "ppd-make"))
        m_Manufacturer = value;
    else if (!strcmp(name, "ppd-make-and-model"))
        m_Model = value;
    else if (!strcmp(name, "ppd-name"))
        m_DriverFile = value;
    else if (!strcmp(name, "ppd-natural-language"))
        m_Language = value;
}

bool CUPSDriver::matchesVendor(const QString &filter) const
{
    if (filter.isEmpty())
        return true;
    return m_Manufacturer.contains(filter, Qt::CaseInsensitive) || m_Model.contains(filter, Qt::CaseInsensitive);
}

QString CUPSDriver::toString() const
{
    return QStringLiteral("Manufacturer=<%1> Model=<%2> DriverFile=<%3> Language=<%4>")
        .arg(m_Manufacturer, m_Model, m_DriverFile, m_Language);
}

bool CUPSDriver::operator==(const CUPSDriver &other) const
{
    return m_Manufacturer == other.m_Manufacturer && m_Model == other.m_Model
        && m_DriverFile == other.m_DriverFile && m_Language == other.m_Language;
}
