#ifndef QUEUEWIZ_IPPFAULTPROXY_H
#define QUEUEWIZ_IPPFAULTPROXY_H

#include <QString>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

// Stands between a client under test and a scheduler on the loopback and
// passes every request on, unless told to fault one request of a given IPP
// operation: answer it with an error status, or stop the scheduler (SIGSTOP)
// just before passing it on. It runs on a thread of its own: the client
// under test blocks the thread it sends from until the answer or its timeout.
class IppFaultProxy
{
public:
    enum Action { Fail, StopScheduler };

    explicit IppFaultProxy(int upstreamPort) : m_upstreamPort(upstreamPort) {}
    ~IppFaultProxy();
    IppFaultProxy(const IppFaultProxy &) = delete;
    IppFaultProxy &operator=(const IppFaultProxy &) = delete;

    // Listens on a free loopback port; false when none could be had.
    bool start();
    QString server() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }

    // Faults the nth request of operation from now on (1 the next one).
    // value: the IPP status for Fail, the scheduler's process id for
    // StopScheduler.
    void fault(int operation, int nth, Action action, int value = 0);

private:
    struct Rule
    {
        int operation;
        int remaining;
        Action action;
        int value;
    };

    // One connection at a time: the client waits for each answer, and every
    // connection carries one request.
    void run();
    void serve(int client);
    bool takeRule(int operation, Rule *rule);

    int m_upstreamPort;
    int m_listener = -1;
    int m_port = 0;
    std::atomic<bool> m_stopping{false};
    std::atomic<int> m_client{-1};
    std::atomic<int> m_upstream{-1};
    std::mutex m_mutex;
    std::vector<Rule> m_rules;
    std::thread m_thread;
};

#endif
