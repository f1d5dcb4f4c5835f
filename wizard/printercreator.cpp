#include "printercreator.h"

#include "cupsmanager.h"
#include "cupsprinter.h"
#include "ipprequest.h"
#include "pendingppdwriters.h"
#include "ppdfileptr.h"
#include "ppdrewriter.h"
#include "tempfile.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QThread>

#include <cups/cups.h>
#include <cups/ppd.h>

QString PrinterCreator::m_LpadminProgram = QStringLiteral("lpadmin");

PrinterCreator::PrinterCreator(CUPSManager &cups)
    : m_cups(cups)
{
}

PrinterCreator::Result PrinterCreator::commit(const CUPSPrinter &printer, const char *paper)
{
    Result result;
    const QString name = printer.Name();
    if (!removeUnfinished(result))
        return result;

    bool listed = false;
    if (nameInUse(name, &listed)) {
        result.outcome = Result::NameInUse;
        return result;
    }
    if (!listed) {
        // Taking an unknown answer for a free name would overwrite a queue.
        result.outcome = Result::NameUnchecked;
        result.reason = m_cups.lastStatusText();
        return result;
    }

    if (!create(printer)) {
        result.reason = m_cups.lastStatusText();
        undoCreate(name, result);
        return result;
    }
    if (printer.PPDName() == QLatin1String("everywhere") && !hasBuiltDriver(name, &result.reason)) {
        undoCreate(name, result);
        return result;
    }
    result.outcome = Result::Created;

    // The queue works from here on; what follows only refines it.
    result.paperSet = applyPaperSize(name, paper);
    if (!m_cups.answered())
        return result;
    result.madeDefault = makeDefault(name);
    return result;
}

bool PrinterCreator::removeUnfinished(Result &result)
{
    while (!m_unfinished.isEmpty()) {
        bool removed = false;
        if (!removeIfThere(m_unfinished.first(), &removed)) {
            result.reason = m_cups.lastStatusText();
            return false;
        }
        m_unfinished.removeFirst();
    }
    return true;
}

void PrinterCreator::undoCreate(const QString &name, Result &result)
{
    // The name was free before this commit, so a queue of that name now is
    // the one it began. Without an answer nothing can be removed now; the
    // request may still take effect once the scheduler goes on.
    if (!m_cups.answered() || !removeIfThere(name, &result.removed))
        m_unfinished << name;
}

bool PrinterCreator::removeIfThere(const QString &name, bool *removed) const
{
    CUPSPrinter found;
    if (!m_cups.findPrinter(name, found))
        return m_cups.answered();
    *removed = m_cups.deletePrinter(name);
    return *removed;
}

bool PrinterCreator::nameInUse(const QString &name, bool *listed) const
{
    QMap<QString, CUPSPrinter> printers;
    *listed = m_cups.listPrinters(printers);
    if (!*listed)
        return false;
    for (auto it = printers.cbegin(); it != printers.cend(); ++it) {
        if (it.key().compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

bool PrinterCreator::create(const CUPSPrinter &printer) const
{
    return m_cups.addPrinter(printer);
}

bool PrinterCreator::hasBuiltDriver(const QString &queue, QString *reason) const
{
    QElapsedTimer clock;
    clock.start();
    CUPSPrinter found;
    do {
        if (!m_cups.findPrinter(queue, found)) {
            *reason = m_cups.lastStatusText();
            return false;
        }
        // Until its driver is there, the queue passes data on unchanged.
        const QString model = found.ModelInfo();
        if (!model.isEmpty() && model != QLatin1String("Local Raw Printer"))
            return true;
        QThread::msleep(DriverBuildPollMs);
    } while (!clock.hasExpired(DriverBuildWaitMs));
    *reason = found.StateMessage().isEmpty()
        ? QCoreApplication::translate("AddPrinterWizard", "The printer did not say what it can do.")
        : found.StateMessage();
    return false;
}

PpdFilePtr PrinterCreator::openDriver(const TempFile &copy)
{
    PpdFilePtr ppd(copy.isNull() ? nullptr : ppdOpenFile(QFile::encodeName(copy.path()).constData()));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}

bool PrinterCreator::isPaperDefault(const QString &queue, const char *paper) const
{
    const TempFile copy = m_cups.fetchPPD(queue);
    const PpdFilePtr ppd = openDriver(copy);
    return ppd && ppdIsMarked(ppd.get(), "PageSize", paper) != 0;
}

bool PrinterCreator::applyPaperSize(const QString &queue, const char *paper) const
{
    if (isPaperDefault(queue, paper))
        return true;

    const QString size = QString::fromLatin1(paper);
    // Detached: in a session of its own, with no terminal to ask a password
    // on and no standard input, so that it can neither stop this process
    // nor wait unseen; and the wizard's exit does not end it.
    QProcess lpadmin;
    lpadmin.setProgram(m_LpadminProgram);
    lpadmin.setArguments({QStringLiteral("-p"), queue, QStringLiteral("-o"), QStringLiteral("PageSize=") + size,
                          QStringLiteral("-o"), QStringLiteral("PageRegion=") + size});
    lpadmin.setProcessEnvironment(cupsClientEnvironment());
    lpadmin.setStandardInputFile(QProcess::nullDevice());
    lpadmin.setStandardOutputFile(QProcess::nullDevice());
    lpadmin.setStandardErrorFile(QProcess::nullDevice());
    qint64 pid = 0;
    if (lpadmin.startDetached(&pid)) {
        for (int poll = 0; poll < LpadminPolls && PendingPPDWriters::isRunning(pid); ++poll)
            QThread::msleep(LpadminPollMs);
        // Still running, it would store its copy of the driver file over
        // the options the user may save next: they wait for it.
        if (PendingPPDWriters::isRunning(pid))
            PendingPPDWriters::add(queue, pid);
    } else {
        qWarning("%s could not be started", qPrintable(m_LpadminProgram));
    }
    // lpadmin may have been refused (it can't ask for a password), be slow,
    // or be missing: unless it has set the paper, the driver file is changed
    // through this program's own, authenticated connection.
    return setPaperInDriver(queue, paper);
}

bool PrinterCreator::setPaperInDriver(const QString &queue, const char *paper) const
{
    const TempFile fetched = m_cups.fetchPPD(queue);
    const PpdFilePtr ppd = openDriver(fetched);
    if (ppd && ppdIsMarked(ppd.get(), "PageSize", paper))
        return true;
    if (!ppd)
        return false;
    const TempFile sized = PPDRewriter(ppd.get()).paperSizeCopy(fetched.path(), paper);
    return !sized.isNull() && m_cups.attachDriverFile(queue, sized.path());
}

bool PrinterCreator::makeDefault(const QString &queue) const
{
    QMap<QString, CUPSPrinter> printers;
    if (!m_cups.listPrinters(printers))
        return false;
    const auto it = printers.constFind(queue);
    if (it == printers.cend())
        return false;
    QString uri = it->URIs().value(0);
    if (uri.isEmpty())
        uri = CUPSManager::printerUri(queue);
    return m_cups.setDefaultPrinter(uri);
}

QString PrinterCreator::testPageProgram(const QString &rootDir)
{
    for (const char *path : {"/bin/printertest", "/install/printertest"}) {
        const QString program = rootDir + QLatin1String(path);
        if (QFileInfo::exists(program))
            return program;
    }
    return QString();
}

QProcessEnvironment PrinterCreator::cupsClientEnvironment()
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    const QString server = IPPRequest::serverAddress();
    if (server.isEmpty())
        return env;
    env.insert(QStringLiteral("CUPS_SERVER"), server);
    return env;
}
