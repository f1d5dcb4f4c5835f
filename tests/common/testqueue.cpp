#include "testqueue.h"

#include "cupssandbox.h"

TestQueue::TestQueue(const QString &name, const QString &deviceUri, const QString &ppd, bool enabled)
    : m_name(name)
{
    QStringList command{QStringLiteral("lpadmin"), QStringLiteral("-p"), name, QStringLiteral("-v"), deviceUri,
                        QStringLiteral("-m"), ppd};
    if (enabled)
        command << QStringLiteral("-E");
    m_made = CupsSandbox::run(command, &m_error) == 0;
}

TestQueue::~TestQueue()
{
    CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-x"), m_name});
}
