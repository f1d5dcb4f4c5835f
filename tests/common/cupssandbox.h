#ifndef QUEUEWIZ_CUPSSANDBOX_H
#define QUEUEWIZ_CUPSSANDBOX_H

#include <QString>
#include <QStringList>

#include <memory>

class QTemporaryDir;

// A private CUPS scheduler for tests, run by scripts/cups-sandbox.
//
// Most tests share the one the CTest fixture "cups" starts: call
// CupsSandbox::useShared() first thing (before any other libcups call) and
// QFAIL when it returns false. Tests that must stop the scheduler or need
// backends of their own create an instance: it lives in a fresh temporary
// directory and is stopped and removed by the destructor.
//
// The scheduler's DataDir/model holds the sample PPDs of share/ppd, so
// "acme-laser1610.ppd" etc. are valid ppd-names. Queues need unique names
// when tests share a scheduler.
class CupsSandbox
{
public:
    CupsSandbox();
    ~CupsSandbox();
    CupsSandbox(const CupsSandbox &) = delete;
    CupsSandbox &operator=(const CupsSandbox &) = delete;

    // Points libcups of this process (cupsSetServer) and child programs
    // (CUPS_SERVER) at the fixture's scheduler. False, with the reason in
    // *error, when that scheduler is not there or does not answer.
    static bool useShared(QString *error = nullptr);

    // Runs a program to its end (60 s at most) in the current environment;
    // returns its exit status, or -1 when it could not start, crashed or
    // timed out. *output receives stdout followed by stderr.
    static int run(const QStringList &command, QString *output = nullptr, int timeoutMs = 60000);

    bool start(QString *error = nullptr);
    // Stops the scheduler and every helper it started; true once none runs.
    bool stop();
    bool isRunning() const;

    QString server() const;  // "localhost:PORT", empty before start()
    int port() const;        // 0 before start()
    QString directory() const;
    // ServerBin/backend. Programs placed here (before or after start())
    // serve device URIs of the scheme named like the file.
    QString backendDir() const;
    // Copies program into backendDir() as name with mode 0700, so the
    // scheduler runs it as root (a world-executable backend would run as
    // the unprivileged user lp and could not write to the test's files).
    bool addBackend(const QString &name, const QString &program);
    // Adds a PPD file (or a directory of them) to the driver catalogue at
    // the next start().
    bool addModel(const QString &path);
    // Sets an environment variable for the scheduler's filters, backends and
    // device listing; takes effect at the next start().
    void setEnv(const QString &name, const QString &value);
    // From the next start(): the access policy of a stock Debian scheduler
    // (administration for members of systemGroup, by default root's group:
    // without a password on socketPath(), with Basic authentication over
    // TCP) instead of letting anyone do anything. The socket is open to
    // every account, and so is the directory as long as its parents are.
    void setStockPolicy(const QString &systemGroup = QString());
    // From the next start(): listening on every address, it announces its
    // shared queues over DNS-SD (only in a network of the test's own).
    void setBrowsing() { m_policy << QStringLiteral("--browse"); }
    QString socketPath() const;
    QString errorLog() const;
    // Points libcups of this process and child programs at this scheduler
    // (only while it runs).
    void use() const;

private:
    static void pointClientAt(const QString &server, const QString &clientRoot);

    std::unique_ptr<QTemporaryDir> m_dir;
    QStringList m_models;
    QStringList m_env;
    QStringList m_policy;
    QString m_server;
};

#endif
