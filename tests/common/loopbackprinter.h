#ifndef QUEUEWIZ_LOOPBACKPRINTER_H
#define QUEUEWIZ_LOOPBACKPRINTER_H

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QTcpServer>

class QTcpSocket;

// A network printer on 127.0.0.1 (port chosen by the system) for queues with
// the device URI deviceUri(): the scheduler's socket backend opens one
// connection per job, and the bytes received until it closes are that job.
// Jobs arrive while an event loop runs, e.g. inside waitForJob().
class LoopbackPrinter : public QObject
{
    Q_OBJECT

public:
    explicit LoopbackPrinter(QObject *parent = nullptr);
    ~LoopbackPrinter() override;

    QString deviceUri() const;  // "socket://127.0.0.1:PORT"

    // The next job that no earlier call returned, waiting for it up to
    // timeoutMs; a null QByteArray when none completes in time.
    QByteArray waitForJob(int timeoutMs = 30000);

signals:
    void jobReceived(const QByteArray &data);

private:
    void onNewConnection();
    void onReadyRead(QTcpSocket *socket);
    void onClosed(QTcpSocket *socket);

    QTcpServer m_server;
    QHash<QTcpSocket *, QByteArray> m_open;
    QList<QByteArray> m_jobs;
    int m_returned = 0;
};

#endif
