#include "cupsclass.h"

#include "ipplog.h"

#include <cstring>

CUPSClass::CUPSClass(const QString &name)
    : CUPSPrinter(name)
{
}

void CUPSClass::fillFrom(ipp_attribute_t *attr)
{
    IPPLog::dumpAttribute(IPPLog::Class, attr);
    const char *name = ippGetName(attr);
    if (!name || ippGetGroupTag(attr) != IPP_TAG_PRINTER)
        return;
    QStringList *members = nullptr;
    if (!strcmp(name, "member-uris"))
        members = &m_MemberURIs;
    else if (!strcmp(name, "member-names"))
        members = &m_MemberNames;
    if (!members) {
        CUPSPrinter::fillFrom(attr);
        return;
    }
    const int count = ippGetCount(attr);
    for (int i = 0; i < count; ++i)
        members->append(QString::fromUtf8(ippGetString(attr, i, nullptr)));
}

QString CUPSClass::dump() const
{
    return QStringLiteral("%1\n\tprinters: <%2>").arg(CUPSPrinter::dump(), m_MemberNames.join(QLatin1String(", ")));
}
