// Times the start of the wizard, from exec to its window being mapped on a
// private Xvfb, against the one request it waits for: a bare CUPS-Get-PPDs
// with the same "ppd-make" filter on a fresh connection, timed in the same
// run. Once on a private scheduler with the package's drivers and, when the
// system's driver programs are installed, once more with their whole
// catalogue. The window should be up within 250 ms of the bare request.
//
//   bench_startup [PATH-OF-QUEUEWIZ]    (default: the build tree's)

#include "cupsptr.h"
#include "cupssandbox.h"
#include "oemconfig.h"
#include "testpaths.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

constexpr int kRounds = 5;
const char kSystemDrivers[] = "/usr/lib/cups/driver";

// Milliseconds: the best of several calls; -1 when one failed.
double best(const std::function<double()> &call)
{
    double fastest = 1e300;
    for (int round = 0; round < kRounds; ++round) {
        const double ms = call();
        if (ms < 0)
            return -1;
        fastest = std::min(fastest, ms);
    }
    return fastest;
}

double bareGetPPDs(const QByteArray &make)
{
    QElapsedTimer clock;
    clock.start();
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PPDS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/printers/");
    if (!make.isEmpty())
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_TEXT, "ppd-make", nullptr, make.constData());
    HttpPtr http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1, 10000,
                              nullptr));
    IppPtr answer(cupsDoRequest(http.get(), request, "/"));
    const bool ok = answer && ippGetStatusCode(answer.get()) <= IPP_STATUS_OK_CONFLICTING;
    return ok ? double(clock.nsecsElapsed()) / 1e6 : -1;
}

class Display
{
public:
    bool start()
    {
        m_xvfb.setStandardErrorFile(QProcess::nullDevice());
        m_xvfb.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "1024x768x24"});
        if (!m_xvfb.waitForStarted(10000))
            return false;
        for (int i = 0; i < 300 && !m_xvfb.canReadLine(); ++i)
            m_xvfb.waitForReadyRead(100);
        m_name = QLatin1Char(':') + QString::fromLatin1(m_xvfb.readLine().trimmed());
        m_connection = xcb_connect(m_name.toLatin1().constData(), nullptr);
        if (xcb_connection_has_error(m_connection))
            return false;
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
        return true;
    }
    ~Display()
    {
        if (m_connection)
            xcb_disconnect(m_connection);
        m_xvfb.terminate();
        m_xvfb.waitForFinished(5000);
    }
    QString name() const { return m_name; }
    // Forgets what happened so far.
    void drain()
    {
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection))
            free(event);
    }
    // True once a top-level window is mapped, false when program ends first.
    bool waitForWindow(QProcess &program)
    {
        while (program.state() != QProcess::NotRunning) {
            while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
                const bool mapped = (event->response_type & 0x7f) == XCB_MAP_NOTIFY;
                free(event);
                if (mapped)
                    return true;
            }
            program.waitForFinished(1);
        }
        return false;
    }

private:
    QProcess m_xvfb;
    QString m_name;
    xcb_connection_t *m_connection = nullptr;
};

double startWizard(Display &display, const QString &program, const QString &logs)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), display.name());
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.insert(QStringLiteral("QUEUEWIZ_LOG_DIR"), logs);
    QProcess wizard;
    wizard.setProcessEnvironment(env);
    wizard.setStandardOutputFile(QProcess::nullDevice());
    wizard.setStandardErrorFile(QProcess::nullDevice());
    display.drain();
    QElapsedTimer clock;
    clock.start();
    wizard.start(program, QStringList());
    const bool shown = wizard.waitForStarted(10000) && display.waitForWindow(wizard);
    const double ms = double(clock.nsecsElapsed()) / 1e6;
    wizard.terminate();
    if (!wizard.waitForFinished(10000))
        wizard.kill();
    wizard.waitForFinished(5000);
    return shown ? ms : -1;
}

bool measure(const char *title, Display &display, const QString &program, const QByteArray &make,
             const QString &logs)
{
    // The first answer fills the scheduler's driver cache; time what a
    // user meets every day after.
    bareGetPPDs(make);
    const double bare = best([&] { return bareGetPPDs(make); });
    const double wizard = best([&] { return startWizard(display, program, logs); });
    if (bare < 0 || wizard < 0) {
        fprintf(stderr, "bench_startup: %s: %s failed\n", title, bare < 0 ? "the bare request" : "the wizard");
        return false;
    }
    printf("\n%s\n", title);
    printf("%-40s %10s %12s %14s\n", "case", "ms", "vs bare", "minus bare");
    printf("%-40s %10.1f %12.2f %14.1f\n", "bare CUPS-Get-PPDs (baseline)", bare, 1.0, 0.0);
    printf("%-40s %10.1f %12.2f %14.1f  (goal: 250)\n", "exec to window shown", wizard, wizard / bare,
           wizard - bare);
    fflush(stdout);
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString program = argc > 1 ? QString::fromLocal8Bit(argv[1])
                                     : TestPaths::binaryDir() + QStringLiteral("/app/queuewiz");
    if (!QFile::exists(program)) {
        fprintf(stderr, "bench_startup: no wizard at %s\n", qPrintable(program));
        return 1;
    }
    // The same vendor filter as the wizard's.
    readOemConfig(QFile::encodeName(program).constData());
    const QByteArray make(actx.vendorUpper);

    QTemporaryDir logs;
    Display display;
    CupsSandbox sandbox;
    QString error;
    if (!display.start() || !sandbox.start(&error)) {
        fprintf(stderr, "bench_startup: %s\n", error.isEmpty() ? "Xvfb did not start" : qPrintable(error));
        return 1;
    }
    sandbox.use();
    printf("wizard %s, ppd-make \"%s\"\n", qPrintable(program), make.constData());
    if (!measure("the package's drivers", display, program, make, logs.path()))
        return 1;

    const QDir system{QLatin1String(kSystemDrivers)};
    const QStringList programs =
        system.entryList(QDir::Files).filter(QRegularExpression(QStringLiteral("^(?!driverless)")));
    if (programs.isEmpty()) {
        printf("\nfull catalogue: skipped, the system has no driver programs besides driverless\n");
        return 0;
    }
    for (const QString &name : programs)
        QFile::link(system.filePath(name), sandbox.directory() + QStringLiteral("/lib/driver/") + name);
    return measure("the system's full catalogue", display, program, make, logs.path()) ? 0 : 1;
}
