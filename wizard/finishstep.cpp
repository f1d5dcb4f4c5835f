#include "finishstep.h"

#include "cupsmanager.h"
#include "oemconfig.h"
#include "ppddialog.h"
#include "printercreator.h"
#include "softassert.h"
#include "waitcursor.h"

#include <QLabel>
#include <QProcess>
#include <QPushButton>

#include <unistd.h>

FinishStep::FinishStep(QWidget *wizard)
    : QObject(wizard)
    , m_wizard(wizard)
{
}

FinishStep::~FinishStep()
{
    // A test page on its way is not cut off by closing the wizard: deleting
    // the process object would kill the program, so the object stays until
    // the program has ended, or for good when this process quits first.
    if (m_pTestPrinterProcess) {
        m_pTestPrinterProcess->disconnect(this);
        m_pTestPrinterProcess->setParent(nullptr);
        connect(m_pTestPrinterProcess, &QProcess::finished, m_pTestPrinterProcess, &QObject::deleteLater);
    }
}

bool FinishStep::bind(QWidget *form)
{
    m_pFinishText = form->findChild<QLabel *>(QStringLiteral("FinishText"));
    m_pTestButton = form->findChild<QPushButton *>(QStringLiteral("TestButton"));
    m_pOptionsButton = form->findChild<QPushButton *>(QStringLiteral("OptionsButton"));
    if (!m_pFinishText || !m_pTestButton || !m_pOptionsButton)
        return false;
    m_finishTemplate = m_pFinishText->text();
    return true;
}

void FinishStep::showCreated(const QString &name, const QString &model, const QString &deviceUri,
                             const QString &notes)
{
    m_pFinishText->setText(
        m_finishTemplate.arg(name.toHtmlEscaped(), model.toHtmlEscaped(), deviceUri.toHtmlEscaped(), notes));
}

void FinishStep::printTestPage(const QString &queue)
{
    // One test page at a time.
    if (!softAssert(!m_pTestPrinterProcess, "!m_pTestPrinterProcess", "AddPrinterWizard", 672))
        return;

    CUPSPrinter printer;
    bool found = false;
    {
        WaitCursor wait;
        found = CUPSManager::m_CUPSManagerInstance.findPrinter(queue, printer);
    }
    if (!found)
        return;
    const QString program = PrinterCreator::testPageProgram(QString::fromLocal8Bit(actx.rootDir));
    if (program.isEmpty())
        return;

    auto *process = new QProcess(this);
    process->setProcessEnvironment(PrinterCreator::cupsClientEnvironment());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A session of its own: no terminal to stop it or to end it with.
    process->setChildProcessModifier([] { ::setsid(); });
    connect(process, &QProcess::finished, this, &FinishStep::testPageProgramFinished);
    process->start(program, {printer.Name()});
    if (!process->waitForStarted()) {
        delete process;
        return;
    }
    m_pTestPrinterProcess = process;
    m_pTestButton->setEnabled(false);
}

// The test page program exits with 1 when the scheduler took the page.
void FinishStep::testPageProgramEnded()
{
    if (!m_pTestPrinterProcess)
        return;
    if (m_pTestPrinterProcess->exitStatus() != QProcess::NormalExit || m_pTestPrinterProcess->exitCode() == 0)
        qWarning("TestPrinter failed\n");
    m_pTestPrinterProcess->deleteLater();
    m_pTestPrinterProcess = nullptr;
    m_pTestButton->setEnabled(true);
}

void FinishStep::openOptions(const QString &queue)
{
    PPDDialog::runForPrinter(queue, m_wizard);
}
