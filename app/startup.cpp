#include "startup.h"

#include "commandlineoptions.h"
#include "oemconfig.h"
#include "qtsingleapplication.h"
#include "queuewizuiloader.h"
#include "translations.h"
#include "uipaths.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QLayout>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unistd.h>

namespace {

const char kShortOptions[] = "h";
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

bool haveDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
        || qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// Without a display Qt can't start at all. Asking for the usage (or
// getting it for a bad command line) still works in a plain terminal; the
// wizard itself needs a window, so say so rather than let Qt abort.
bool prepareForNoDisplay(int argc, char **argv)
{
    if (haveDisplay())
        return true;
    const int keptOpterr = opterr;
    opterr = 0; // the real parse below reports the errors
    const CommandLineOptions early(argc, argv, kShortOptions, kLongOptions);
    opterr = keptOpterr;
    if (early.contains(QStringLiteral("h")) || early.contains(QStringLiteral("-"))) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    fprintf(stderr, "queuewiz: there is no display to show the wizard on (DISPLAY is not set).\n"
                    "Start it from a desktop session.\n");
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

    if (!prepareForNoDisplay(argc, argv))
        return 1;
    QtSingleApplication app(QStringLiteral("AddPrinterWizard_SingleApplication"), argc, argv);
    // Another instance of this user on this display takes over: wake it and go.
    if (app.sendMessage(QStringLiteral("Wake up!!!"), 5000))
        return 0;

    installTranslations(app);

    app.initialize(true);

    CommandLineOptions options(argc, argv, kShortOptions, kLongOptions);
    if (options.contains(QStringLiteral("h")) || options.contains(QStringLiteral("-"))) {
        printUsage();
        return options.contains(QStringLiteral("-")) ? -1 : 0;
    }

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
