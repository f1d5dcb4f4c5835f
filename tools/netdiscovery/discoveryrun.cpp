#include "discoveryrun.h"

#include "dnssdservice.h"
#include "snmpdevice.h"

#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTimer>

namespace {

QString programFromEnv(const char *variable, const QString &fallback)
{
    const QString v = qEnvironmentVariable(variable);
    return v.isEmpty() ? fallback : v;
}

} // namespace

DiscoveryRun::DiscoveryRun(const QString &community, int timeoutMs, QObject *parent)
    : QObject(parent)
    , m_community(community)
    , m_timeoutMs(timeoutMs)
{
}

DiscoveryRun::~DiscoveryRun()
{
    for (Engine *e : m_engines) {
        if (e->process->state() != QProcess::NotRunning) {
            e->process->kill();
            e->process->waitForFinished(1000);
        }
        delete e;
    }
}

QStringList DiscoveryRun::serviceTypes()
{
    return { QStringLiteral("_ipp._tcp"), QStringLiteral("_ipps._tcp"), QStringLiteral("_pdl-datastream._tcp"),
             QStringLiteral("_printer._tcp") };
}

void DiscoveryRun::exec()
{
    startDnsSd();
    startSnmp();
    if (allDone())
        return;

    QEventLoop loop;
    QTimer deadline;
    deadline.setSingleShot(true);
    connect(&deadline, &QTimer::timeout, &loop, [this, &loop] {
        for (Engine *e : m_engines)
            if (e->process->state() != QProcess::NotRunning)
                finished(*e, true);
        loop.quit();
    });
    for (Engine *e : m_engines)
        connect(e->process, &QProcess::finished, &loop, [this, &loop] {
            if (allDone())
                loop.quit();
        });
    deadline.start(m_timeoutMs);
    if (!allDone())
        loop.exec();
}

void DiscoveryRun::startDnsSd()
{
    const QString program = programFromEnv("NETDISCOVERY_AVAHI_BROWSE", QStringLiteral("avahi-browse"));
    if (program == QLatin1String("none"))
        return;
    for (const QString &type : serviceTypes())
        start(QStringLiteral("DNS-SD"), program,
              { QStringLiteral("--resolve"), QStringLiteral("--parsable"), QStringLiteral("--terminate"),
                QStringLiteral("--no-db-lookup"), type });
}

void DiscoveryRun::startSnmp()
{
    const QString program = SnmpDevice::backendProgram();
    if (program == QLatin1String("none"))
        return;
    if (!QFile::exists(program)) {
        m_unavailable << QStringLiteral("SNMP: %1 not found").arg(program);
        return;
    }
    // The backend reads its settings from CUPS_SERVERROOT/snmp.conf; a
    // private one carries the community and ends the query in time.
    QFile conf(m_snmpConfig.filePath(QStringLiteral("snmp.conf")));
    if (!m_snmpConfig.isValid() || !conf.open(QIODevice::WriteOnly)) {
        m_unavailable << QStringLiteral("SNMP: cannot write its settings");
        return;
    }
    const QString address = qEnvironmentVariable("NETDISCOVERY_SNMP_ADDRESS", QStringLiteral("@LOCAL"));
    conf.write(SnmpDevice::config(address, m_community, m_timeoutMs));
    conf.close();
    start(QStringLiteral("SNMP"), program, {}, { QStringLiteral("CUPS_SERVERROOT=") + m_snmpConfig.path() });
}

void DiscoveryRun::start(const QString &name, const QString &program, const QStringList &args,
                         const QStringList &extraEnv)
{
    auto *engine = new Engine{ name, new QProcess(this), {} };
    m_engines << engine;
    QProcess *p = engine->process;
    if (!extraEnv.isEmpty()) {
        QStringList env = QProcess::systemEnvironment();
        env << extraEnv;
        p->setEnvironment(env);
    }
    p->setStandardInputFile(QProcess::nullDevice());
    connect(p, &QProcess::readyReadStandardOutput, this, [this, engine] { readFrom(*engine, false); });
    connect(p, &QProcess::finished, this, [this, engine] { finished(*engine, false); });
    connect(p, &QProcess::errorOccurred, this, [this, engine](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            const QString why = QStringLiteral("%1: %2 could not be started").arg(engine->name, engine->process->program());
            if (!m_unavailable.contains(why))
                m_unavailable << why;
        }
    });
    p->start(program, args);
}

void DiscoveryRun::readFrom(Engine &engine, bool flush)
{
    engine.pending += engine.process->readAllStandardOutput();
    int end;
    while ((end = engine.pending.indexOf('\n')) >= 0 || (flush && !engine.pending.isEmpty())) {
        if (end < 0)
            end = engine.pending.size();
        const QString line = QString::fromUtf8(engine.pending.left(end)).trimmed();
        engine.pending.remove(0, end + 1);
        DnsSdService service;
        SnmpDevice device;
        if (engine.name == QLatin1String("DNS-SD") && DnsSdService::parse(line, &service))
            m_printers.add(service);
        else if (engine.name == QLatin1String("SNMP") && SnmpDevice::parse(line, &device))
            m_printers.add(device);
    }
}

void DiscoveryRun::finished(Engine &engine, bool timedOut)
{
    QProcess *p = engine.process;
    if (timedOut) {
        p->kill();
        p->waitForFinished(1000);
    }
    readFrom(engine, true);
    QString why;
    if (timedOut)
        why = QStringLiteral("%1: no complete answer within %2 ms").arg(engine.name).arg(m_timeoutMs);
    else if (p->exitStatus() != QProcess::NormalExit || p->exitCode() != 0) {
        const QString err = QString::fromLocal8Bit(p->readAllStandardError()).trimmed().section(QLatin1Char('\n'), 0, 0);
        if (p->error() != QProcess::FailedToStart)
            why = QStringLiteral("%1: %2").arg(engine.name, err.isEmpty() ? QStringLiteral("failed") : err);
    }
    if (!why.isEmpty() && !m_unavailable.contains(why))
        m_unavailable << why;
}

bool DiscoveryRun::allDone() const
{
    for (const Engine *e : m_engines)
        if (e->process->state() != QProcess::NotRunning)
            return false;
    return true;
}
