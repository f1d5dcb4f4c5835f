#ifndef QUEUEWIZ_DESTLIST_H
#define QUEUEWIZ_DESTLIST_H

#include <cups/cups.h>

#include <QString>

// The user's destination list (lpoptions) for the span of one edit:
// read with cupsGetDests, written back with save(), freed on destruction.
// libcups 2.4 writes it to $HOME/.cups/lpoptions, for root as well.
class DestList
{
public:
    DestList();
    ~DestList();
    DestList(const DestList &) = delete;
    DestList &operator=(const DestList &) = delete;

    int count() const { return m_count; }
    // The destination without instance, or nullptr. Invalidated by add().
    cups_dest_t *find(const QString &name) const;
    // Adds the destination unless it is there already; returns it.
    cups_dest_t *add(const QString &name);
    // Drops the destination and all its instances; false when none was there.
    bool remove(const QString &name);
    void save();

private:
    int m_count = 0;
    cups_dest_t *m_dests = nullptr;
};

#endif
