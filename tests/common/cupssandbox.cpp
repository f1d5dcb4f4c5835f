#include "cupssandbox.h"

#include "testpaths.h"
#include "testsupport.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cups/cups.h>

#include <memory>

namespace {

QString readTrimmed(const QString &fileName)
{
    return QString::fromUtf8(TestSupport::readFile(fileName)).trimmed();
}

// The port of "localhost:PORT"; 0 for anything else.
int portOf(const QString &server)
{
    const int port = server.startsWith(QLatin1String("localhost:")) ? server.mid(10).toInt() : 0;
    return port < 65536 ? port : 0;
}

// True when something accepts HTTP connections on the loopback port.
bool answers(int port)
{
    std::unique_ptr<http_t, decltype(&httpClose)> http(
        port ? httpConnect2("localhost", port, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, 5000, nullptr) : nullptr,
        &httpClose);
    return http != nullptr;
}

QString scriptPath()
{
    return TestPaths::sourceDir() + QStringLiteral("/scripts/cups-sandbox");
}

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

} // namespace

CupsSandbox::CupsSandbox()
    : m_dir(std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/qw-cups-XXXXXX")))
{
    if (m_dir->isValid())
        QDir().mkpath(backendDir());
}

CupsSandbox::~CupsSandbox()
{
    // Also when start() failed half-way: the script ends whatever it began.
    if (m_dir->isValid())
        stop();
}

bool CupsSandbox::useShared(QString *error)
{
    // Where the CTest fixture "cups" keeps its scheduler.
    const QString dir = TestPaths::binaryDir() + QStringLiteral("/cups-sandbox");
    const QString server = readTrimmed(dir + QStringLiteral("/server"));
    if (!answers(portOf(server))) {
        setError(error, QStringLiteral("The shared CUPS sandbox in %1 is not running or does not answer: run the "
                                       "test through ctest, with FIXTURES cups; see %1/log/error_log.")
                            .arg(dir));
        return false;
    }
    pointClientAt(server, dir + QStringLiteral("/client"));
    return true;
}

void CupsSandbox::pointClientAt(const QString &server, const QString &clientRoot)
{
    qputenv("CUPS_SERVER", server.toUtf8());
    // As root, libcups and lpoptions write the destination list to
    // CUPS_SERVERROOT/lpoptions; keep that away from the system's file.
    // CTest sets it already; libcups reads it only once per thread.
    if (qEnvironmentVariableIsEmpty("CUPS_SERVERROOT"))
        qputenv("CUPS_SERVERROOT", clientRoot.toUtf8());
    QDir().mkpath(qEnvironmentVariable("CUPS_SERVERROOT"));
    cupsSetServer(server.toUtf8().constData());
}

int CupsSandbox::run(const QStringList &command, QString *output, int timeoutMs)
{
    const TestSupport::Run r = TestSupport::run(command.value(0), command.mid(1),
                                                QProcessEnvironment::systemEnvironment(), QByteArray(), timeoutMs);
    if (output)
        *output = r.out + r.err;
    return r.status;
}

bool CupsSandbox::start(QString *error)
{
    if (!m_dir->isValid()) {
        setError(error, QStringLiteral("Cannot create a temporary directory: %1").arg(m_dir->errorString()));
        return false;
    }
    // Should this process die without the destructor, the scheduler and
    // its directory go with it.
    QStringList command{QStringLiteral("bash"), scriptPath(), QStringLiteral("start"), directory(),
                        QStringLiteral("--owner"), QString::number(QCoreApplication::applicationPid())};
    for (const QString &model : std::as_const(m_models))
        command << QStringLiteral("--model") << model;
    for (const QString &assignment : std::as_const(m_env))
        command << QStringLiteral("--setenv") << assignment;
    command << m_policy;
    QString output;
    const int status = run(command, &output, 90000);
    m_server = readTrimmed(directory() + QStringLiteral("/server"));
    if (status != 0 || port() == 0) {
        m_server.clear();
        setError(error, QStringLiteral("cups-sandbox start failed (%1): %2").arg(status).arg(output.trimmed()));
        return false;
    }
    return true;
}

bool CupsSandbox::stop()
{
    m_server.clear();
    if (!m_dir->isValid())
        return true;
    const int status = run({QStringLiteral("bash"), scriptPath(), QStringLiteral("stop"), directory()});
    return status == 0 && !isRunning();
}

bool CupsSandbox::isRunning() const
{
    return m_dir->isValid()
        && run({QStringLiteral("bash"), scriptPath(), QStringLiteral("status"), directory()}) == 0;
}

QString CupsSandbox::server() const
{
    return m_server;
}

int CupsSandbox::port() const
{
    return portOf(m_server);
}

QString CupsSandbox::directory() const
{
    return m_dir->path();
}

QString CupsSandbox::backendDir() const
{
    return directory() + QStringLiteral("/lib/backend");
}

bool CupsSandbox::addBackend(const QString &name, const QString &program)
{
    if (name.isEmpty() || name.contains(QLatin1Char('/')) || !QFileInfo(program).isFile())
        return false;
    const QString target = backendDir() + QLatin1Char('/') + name;
    QDir().mkpath(backendDir());
    QFile::remove(target);
    return QFile::copy(program, target)
        && QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool CupsSandbox::addModel(const QString &path)
{
    // start() builds the model directory and copies them then.
    const QFileInfo info(path);
    if (info.exists())
        m_models << info.absoluteFilePath();
    return info.exists();
}

void CupsSandbox::setEnv(const QString &name, const QString &value)
{
    m_env << name + QLatin1Char('=') + value;
}

void CupsSandbox::setStockPolicy(const QString &systemGroup)
{
    m_policy = QStringList{QStringLiteral("--stock-policy")};
    if (!systemGroup.isEmpty())
        m_policy << QStringLiteral("--system-group") << systemGroup;
}

QString CupsSandbox::socketPath() const
{
    return directory() + QStringLiteral("/cups.sock");
}

QString CupsSandbox::errorLog() const
{
    return QString::fromLocal8Bit(TestSupport::readFile(directory() + QStringLiteral("/log/error_log")));
}

void CupsSandbox::use() const
{
    if (m_server.isEmpty()) {
        // cupsSetServer("") would mean the system's scheduler.
        qWarning("CupsSandbox::use(): the scheduler in %s is not running", qPrintable(directory()));
        return;
    }
    pointClientAt(m_server, directory() + QStringLiteral("/client"));
}
