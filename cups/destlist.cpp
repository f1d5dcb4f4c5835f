#include "destlist.h"

DestList::DestList()
{
    m_count = cupsGetDests(&m_dests);
}

DestList::~DestList()
{
    cupsFreeDests(m_count, m_dests);
}

cups_dest_t *DestList::find(const QString &name) const
{
    return cupsGetDest(name.toUtf8().constData(), nullptr, m_count, m_dests);
}

cups_dest_t *DestList::add(const QString &name)
{
    const QByteArray utf8 = name.toUtf8();
    m_count = cupsAddDest(utf8.constData(), nullptr, m_count, &m_dests);
    return cupsGetDest(utf8.constData(), nullptr, m_count, m_dests);
}

bool DestList::remove(const QString &name)
{
    const QByteArray utf8 = name.toUtf8();
    bool removed = false;
    // cupsRemoveDest takes one instance at a time; the queue goes with all of them.
    for (int i = m_count - 1; i >= 0; --i) {
        if (utf8 == m_dests[i].name) {
            const QByteArray instance(m_dests[i].instance);
            m_count = cupsRemoveDest(utf8.constData(), instance.isNull() ? nullptr : instance.constData(),
                                     m_count, &m_dests);
            removed = true;
        }
    }
    return removed;
}

void DestList::save()
{
    cupsSetDests(m_count, m_dests);
}
