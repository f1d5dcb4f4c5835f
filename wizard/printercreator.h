#ifndef QUEUEWIZ_PRINTERCREATOR_H
#define QUEUEWIZ_PRINTERCREATOR_H

#include "ppdfileptr.h"
#include "tempfile.h"

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

class CUPSManager;
class CUPSPrinter;

// What the wizard does on the scheduler once the user has chosen port,
// driver and name: the name check, the new queue, the paper size of the
// user's country and the default printer. Each call blocks until it is done
// (the wizard shows the wait cursor meanwhile); failures are results.
class PrinterCreator
{
public:
    // The program that sets a queue's paper size: "lpadmin" from the PATH.
    static QString m_LpadminProgram;
    // How long lpadmin is waited for: polls of 100 ms.
    static constexpr int LpadminPolls = 50;
    static constexpr int LpadminPollMs = 100;

    // What one commit did on the scheduler.
    struct Result
    {
        enum Outcome {
            Created,       // the queue exists; see paperSet and madeDefault
            NameInUse,     // a queue of that name exists; nothing was sent
            NameUnchecked, // the queues could not be listed; nothing was sent
            NotCreated     // the scheduler refused or stopped answering
        };
        Outcome outcome = NotCreated;
        // Why the scheduler refused, or why no answer came; empty on success.
        QString reason;
        // A queue this commit had begun was removed again.
        bool removed = false;
        bool paperSet = false;
        bool madeDefault = false;
    };

    explicit PrinterCreator(CUPSManager &cups);

    // Checks the name, creates the queue, sets the paper size and makes the
    // queue the default printer, in that order. Stops at the first request
    // that got no answer, so that a stopped scheduler costs one timeout. A
    // queue left half-made by a failure is removed, at once when the
    // scheduler answers, else by the next commit.
    Result commit(const CUPSPrinter &printer, const char *paper);

    // Whether a queue with this name exists, letter case aside and whatever
    // its driver: the scheduler would overwrite "office" when asked to add
    // "Office". False with *listed false when the queues could not be listed.
    bool nameInUse(const QString &name, bool *listed) const;

    bool create(const CUPSPrinter &printer) const;
    // Whether a queue made with the scheduler's driverless model got its
    // driver: the scheduler builds it from the printer's answer after it
    // answered the request. Waits the request timeouts at most; *reason
    // then says why not.
    bool hasBuiltDriver(const QString &queue, QString *reason) const;
    static constexpr int DriverBuildWaitMs = 13000;
    static constexpr int DriverBuildPollMs = 250;

    // Whether the default page size of the queue's driver is paper; a
    // driver file that can't be fetched or read counts as no.
    bool isPaperDefault(const QString &queue, const char *paper) const;
    // Makes paper the queue's default page size unless it is already: with
    // lpadmin, started detached and waited for about five seconds at most
    // (it goes on after that, also once the wizard has quit, and the options
    // dialog waits for it), and when the paper is still not the default
    // then, with setPaperInDriver(). True when the paper is the default.
    bool applyPaperSize(const QString &queue, const char *paper) const;
    // Uploads the queue's PPD with paper as the PageSize and PageRegion
    // default, through this program's authenticated connection, unless
    // paper is the default already. False when the driver has no such paper
    // or the scheduler refused.
    bool setPaperInDriver(const QString &queue, const char *paper) const;

    // Makes the queue the scheduler's default printer, through the first of
    // its URIs; false when it is not listed or the scheduler refused.
    bool makeDefault(const QString &queue) const;

    // The package's test page program below rootDir, "bin/printertest" or
    // else "install/printertest"; empty when there is neither.
    static QString testPageProgram(const QString &rootDir);

    // The environment for programs that talk to the scheduler: the server
    // this process uses, which may have been chosen by cupsSetServer()
    // rather than by the environment.
    static QProcessEnvironment cupsClientEnvironment();

private:
    // Removes the queues earlier commits left half-made; false when one is
    // still there.
    bool removeUnfinished(Result &result);
    // After a failed create: removes what the failure left of the queue.
    void undoCreate(const QString &name, Result &result);
    // Deletes the queue if it exists; false when it is still there, or
    // the scheduler did not answer.
    bool removeIfThere(const QString &name, bool *removed) const;
    // A fetched driver file read, its defaults marked; null when there is
    // none or it can't be read.
    static PpdFilePtr openDriver(const TempFile &copy);

    CUPSManager &m_cups;
    // Queues this wizard began that may exist half-made: the scheduler
    // stopped answering before they were finished or removed.
    QStringList m_unfinished;
};

#endif
