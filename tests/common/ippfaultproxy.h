#ifndef QUEUEWIZ_IPPFAULTPROXY_H
#define QUEUEWIZ_IPPFAULTPROXY_H

#include <QList>
#include <QString>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

// Stands between a client under test and a scheduler on the loopback and
// passes every request on, unless told to fault one request of a given IPP
// operation: answer it with an error status, or stop the scheduler (SIGSTOP)
// just before passing it on.
//
// It runs on threads of its own: the client under test blocks the thread
// it sends from, typically the GUI thread, until the answer or its timeout.
class IppFaultProxy
{
public:
    enum Action { Fail, StopScheduler };

    explicit IppFaultProxy(int upstreamPort);
    ~IppFaultProxy();
    IppFaultProxy(const IppFaultProxy &) = delete;
    IppFaultProxy &operator=(const IppFaultProxy &) = delete;

    // Listens on a free loopback port; false when none could be had.
    bool start();
    QString server() const;  // "localhost:PORT"

    // Faults the nth request of operation from now on (1 the next one).
    // value: the IPP status for Fail, the scheduler's process id for
    // StopScheduler.
    void fault(int operation, int nth, Action action, int value = 0);
    // The operation codes of the requests seen so far, in order.
    QList<int> operations() const;

private:
    struct Rule
    {
        int operation = -1;
        int remaining = 0;
        Action action = Fail;
        int value = 0;
    };

    void acceptLoop();
    void serve(int client);
    // What to do with a request of operation; consumes the rule it matches.
    bool takeRule(int operation, Rule *rule);
    void track(int fd, bool open);

    int m_upstreamPort;
    int m_listener = -1;
    int m_port = 0;
    std::atomic<bool> m_stopping{false};
    mutable std::mutex m_mutex;
    std::vector<Rule> m_rules;
    QList<int> m_operations;
    std::set<int> m_open;
    std::vector<std::thread> m_threads;
    std::thread m_acceptor;
};

#endif
