#include "loopbackprinter.h"

#include <QEventLoop>
#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

LoopbackPrinter::LoopbackPrinter(QObject *parent)
    : QObject(parent)
{
    connect(&m_server, &QTcpServer::newConnection, this, &LoopbackPrinter::onNewConnection);
    if (!m_server.listen(QHostAddress::LocalHost, 0))
        qWarning("LoopbackPrinter: cannot listen on 127.0.0.1: %s", qPrintable(m_server.errorString()));
}

LoopbackPrinter::~LoopbackPrinter()
{
    // The sockets are children of the server; keep their signals from
    // reaching a half-destroyed printer.
    for (QTcpSocket *socket : m_open.keys())
        socket->disconnect(this);
}

QString LoopbackPrinter::deviceUri() const
{
    return QStringLiteral("socket://127.0.0.1:%1").arg(m_server.serverPort());
}

QByteArray LoopbackPrinter::waitForJob(int timeoutMs)
{
    if (m_returned >= m_jobs.size()) {
        QEventLoop loop;
        QTimer timer;
        timer.setSingleShot(true);
        connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        connect(this, &LoopbackPrinter::jobReceived, &loop, &QEventLoop::quit);
        timer.start(timeoutMs);
        loop.exec();
    }
    if (m_returned >= m_jobs.size())
        return QByteArray();
    return m_jobs.at(m_returned++);
}

void LoopbackPrinter::onNewConnection()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        m_open.insert(socket, QByteArray(""));
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { onReadyRead(socket); });
        // The backend half-closes its side after the last byte; Qt then
        // closes ours, which tells the backend the printer has finished.
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] { onClosed(socket); });
        connect(socket, &QTcpSocket::errorOccurred, this, [this, socket](QAbstractSocket::SocketError) {
            if (socket->state() == QAbstractSocket::UnconnectedState)
                onClosed(socket);
        });
        if (socket->state() != QAbstractSocket::ConnectedState)
            onClosed(socket);
    }
}

void LoopbackPrinter::onReadyRead(QTcpSocket *socket)
{
    auto it = m_open.find(socket);
    if (it != m_open.end())
        it->append(socket->readAll());
}

void LoopbackPrinter::onClosed(QTcpSocket *socket)
{
    auto it = m_open.find(socket);
    if (it == m_open.end())
        return;
    // Whatever arrived together with the close.
    it->append(socket->readAll());
    const QByteArray data = *it;
    m_open.erase(it);
    socket->deleteLater();
    m_jobs.append(data);
    emit jobReceived(data);
}
