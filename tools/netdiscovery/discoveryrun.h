#ifndef QUEUEWIZ_DISCOVERYRUN_H
#define QUEUEWIZ_DISCOVERYRUN_H

#include "networkprinterlist.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

class QProcess;

// Runs the discovery engines side by side and collects what they report
// before the deadline; an engine still running then is stopped.
//  - DNS-SD: avahi-browse, one resolving browse per printer service type;
//  - SNMP: the scheduler's own snmp backend, with the community given.
// NETDISCOVERY_AVAHI_BROWSE and NETDISCOVERY_SNMP_BACKEND replace the
// programs ("none" switches an engine off); NETDISCOVERY_SNMP_ADDRESS
// replaces the broadcast address list of the SNMP query.
class DiscoveryRun : public QObject
{
    Q_OBJECT

public:
    DiscoveryRun(const QString &community, int timeoutMs, QObject *parent = nullptr);
    ~DiscoveryRun() override;

    // Blocks in an event loop until every engine ended or the time is up.
    void exec();

    const NetworkPrinterList &printers() const { return m_printers; }
    // One line per engine that could not be used, for standard error.
    QStringList unavailable() const { return m_unavailable; }

    static QStringList serviceTypes();

private:
    struct Engine
    {
        QString name;
        QProcess *process;
        QByteArray pending;
    };

    void startDnsSd();
    void startSnmp();
    void start(const QString &name, const QString &program, const QStringList &args,
               const QStringList &extraEnv = {});
    void readFrom(Engine &engine, bool flush);
    void finished(Engine &engine, bool timedOut);
    bool allDone() const;

    QString m_community;
    int m_timeoutMs;
    QList<Engine *> m_engines;
    QStringList m_unavailable;
    NetworkPrinterList m_printers;
    QTemporaryDir m_snmpConfig;
};

#endif
