#include "finishstep.h"

#include "cupsmanager.h"
#include "oemconfig.h"
#include "ppddialog.h"
#include "printercreator.h"
#include "softassert.h"
#include "waitcursor.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>

#include <unistd.h>

FinishStep::FinishStep(QWidget *wizard)
    : QObject(wizard)
    , m_wizard(wizard)
{
    m_followTimer.setInterval(FollowPollMs);
    connect(&m_followTimer, &QTimer::timeout, this, &FinishStep::followJob);
}

int FinishStep::testPageWaitMs()
{
    bool ok = false;
    const int seconds = qEnvironmentVariableIntValue("QUEUEWIZ_TESTPAGE_WAIT", &ok);
    return (ok && seconds >= 0 ? seconds : 60) * 1000;
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
    m_pTestStatusLabel = form->findChild<QLabel *>(QStringLiteral("TestStatusLabel"));
    m_pCancelTestButton = form->findChild<QPushButton *>(QStringLiteral("CancelTestJobButton"));
    if (m_pTestStatusLabel)
        m_pTestStatusLabel->hide();
    if (m_pCancelTestButton) {
        m_pCancelTestButton->hide();
        connect(m_pCancelTestButton, &QPushButton::clicked, this, &FinishStep::cancelJob);
    }
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
    m_testQueue = printer.Name();
    m_pTestButton->setEnabled(false);
    if (m_pTestStatusLabel)
        m_pTestStatusLabel->hide();
    if (m_pCancelTestButton)
        m_pCancelTestButton->hide();
}

// The test page program exits with 1 when the scheduler took the page.
void FinishStep::testPageProgramEnded()
{
    if (!m_pTestPrinterProcess)
        return;
    const bool sent =
        m_pTestPrinterProcess->exitStatus() == QProcess::NormalExit && m_pTestPrinterProcess->exitCode() != 0;
    if (!sent)
        qWarning("TestPrinter failed\n");
    // "printertest: job N sent to QUEUE"
    static const QRegularExpression jobLine(QStringLiteral("job (\\d+) sent to "));
    const QRegularExpressionMatch match =
        jobLine.match(QString::fromLocal8Bit(m_pTestPrinterProcess->readAllStandardOutput()));
    m_pTestPrinterProcess->deleteLater();
    m_pTestPrinterProcess = nullptr;
    m_testJob = sent && match.hasMatch() && m_pTestStatusLabel ? match.captured(1).toInt() : 0;
    if (!m_testJob) {
        m_pTestButton->setEnabled(true);
        return;
    }
    // The page was handed over; whether it comes out is the scheduler's to
    // tell. Asked by a timer, so that the window stays alive meanwhile.
    m_pTestStatusLabel->setText(QCoreApplication::translate("AddPrinterWizard", "Waiting for the test page to print..."));
    m_pTestStatusLabel->show();
    m_followWaitMs = testPageWaitMs();
    m_followClock.start();
    m_followTimer.start();
}

// The wizard's words, in the wizard's catalogue context.
void FinishStep::followJob()
{
    CUPSJob job;
    const bool found = CUPSManager::m_CUPSManagerInstance.findJob(m_testQueue, m_testJob, job);
    const int state = found ? job.State() : 0;
    if (state == IPP_JSTATE_COMPLETED)
        endFollowing(QCoreApplication::translate("AddPrinterWizard", "The test page has been printed."), false);
    else if (state >= IPP_JSTATE_STOPPED)
        endFollowing(QCoreApplication::translate("AddPrinterWizard", "The test page did not print: %1").arg(reasons(job.StateReasons())),
                     state == IPP_JSTATE_STOPPED);
    else if (m_followClock.hasExpired(m_followWaitMs))
        endFollowing(QCoreApplication::translate("AddPrinterWizard", "The test page has not printed yet: %1").arg(reasons(job.StateReasons())), true);
}

void FinishStep::endFollowing(const QString &text, bool cancellable)
{
    m_followTimer.stop();
    m_pTestStatusLabel->setText(text);
    if (m_pCancelTestButton)
        m_pCancelTestButton->setVisible(cancellable);
    if (!cancellable)
        m_testJob = 0;
    m_pTestButton->setEnabled(true);
}

void FinishStep::cancelJob()
{
    if (!m_testJob)
        return;
    if (CUPSManager::m_CUPSManagerInstance.cancelJob(m_testQueue, m_testJob))
        endFollowing(QCoreApplication::translate("AddPrinterWizard", "The test page was canceled."), false);
    else
        m_pTestStatusLabel->setText(QCoreApplication::translate("AddPrinterWizard", "The test page could not be canceled: %1")
                                        .arg(CUPSManager::m_CUPSManagerInstance.lastStatusText()));
}

QString FinishStep::reasons(const QStringList &jobReasons)
{
    QStringList words;
    CUPSPrinter printer;
    if (CUPSManager::m_CUPSManagerInstance.findPrinter(m_testQueue, printer) && !printer.StateMessage().isEmpty())
        words << printer.StateMessage();
    for (const QString &reason : jobReasons) {
        if (reason == QLatin1String("printer-stopped") || reason == QLatin1String("printer-stopped-partly"))
            words << QCoreApplication::translate("AddPrinterWizard", "the printer is stopped");
        else if (reason.startsWith(QLatin1String("job-canceled")))
            words << QCoreApplication::translate("AddPrinterWizard", "the job was canceled");
        else if (reason == QLatin1String("aborted-by-system") || reason == QLatin1String("job-completed-with-errors"))
            words << QCoreApplication::translate("AddPrinterWizard", "the printing system gave up on the job");
        else if (reason.startsWith(QLatin1String("job-hold")))
            words << QCoreApplication::translate("AddPrinterWizard", "the job is held");
        // The scheduler's word for a job on its way says nothing more.
        else if (reason != QLatin1String("none") && reason != QLatin1String("job-queued")
                 && reason != QLatin1String("job-printing") && reason != QLatin1String("job-incoming"))
            words << QString(reason).replace(QLatin1Char('-'), QLatin1Char(' '));
    }
    return words.isEmpty() ? QCoreApplication::translate("AddPrinterWizard", "the printing service gave no reason") : words.join(QLatin1String("; "));
}

void FinishStep::openOptions(const QString &queue)
{
    PPDDialog::runForPrinter(queue, m_wizard);
}
