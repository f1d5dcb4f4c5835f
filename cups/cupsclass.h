#ifndef QUEUEWIZ_CUPSCLASS_H
#define QUEUEWIZ_CUPSCLASS_H

#include "cupsprinter.h"

// A class of printers: a queue record with its members. The two member lists
// are parallel: entry i of each names the same printer.
class CUPSClass : public CUPSPrinter
{
public:
    CUPSClass() = default;
    explicit CUPSClass(const QString &name);

    QStringList MemberURIs() const { return m_MemberURIs; }
    void setMemberURIs(const QStringList &value) { m_MemberURIs = value; }
    QStringList MemberNames() const { return m_MemberNames; }
    void setMemberNames(const QStringList &value) { m_MemberNames = value; }

    // Logs to "ipp_class.log"; takes "member-uris" and "member-names" and
    // passes any other printer-group attribute to the printer filling.
    void fillFrom(ipp_attribute_t *attr) override;
    QString dump() const override;

private:
    QStringList m_MemberURIs;
    QStringList m_MemberNames;
};

#endif
