#include "ppddialog.h"

#include "cupsmanager.h"
#include "cupsprinter.h"
#include "ipprequest.h"
#include "mimesourcefactory_ppdwidgets.h"
#include "pendingppdwriters.h"
#include "ppdrewriter.h"
#include "softassert.h"
#include "tempfile.h"

#include <cups/cups.h>

#include <QFile>
#include <QMessageBox>
#include <QPushButton>

PPDDialog::PPDDialog(const QString &printer, QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : PPDDialogBase(parent, flags)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setModal(modal);
    connect(ppdOptionView, &PPDOptionView::optionChanged, this, &PPDDialog::setOkButtonState);
    if (!load(printer)) {
        QMessageBox box(QMessageBox::Critical, tr("Error!"), tr("Can't open PPD file!"), QMessageBox::NoButton,
                        parent);
        box.addButton(tr("Ok"), QMessageBox::AcceptRole);
        box.exec();
    }
}

PPDDialog::~PPDDialog()
{
    release();
}

bool PPDDialog::runForPrinter(const QString &printer, QWidget *parent)
{
    MimeSourceFactory_ppdwidgets::registerFactory();
    PPDDialog dialog(printer, parent, "PPDDialog", true);
    // The error has been shown; an empty dialog would only be in the way.
    if (!dialog.isLoaded())
        return false;
    return dialog.exec() == QDialog::Accepted;
}

QString PPDDialog::ppdFileName() const
{
    return m_ppdCopy ? m_ppdCopy->path() : QString();
}

bool PPDDialog::installableOptionsEditable() const
{
    return ppdOptionView->installableOptionsEditable();
}

void PPDDialog::setInstallableOptionsEditable(bool editable)
{
    ppdOptionView->setInstallableOptionsEditable(editable);
}

void PPDDialog::refresh()
{
    ppdTreeView->reload();
    ppdOptionView->setOption(ppdTreeView->currentItem());
}

void PPDDialog::setOkButtonState()
{
    OkButton->setEnabled(!ppdTreeView->hasConflicts());
}

void PPDDialog::accept()
{
    if (save()) {
        QDialog::accept();
        return;
    }
    QMessageBox box(QMessageBox::Critical, tr("Error!"), tr("Can't save results to PPD file!"),
                    QMessageBox::NoButton, this);
    // The scheduler's reason, when a request was what failed.
    const CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;
    if (manager.lastStatusText() != IPPRequest::statusText(IPP_STATUS_OK))
        box.setInformativeText(manager.lastStatusText());
    box.addButton(tr("Ok"), QMessageBox::AcceptRole);
    box.exec();
}

bool PPDDialog::load(const QString &printer)
{
    release();

    const QByteArray name = printer.toUtf8();
    // Bounded like every request: a stalled scheduler must not freeze the window.
    auto copy = std::make_unique<TempFile>(CUPSManager::m_CUPSManagerInstance.fetchPPD(printer));
    if (copy->isNull()) {
        qWarning("cupsGetPPD failed");
        return false;
    }
    PpdFilePtr ppd(ppdOpenFile(QFile::encodeName(copy->path()).constData()));
    if (!ppd) {
        qWarning("ppdOpenFile failed");
        return false;
    }

    m_ppdCopy = std::move(copy);
    m_ppd = std::move(ppd);
    ppdMarkDefaults(m_ppd.get());
    ppdTreeView->setPPD(m_ppd.get());
    setWindowTitle(tr("'%1' Properties").arg(printer));
    m_printer = printer;
    return true;
}

void PPDDialog::release()
{
    // The tree and the editor point into the PPD: empty them first.
    ppdOptionView->setOption(nullptr);
    ppdTreeView->setPPD(nullptr);
    m_ppd.reset();
    m_ppdCopy.reset();
    m_printer.clear();
}

bool PPDDialog::save()
{
    if (!softAssert(!m_printer.isEmpty(), "!printer().isEmpty()", "PPDDialog", 352)) {
        qWarning("Printer is missed");
        return false;
    }
    if (!m_ppd) {
        qWarning("PPD is missed");
        return false;
    }
    const QByteArray name = m_printer.toUtf8();

    CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;
    CUPSPrinter printer;
    if (!manager.findPrinter(m_printer, printer)) {
        qWarning("Failed to find printer <%s>", name.constData());
        return false;
    }

    // The server's current file is the source, not the copy that is open;
    // a program still changing it would store its own copy over ours.
    PendingPPDWriters::settle(m_printer);
    const TempFile source = manager.fetchPPD(m_printer);
    if (source.isNull()) {
        qWarning("Failed to get PPD for printer <%s>", name.constData());
        return false;
    }
    const TempFile output = PPDRewriter(m_ppd.get()).rewrittenCopy(source.path());
    if (output.isNull())
        return false;

    if (!manager.attachDriverFile(printer.Name(), output.path())) {
        qWarning("Failed to attach PPD file to printer <%s> (%s)", name.constData(),
                 qPrintable(manager.lastStatusText()));
        return false;
    }
    return true;
}
