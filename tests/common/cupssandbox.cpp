#include "cupssandbox.h"

#include "testpaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cups/cups.h>

#include <memory>

namespace {

QString readTrimmed(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll()).trimmed();
}

int portOf(const QString &server)
{
    const int colon = server.lastIndexOf(QLatin1Char(':'));
    if (colon < 0)
        return 0;
    bool ok = false;
    const int port = server.mid(colon + 1).toInt(&ok);
    return ok && port > 0 && port < 65536 ? port : 0;
}

// True when something accepts HTTP connections on the loopback port.
bool answers(int port)
{
    std::unique_ptr<http_t, decltype(&httpClose)> http(
        httpConnect2("localhost", port, nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, 5000, nullptr),
        &httpClose);
    return http != nullptr;
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

QString CupsSandbox::sharedDirectory()
{
    return TestPaths::binaryDir() + QStringLiteral("/cups-sandbox");
}

QString CupsSandbox::scriptPath()
{
    return TestPaths::sourceDir() + QStringLiteral("/scripts/cups-sandbox");
}

bool CupsSandbox::useShared(QString *error)
{
    const QString dir = sharedDirectory();
    const QString server = readTrimmed(dir + QStringLiteral("/server"));
    if (server.isEmpty()) {
        setError(error, QStringLiteral("The shared CUPS sandbox is not running (%1/server is missing). "
                                       "Run the test through ctest; its qw_test() needs FIXTURES cups.")
                            .arg(dir));
        return false;
    }
    const int port = portOf(server);
    if (port == 0) {
        setError(error, QStringLiteral("%1/server holds no \"localhost:PORT\" but \"%2\".").arg(dir, server));
        return false;
    }
    if (!answers(port)) {
        setError(error, QStringLiteral("The shared CUPS sandbox at %1 does not answer; see %2/log/error_log.")
                            .arg(server, dir));
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
    if (output)
        output->clear();
    if (command.isEmpty())
        return -1;
    QProcess process;
    process.start(command.first(), command.mid(1));
    if (!process.waitForStarted()) {
        if (output)
            *output = process.errorString();
        return -1;
    }
    process.closeWriteChannel();
    const bool finished = process.waitForFinished(timeoutMs);
    if (!finished) {
        process.kill();
        process.waitForFinished();
    }
    if (output)
        *output = QString::fromLocal8Bit(process.readAllStandardOutput() + process.readAllStandardError());
    if (!finished || process.exitStatus() != QProcess::NormalExit)
        return -1;
    return process.exitCode();
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
    const QFileInfo info(path);
    if (!info.exists())
        return false;
    if (m_server.isEmpty()) {
        // start() rebuilds the model directory, so it copies them then.
        m_models << info.absoluteFilePath();
        return true;
    }
    // The scheduler notices new files in the model directory on its next
    // catalogue request.
    const QString modelDir = directory() + QStringLiteral("/share/model");
    return run({QStringLiteral("cp"), QStringLiteral("-R"), QStringLiteral("-L"), info.absoluteFilePath(), modelDir}) == 0
        && run({QStringLiteral("chmod"), QStringLiteral("-R"), QStringLiteral("a+rX"), modelDir}) == 0;
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
    QFile file(directory() + QStringLiteral("/log/error_log"));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLocal8Bit(file.readAll());
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
