#include "queuewizuiloader.h"

#include "printerportlistview.h"
#include "urlpushbutton.h"

#include <memory>

namespace {
QueuewizUiLoader *s_registered = nullptr;
}

QueuewizUiLoader::QueuewizUiLoader(const QString &titleUiPath, QObject *parent)
    : WizardUiLoader<AddPrinterWizard>(titleUiPath, parent)
{
}

QWidget *QueuewizUiLoader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    if (className == QLatin1String("PrinterPortListView"))
        return new PrinterPortListView(parent, name.toLatin1().constData());
    if (className == QLatin1String("URLPushButton"))
        return new URLPushButton(parent, name.toLatin1().constData());
    return WizardUiLoader<AddPrinterWizard>::createWidget(className, parent, name);
}

AddPrinterWizard *QueuewizUiLoader::load(const QString &uiPath, const QString &titleUiPath, QWidget *parent,
                                         QString *loadError)
{
    // The first loader stays for the life of the process; later loads use
    // one of their own.
    std::unique_ptr<QueuewizUiLoader> own;
    QueuewizUiLoader *loader = nullptr;
    if (!s_registered) {
        s_registered = new QueuewizUiLoader(titleUiPath);
        loader = s_registered;
    } else {
        own = std::make_unique<QueuewizUiLoader>(titleUiPath);
        loader = own.get();
    }
    QWidget *form = loader->loadAs(uiPath, QStringLiteral("AddPrinterWizard"), parent);
    if (loadError)
        *loadError = loader->loadError();
    return setupAs<AddPrinterWizard>(form);
}

QueuewizUiLoader *QueuewizUiLoader::registered()
{
    return s_registered;
}
