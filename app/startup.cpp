#include "startup.h"

#include "commandlineoptions.h"
#include "cupsmanager.h"
#include "ipplog.h"
#include "oemconfig.h"
#include "qtsingleapplication.h"
#include "queuewizuiloader.h"
#include "sessionchannel.h"
#include "translations.h"
#include "uipaths.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QLayout>
#include <QLibraryInfo>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

const char kShortOptions[] = "h";
const QString kInstanceId = QStringLiteral("AddPrinterWizard_SingleApplication");
const QString kWakeUp = QStringLiteral("Wake up!!!");
const char kLongOptions[] = "ui:|res:|ui-title:|res-title:|help=h";

void printUsage()
{
    puts("USAGE:");
    puts("queuewiz --ui=<FILE> --res=<PATH>");
    puts("\t<FILE> is used as UI description file");
    puts("queuewiz -h|--help");
    puts("\tDisplay this help and exit");
}

// A program started through PATH has a bare name in argv[0]; the package
// directories are then found from the executable itself.
QByteArray programPath(const char *argv0)
{
    if (argv0 && strchr(argv0, '/'))
        return argv0;
    char exe[OEM_PATH_MAX];
    const ssize_t n = readlink("/proc/self/exe", exe, sizeof exe - 1);
    if (n <= 0)
        return argv0 ? argv0 : "";
    return QByteArray(exe, static_cast<int>(n));
}

bool xDisplayAnswers()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = !xcb_connection_has_error(connection);
    xcb_disconnect(connection);
    return answers;
}

// A Wayland compositor listens on $XDG_RUNTIME_DIR/$WAYLAND_DISPLAY (or on
// an absolute path); Qt also needs its Wayland plug-in for it.
bool waylandAnswers()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    if (plugins.entryList({QStringLiteral("libqwayland*.so")}, QDir::Files).isEmpty())
        return false;
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (size_t(path.size()) >= sizeof address.sun_path)
        return false;
    memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers = fd >= 0 && ::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    if (fd >= 0)
        ::close(fd);
    return answers;
}

// Qt aborts when the platform it picks can't start (a DISPLAY that does not
// answer, a Wayland session without the plug-in). Pick one that works here,
// or none; a platform the user chose is left to Qt.
enum class Platform { Chosen, Told, Missing };
Platform choosePlatform()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return Platform::Chosen;
    const bool x = xDisplayAnswers();
    const bool wayland = waylandAnswers();
    if (x && wayland)
        return Platform::Chosen;
    if (!x && !wayland)
        return Platform::Missing;
    qputenv("QT_QPA_PLATFORM", x ? "xcb" : "wayland");
    return Platform::Told;
}

// Without a display Qt can't start at all. Asking for the usage (or
// getting it for a bad command line) still works in a plain terminal; the
// wizard itself needs a window, so say so rather than let Qt abort.
// Whether the command line gets the usage (asked for, or a bad option),
// read quietly: the real parse later reports the errors.
bool asksForUsage(int argc, char **argv)
{
    const int keptOpterr = opterr;
    opterr = 0;
    const CommandLineOptions early(argc, argv, kShortOptions, kLongOptions);
    opterr = keptOpterr;
    return early.contains(QStringLiteral("h")) || early.contains(QStringLiteral("-"));
}

bool prepareForNoDisplay(bool usage)
{
    if (usage) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    fprintf(stderr, "queuewiz: there is no display to show the wizard on (%s).\n"
                    "Start it from a desktop session.\n",
            qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
                ? "DISPLAY is not set"
                : "the display named by DISPLAY or WAYLAND_DISPLAY does not answer");
    return false;
}

// Started from the menu, nobody reads standard error: say it in a window
// too, unless there is no screen to show one on.
void reportDamagedForm(const QString &error)
{
    qWarning("%s", qPrintable(error));
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        return;
    QMessageBox::critical(nullptr, QCoreApplication::translate("AddPrinterWizard", "Error!"),
                          QCoreApplication::translate("AddPrinterWizard",
                                                      "The wizard can't start: its form file is damaged.\n%1")
                              .arg(error));
}

} // namespace

int queuewizMain(int argc, char **argv)
{
    if (readOemConfig(programPath(argc > 0 ? argv[0] : nullptr).constData()) == -1) {
        puts("WARNING: configuration file not found");
        fflush(stdout);
    }

    const bool usage = asksForUsage(argc, argv);
    const Platform platform = choosePlatform();
    if (platform == Platform::Missing && !prepareForNoDisplay(usage))
        return 1;
    // In a Wayland session the running wizard is found before Qt starts:
    // a start that only wakes it costs no more than that.
    auto session = std::make_unique<SessionChannel>(kInstanceId);
    if (platform != Platform::Missing
        && session->deliverOrClaim(kWakeUp, qgetenv("XDG_ACTIVATION_TOKEN"), 5000) == SessionChannel::Outcome::Delivered)
        return 0;
    // The scheduler lists the drivers while Qt starts and the forms load.
    // Nothing is logged until the answer is taken, after the logs opened.
    if (platform != Platform::Missing && !usage)
        CUPSManager::m_CUPSManagerInstance.sendDriverRequest();
    QtSingleApplication app(kInstanceId, argc, argv, session.release());
    // The browser and the test page must not inherit our choice.
    if (platform == Platform::Told)
        qunsetenv("QT_QPA_PLATFORM");
    // Another instance of this user on this display takes over: wake it and go.
    if (app.sendMessage(kWakeUp, 5000))
        return 0;

    installTranslations(app);

    app.initialize(true);

    CommandLineOptions options(argc, argv, kShortOptions, kLongOptions);
    if (options.contains(QStringLiteral("h")) || options.contains(QStringLiteral("-"))) {
        printUsage();
        return options.contains(QStringLiteral("-")) ? -1 : 0;
    }

    // This process is the instance: its logs start now, before a request
    // is logged. A start that only woke another one has touched none.
    IPPLog::openAll(IPPLog::defaultDirectory());

    QFont::insertSubstitution(QStringLiteral("Helvetica"), QStringLiteral("Adobe Helvetica"));

    const UiPaths paths = UiPaths::resolve(options, QString::fromLocal8Bit(actx.shareDir));

    UiLoader::loadImages(paths.res);
    UiLoader::loadImages(paths.resTitle);

    QString formError;
    std::unique_ptr<AddPrinterWizard> wizard(QueuewizUiLoader::load(paths.ui, paths.uiTitle, nullptr, &formError));
    if (!wizard) {
        if (!formError.isEmpty())
            reportDamagedForm(formError);
        qWarning("Failed to load widget from <%s>", qPrintable(paths.ui));
        // Qt 6 has no global GUI lock to give back here.
        return -2;
    }

    // A second start of the program brings this wizard to the front.
    app.setMainWidget(wizard.get());
    QObject::connect(&app, &QtSingleApplication::messageReceived, wizard.get(), &QWidget::raise);
    QObject::connect(&app, &QGuiApplication::lastWindowClosed, &app, &QCoreApplication::quit);

    wizard->show();
    if (QLayout *layout = wizard->layout())
        layout->setSizeConstraint(QLayout::SetFixedSize);

    return app.exec();
}
