#include "nestedsubgroup.h"

#include <cstring>

NestedSubgroup::NestedSubgroup(ppd_file_t *ppd, const QByteArray &groupName, int first, const QByteArray &text)
{
    ppd_group_t *group = nullptr;
    for (int i = 0; ppd && i < ppd->num_groups && !group; ++i) {
        if (groupName == ppd->groups[i].name)
            group = &ppd->groups[i];
    }
    if (!group || group->num_subgroups != 0 || first < 0 || first >= group->num_options)
        return;
    m_group = group;
    m_numOptions = group->num_options;
    std::strncpy(m_subgroup.text, text.constData(), sizeof m_subgroup.text - 1);
    std::strncpy(m_subgroup.name, text.constData(), sizeof m_subgroup.name - 1);
    m_subgroup.num_options = group->num_options - first;
    m_subgroup.options = group->options + first;
    group->num_options = first;
    group->num_subgroups = 1;
    group->subgroups = &m_subgroup;
}

NestedSubgroup::~NestedSubgroup()
{
    if (!m_group)
        return;
    m_group->num_options = m_numOptions;
    m_group->num_subgroups = 0;
    m_group->subgroups = nullptr;
}
