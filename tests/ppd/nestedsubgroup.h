#ifndef QUEUEWIZ_NESTEDSUBGROUP_H
#define QUEUEWIZ_NESTEDSUBGROUP_H

#include <cups/ppd.h>

#include <QByteArray>

// libcups builds no subgroups from *OpenSubGroup. This moves the last options
// of a group, from index `first` on, into a subgroup of their own for as long
// as it lives; it must go before the PPD is closed.
class NestedSubgroup
{
public:
    NestedSubgroup(ppd_file_t *ppd, const QByteArray &groupName, int first, const QByteArray &text);
    ~NestedSubgroup();
    NestedSubgroup(const NestedSubgroup &) = delete;
    NestedSubgroup &operator=(const NestedSubgroup &) = delete;

    bool isValid() const { return m_group != nullptr; }

private:
    ppd_group_t *m_group = nullptr;
    int m_numOptions = 0;
    ppd_group_t m_subgroup{};
};

#endif
