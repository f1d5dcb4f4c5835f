#include "wizardpagetitleuiloader.h"

#include "wizardpagetitle.h"

WizardPageTitleUiLoader::WizardPageTitleUiLoader(QObject *parent)
    : UiLoaderEx(parent)
{
}

QWidget *WizardPageTitleUiLoader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    if (className == QLatin1String("WizardPageTitle"))
        return new WizardPageTitle(parent, name);
    return UiLoaderEx::createWidget(className, parent, name);
}

WizardPageTitle *WizardPageTitleUiLoader::loadTitle(const QString &fileName, QWidget *parent)
{
    return setupAs<WizardPageTitle>(loadAs(fileName, QStringLiteral("WizardPageTitle"), parent));
}

// Lives as long as the process: every title of every form is loaded by it.
WizardPageTitleUiLoader *WizardPageTitleUiLoader::registered()
{
    static WizardPageTitleUiLoader *const loader = new WizardPageTitleUiLoader;
    return loader;
}
