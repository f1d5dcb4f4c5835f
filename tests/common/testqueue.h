#ifndef QUEUEWIZ_TESTQUEUE_H
#define QUEUEWIZ_TESTQUEUE_H

#include <QString>

// A queue made with lpadmin on the scheduler this process uses, removed
// again when the object goes. ppd is a ppd-name of the catalogue.
class TestQueue
{
public:
    TestQueue(const QString &name, const QString &deviceUri, const QString &ppd, bool enabled = true);
    ~TestQueue();
    TestQueue(const TestQueue &) = delete;
    TestQueue &operator=(const TestQueue &) = delete;

    bool isMade() const { return m_made; }
    const QString &name() const { return m_name; }
    // lpadmin's output when the queue could not be made.
    const QString &error() const { return m_error; }

private:
    QString m_name;
    QString m_error;
    bool m_made = false;
};

#endif
