#include "wizardpagetitleuiloader.h"

#include "wizardpagetitle.h"

#include <QFile>
#include <QFileInfo>

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
    const QFileInfo info(fileName);
    if (fileName != m_formFile || info.lastModified() != m_formModified || info.size() != m_formSize) {
        m_formFile = fileName;
        m_formModified = info.lastModified();
        m_formSize = info.size();
        QFile file(fileName);
        m_form = file.open(QIODevice::ReadOnly) ? readForm(&file, QStringLiteral("WizardPageTitle")) : Form();
    }
    return m_form.isNull() ? nullptr : setupAs<WizardPageTitle>(build(m_form, parent));
}

// Lives as long as the process: every title of every form is loaded by it.
WizardPageTitleUiLoader *WizardPageTitleUiLoader::registered()
{
    static WizardPageTitleUiLoader *const loader = new WizardPageTitleUiLoader;
    return loader;
}
