#ifndef QUEUEWIZ_WIZARDUILOADER_H
#define QUEUEWIZ_WIZARDUILOADER_H

#include "titlelesswizardpage.h"
#include "uiloaderex.h"
#include "wizardpagetitle.h"
#include "wizardpagetitleuiloader.h"

// Loads a wizard form as the wizard class W, with a WizardPageTitle loaded
// from its own form wherever the wizard's form names one.
template <class W>
class WizardUiLoader : public UiLoaderEx
{
public:
    explicit WizardUiLoader(const QString &titleUiPath, QObject *parent = nullptr)
        : UiLoaderEx(parent)
        , m_titleUiPath(titleUiPath)
    {
    }

    QWidget *createWidget(const QString &className, QWidget *parent = nullptr,
                          const QString &name = QString()) override
    {
        if (className == QLatin1String("WizardPageTitle"))
            return createPageTitle(className, parent, name);
        if (className == QLatin1String(W::staticMetaObject.className()))
            return new W(parent, name);
        // Pages whose Next button the wizard switches.
        if (className == QLatin1String("QWizardPage")) {
            auto *page = new TitlelessWizardPage(parent);
            page->setObjectName(name);
            return page;
        }
        return UiLoaderEx::createWidget(className, parent, name);
    }

    QString titleUiPath() const { return m_titleUiPath; }

private:
    QWidget *createPageTitle(const QString &className, QWidget *parent, const QString &name)
    {
        // The title form's own top level is the title loader's business.
        if (m_busy)
            return UiLoaderEx::createWidget(className, parent, name);
        m_busy = true;
        WizardPageTitle *title = WizardPageTitleUiLoader::registered()->loadTitle(m_titleUiPath, parent);
        if (title)
            title->setObjectName(name);
        m_busy = false;
        return title;
    }

    QString m_titleUiPath;
};

#endif
