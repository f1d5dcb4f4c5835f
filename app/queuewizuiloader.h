#ifndef QUEUEWIZ_QUEUEWIZUILOADER_H
#define QUEUEWIZ_QUEUEWIZUILOADER_H

#include "AddPrinterWizard.h"
#include "wizarduiloader.h"

// The loader of the program: the wizard's form with the program's own
// widgets (port list, help buttons, page titles) and the wizard class.
class QueuewizUiLoader : public WizardUiLoader<AddPrinterWizard>
{
public:
    explicit QueuewizUiLoader(const QString &titleUiPath, QObject *parent = nullptr);

    QWidget *createWidget(const QString &className, QWidget *parent = nullptr,
                          const QString &name = QString()) override;

    // The wizard of uiPath, its page titles from titleUiPath, set up; nothing
    // (after the loader's warnings) when the form is unusable. *loadError
    // receives why a form file could not be read (UiLoaderEx::loadError()).
    static AddPrinterWizard *load(const QString &uiPath, const QString &titleUiPath, QWidget *parent = nullptr,
                                  QString *loadError = nullptr);

    // The loader kept from the first load of the process; null before.
    static QueuewizUiLoader *registered();
};

#endif
