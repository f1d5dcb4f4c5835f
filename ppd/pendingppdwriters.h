#ifndef QUEUEWIZ_PENDINGPPDWRITERS_H
#define QUEUEWIZ_PENDINGPPDWRITERS_H

#include <QString>

// Programs this process started that may still store a queue's PPD on the
// scheduler: lpadmin, setting the new queue's paper size, goes on when the
// commit stops waiting for it. Such a program fetches the PPD, changes it
// and sends it back, so finishing late it would put back what it fetched
// over the driver options the user saved meanwhile. Whoever stores a PPD
// settles the queue's writers first.
class PendingPPDWriters
{
public:
    // How long settle() waits before it ends a writer.
    static constexpr int SettleMs = 5000;
    static constexpr int PollMs = 100;

    // Notes a program, started in a session of its own, that may store the
    // queue's PPD.
    static void add(const QString &queue, qint64 pid);
    // Waits up to timeoutMs for the queue's writers to end, then ends those
    // still running, with whatever they started.
    static void settle(const QString &queue, int timeoutMs = SettleMs);
    // Whether the process pid has not ended yet; a zombie counts as ended.
    static bool isRunning(qint64 pid);
};

#endif
