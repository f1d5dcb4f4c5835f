#ifndef QUEUEWIZ_WIZARDPAGETITLEUILOADER_H
#define QUEUEWIZ_WIZARDPAGETITLEUILOADER_H

#include "uiloaderex.h"

class WizardPageTitle;

// Makes the top level of "wizardpagetitle.ui" a WizardPageTitle.
class WizardPageTitleUiLoader : public UiLoaderEx
{
    Q_OBJECT

public:
    explicit WizardPageTitleUiLoader(QObject *parent = nullptr);

    QWidget *createWidget(const QString &className, QWidget *parent = nullptr,
                          const QString &name = QString()) override;

    static QString defaultFileName() { return QStringLiteral("wizardpagetitle.ui"); }
    static QString defaultImageDir() { return QStringLiteral("images"); }

    // Loads a title form and binds its labels; nothing on failure.
    WizardPageTitle *loadTitle(const QString &fileName, QWidget *parent);

    // The process's one title loader, made on first use.
    static WizardPageTitleUiLoader *registered();
};

#endif
