#ifndef QUEUEWIZ_FINISHSTEP_H
#define QUEUEWIZ_FINISHSTEP_H

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

class QLabel;
class QProcess;
class QPushButton;
class QWidget;

// The finish page: what was created, the test page and the driver options
// of the new queue.
class FinishStep : public QObject
{
    Q_OBJECT

public:
    explicit FinishStep(QWidget *wizard);
    ~FinishStep() override;

    bool bind(QWidget *form);
    // The summary of the queue made, notes given as HTML.
    void showCreated(const QString &name, const QString &model, const QString &deviceUri, const QString &notes);

    // Runs the package's test page program for queue, one at a time.
    void printTestPage(const QString &queue);
    void testPageProgramEnded();
    void openOptions(const QString &queue);

    // How long a test page is followed on the scheduler before the page
    // says it has not printed yet: a minute, or the seconds in the
    // environment variable QUEUEWIZ_TESTPAGE_WAIT.
    static int testPageWaitMs();
    static constexpr int FollowPollMs = 500;

    QPushButton *testButton() const { return m_pTestButton; }
    QPushButton *optionsButton() const { return m_pOptionsButton; }

signals:
    void testPageProgramFinished();

private:
    // Asks the scheduler how the test page's job is doing, until it ended
    // or the wait is over.
    void followJob();
    void endFollowing(const QString &text, bool cancellable);
    void cancelJob();
    // The printer's own message and the job's reasons, in words.
    QString reasons(const QStringList &jobReasons);

    QWidget *m_wizard;
    QLabel *m_pFinishText = nullptr;
    QPushButton *m_pTestButton = nullptr;
    QPushButton *m_pOptionsButton = nullptr;
    // Optional: a form without them is not told how the test page did.
    QLabel *m_pTestStatusLabel = nullptr;
    QPushButton *m_pCancelTestButton = nullptr;
    QString m_finishTemplate;  // %1 name, %2 model, %3 device URI, %4 notes
    // The running test page program, null when none runs.
    QProcess *m_pTestPrinterProcess = nullptr;
    // The test page's job while it is followed, 0 when none is.
    QString m_testQueue;
    int m_testJob = 0;
    QTimer m_followTimer;
    QElapsedTimer m_followClock;
    int m_followWaitMs = 0;
};

#endif
