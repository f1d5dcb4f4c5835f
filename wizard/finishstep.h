#ifndef QUEUEWIZ_FINISHSTEP_H
#define QUEUEWIZ_FINISHSTEP_H

#include <QObject>
#include <QString>

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

    QPushButton *testButton() const { return m_pTestButton; }
    QPushButton *optionsButton() const { return m_pOptionsButton; }

signals:
    void testPageProgramFinished();

private:
    QWidget *m_wizard;
    QLabel *m_pFinishText = nullptr;
    QPushButton *m_pTestButton = nullptr;
    QPushButton *m_pOptionsButton = nullptr;
    QString m_finishTemplate;  // %1 name, %2 model, %3 device URI, %4 notes
    // The running test page program, null when none runs.
    QProcess *m_pTestPrinterProcess = nullptr;
};

#endif
