#include "uipaths.h"

#include "commandlineoptions.h"

#include <QDir>
#include <QFileInfo>

UiPaths UiPaths::resolve(const CommandLineOptions &options, const QString &shareDir)
{
    UiPaths p;
    p.ui = options.value(QStringLiteral("ui"),
                         QDir(shareDir).filePath(QStringLiteral("ui/AddPrinterWizardBase.ui")));
    p.res = options.value(QStringLiteral("res"),
                          QFileInfo(p.ui).dir().filePath(QStringLiteral("images")));
    p.uiTitle = options.value(QStringLiteral("ui-title"),
                              QFileInfo(p.ui).dir().filePath(QStringLiteral("wizardpagetitle.ui")));
    p.resTitle = options.value(QStringLiteral("res-title"),
                               QFileInfo(p.res).dir().filePath(QStringLiteral("images")));
    return p;
}
