#include "xvfbserver.h"

#include <QDeadlineTimer>

XvfbServer::~XvfbServer()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.terminate();
        if (!m_process.waitForFinished(5000)) {
            m_process.kill();
            m_process.waitForFinished(5000);
        }
    }
}

bool XvfbServer::start()
{
    // With -displayfd the server takes the first free display and writes its
    // number to that descriptor once it accepts connections.
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(QStringLiteral("Xvfb"),
                    { QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                      QStringLiteral("tcp"), QStringLiteral("-screen"), QStringLiteral("0"),
                      QStringLiteral("640x480x24") });
    if (!m_process.waitForStarted(10000)) {
        m_error = QStringLiteral("Xvfb did not start: ") + m_process.errorString();
        return false;
    }
    QByteArray output;
    const QDeadlineTimer deadline(30000);
    while (!output.contains('\n')) {
        if (deadline.hasExpired() || !m_process.waitForReadyRead(int(deadline.remainingTime()))) {
            m_error = QStringLiteral("Xvfb gave no display number");
            return false;
        }
        output += m_process.readAllStandardOutput();
    }
    m_display = QLatin1Char(':') + QString::fromLatin1(output.trimmed());
    return true;
}
