// Times a second start of the wizard while one runs, from exec to its exit
// after it woke the first, on a private X server and on a private headless
// Wayland compositor. The baseline is a bare client of the same display
// that connects, asks the server what it offers and quits (xdpyinfo,
// wayland-info), timed in the same run. No scheduler answers: the running
// wizard waits for none.
//
//   bench_secondstart [PATH-OF-QUEUEWIZ]    (default: the build tree's)

#include "testpaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

constexpr int kRounds = 7;
const char kWaylandSocket[] = "wayland-bench";

struct Session
{
    const char *title;
    QProcessEnvironment env;
    QString bareClient;
};

// Milliseconds from exec to exit 0; -1 when it failed.
double timeRun(const QString &program, const QStringList &args, const QProcessEnvironment &env)
{
    QProcess run;
    run.setProcessEnvironment(env);
    run.setStandardOutputFile(QProcess::nullDevice());
    run.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer clock;
    clock.start();
    run.start(program, args);
    const bool ok = run.waitForFinished(30000) && run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0;
    return ok ? double(clock.nsecsElapsed()) / 1e6 : -1;
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? -1 : values.at(values.size() / 2);
}

// The first wizard, once it listens for later starts.
std::unique_ptr<QProcess> startFirst(const QString &program, const QProcessEnvironment &env)
{
    auto first = std::make_unique<QProcess>();
    QProcessEnvironment logged = env;
    logged.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("queuewiz.instance.debug=true"));
    first->setProcessEnvironment(logged);
    first->setStandardOutputFile(QProcess::nullDevice());
    first->start(program, QStringList());
    QByteArray said;
    for (int i = 0; i < 300 && !said.contains("instance on"); ++i) {
        first->waitForReadyRead(100);
        said += first->readAllStandardError();
    }
    return said.contains("instance on") ? std::move(first) : nullptr;
}

bool measure(const Session &session, const QString &program)
{
    std::unique_ptr<QProcess> first = startFirst(program, session.env);
    if (!first) {
        fprintf(stderr, "bench_secondstart: %s: the first wizard did not start\n", session.title);
        return false;
    }
    QList<double> bare, second;
    for (int round = 0; round < kRounds; ++round) {
        bare << timeRun(session.bareClient, QStringList(), session.env);
        second << timeRun(program, QStringList(), session.env);
    }
    first->terminate();
    first->waitForFinished(10000);
    if (*std::min_element(bare.cbegin(), bare.cend()) < 0 || *std::min_element(second.cbegin(), second.cend()) < 0) {
        fprintf(stderr, "bench_secondstart: %s: a run failed\n", session.title);
        return false;
    }
    const double b = median(bare), s = median(second);
    printf("\n%s (median of %d)\n", session.title, kRounds);
    printf("%-40s %10s %12s\n", "case", "ms", "vs bare");
    printf("%-40s %10.1f %12.2f\n", qPrintable(session.bareClient + QStringLiteral(" (baseline)")), b, 1.0);
    printf("%-40s %10.1f %12.2f  (goal: 1000 ms)\n", "second start, exec to exit", s, s / b);
    fflush(stdout);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString program = argc > 1 ? QString::fromLocal8Bit(argv[1])
                                     : TestPaths::binaryDir() + QStringLiteral("/app/queuewiz");
    QTemporaryDir runtime;
    QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

    QProcess xvfb, weston;
    xvfb.setStandardErrorFile(QProcess::nullDevice());
    xvfb.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "1024x768x24"});
    QProcessEnvironment westonEnv = QProcessEnvironment::systemEnvironment();
    westonEnv.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    weston.setProcessEnvironment(westonEnv);
    weston.setStandardOutputFile(QProcess::nullDevice());
    weston.setStandardErrorFile(QProcess::nullDevice());
    weston.start(QStringLiteral("weston"), {"--backend=headless-backend.so", QStringLiteral("--socket=") + kWaylandSocket,
                                           "--idle-time=0"});
    for (int i = 0; i < 300 && !xvfb.canReadLine(); ++i)
        xvfb.waitForReadyRead(100);
    for (int i = 0; i < 300 && !QFile::exists(runtime.filePath(kWaylandSocket)); ++i)
        QThread::msleep(100);
    if (!xvfb.canReadLine() || !QFile::exists(runtime.filePath(kWaylandSocket))) {
        fprintf(stderr, "bench_secondstart: Xvfb or weston did not start\n");
        return 1;
    }

    QProcessEnvironment base = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_ACTIVATION_TOKEN"})
        base.remove(QLatin1String(name));
    base.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("127.0.0.1:9"));
    base.insert(QStringLiteral("QUEUEWIZ_LOG_DIR"), runtime.path());
    QProcessEnvironment x11 = base, wayland = base;
    x11.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + QString::fromLatin1(xvfb.readLine().trimmed()));
    wayland.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    wayland.insert(QStringLiteral("WAYLAND_DISPLAY"), QLatin1String(kWaylandSocket));

    printf("wizard %s\n", qPrintable(program));
    const bool ok = measure({"X11", x11, QStringLiteral("xdpyinfo")}, program)
        && measure({"Wayland", wayland, QStringLiteral("wayland-info")}, program);
    weston.terminate();
    xvfb.terminate();
    weston.waitForFinished(5000);
    xvfb.waitForFinished(5000);
    return ok ? 0 : 1;
}
