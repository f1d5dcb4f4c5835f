// queuewiz-tour: runs the installed wizard through every page on the
// scheduler named by CUPS_SERVER and saves a picture of each step.
//   queuewiz-tour --pictures DIR --port HOST:PORT [--driver TEXT] [--name NAME] [--dark]
// --dark shows the pages in a dark colour scheme, as a dark desktop theme
// hands it to Qt programs.
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
#include <QPalette>
#include <QStyleFactory>

#include <cstdio>
#include <memory>

namespace {

void useDarkScheme(QApplication &app)
{
    app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette dark;
    const QColor text(0xfc, 0xfc, 0xfc), muted(0x6e, 0x71, 0x75);
    dark.setColor(QPalette::Window, QColor(0x2a, 0x2e, 0x32));
    dark.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    dark.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
    dark.setColor(QPalette::Button, QColor(0x31, 0x36, 0x3b));
    dark.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    dark.setColor(QPalette::Link, QColor(0x1d, 0x99, 0xf3));
    dark.setColor(QPalette::ToolTipBase, QColor(0x31, 0x36, 0x3b));
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                     QPalette::HighlightedText, QPalette::ToolTipText, QPalette::BrightText})
        dark.setColor(role, text);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, muted);
    app.setPalette(dark);
}

} // namespace

int main(int argc, char **argv)
{
    if (readOemConfig(argv[0]) == -1)
        fprintf(stderr, "queuewiz-tour: no OEM.ini beside the program; the drivers of every vendor are shown\n");
    QApplication app(argc, argv);
    installTranslations(app);

    CommandLineOptions options(argc, argv, "", "pictures:|port:|driver:|name:|dark");
    const QString dir = options.value(QStringLiteral("pictures"));
    const QString port = options.value(QStringLiteral("port"));
    if (options.contains(QStringLiteral("-")) || dir.isEmpty() || port.isEmpty()) {
        fprintf(stderr, "usage: queuewiz-tour --pictures DIR --port HOST:PORT [--driver TEXT] [--name NAME] [--dark]\n");
        return 2;
    }
    if (options.contains(QStringLiteral("dark")))
        useDarkScheme(app);
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
