// queuewiz-tour: runs the installed wizard through every page on the
// scheduler named by CUPS_SERVER and saves a picture of each step.
//   queuewiz-tour --pictures DIR --port HOST:PORT [--driver TEXT] [--name NAME]
// Exit status 0 when every step worked.

#include "AddPrinterWizard.h"
#include "commandlineoptions.h"
#include "oemconfig.h"
#include "queuewizuiloader.h"
#include "tourguide.h"
#include "translations.h"
#include "uipaths.h"

#include <QApplication>
#include <QDir>

#include <cstdio>
#include <memory>

int main(int argc, char **argv)
{
    if (readOemConfig(argv[0]) == -1)
        fprintf(stderr, "queuewiz-tour: no OEM.ini beside the program; the drivers of every vendor are shown\n");
    QApplication app(argc, argv);
    installTranslations(app);

    CommandLineOptions options(argc, argv, "", "pictures:|port:|driver:|name:");
    const QString dir = options.value(QStringLiteral("pictures"));
    const QString port = options.value(QStringLiteral("port"));
    if (options.contains(QStringLiteral("-")) || dir.isEmpty() || port.isEmpty()) {
        fprintf(stderr, "usage: queuewiz-tour --pictures DIR --port HOST:PORT [--driver TEXT] [--name NAME]\n");
        return 2;
    }
    if (!QDir().mkpath(dir)) {
        fprintf(stderr, "queuewiz-tour: can't make %s\n", qPrintable(dir));
        return 1;
    }

    int none = 1;
    char *noArgs[] = { argv[0], nullptr };
    const UiPaths paths = UiPaths::resolve(CommandLineOptions(none, noArgs, "", ""), QString::fromLocal8Bit(actx.shareDir));
    QueuewizUiLoader::loadImages(paths.res);
    QueuewizUiLoader::loadImages(paths.resTitle);
    std::unique_ptr<AddPrinterWizard> wizard(QueuewizUiLoader::load(paths.ui, paths.uiTitle, nullptr));
    if (!wizard) {
        fprintf(stderr, "queuewiz-tour: the wizard's forms can't be loaded from %s\n", qPrintable(paths.ui));
        return 1;
    }

    TourGuide::Choices choices;
    choices.port = port;
    choices.driver = options.value(QStringLiteral("driver"), QStringLiteral("Acme ColorLaser 2550"));
    choices.name = options.value(QStringLiteral("name"));
    choices.location = QCoreApplication::translate("TourGuide", "Room 2.14");
    choices.description = QCoreApplication::translate("TourGuide", "The loopback printer of the demo");

    TourGuide guide(wizard.get(), QDir(dir), choices);
    const bool ok = guide.run();
    for (const QString &p : guide.pictures())
        printf("%s\n", qPrintable(p));
    if (!ok)
        fprintf(stderr, "queuewiz-tour: %s\n", qPrintable(guide.error()));
    return ok ? 0 : 1;
}
