// A form file of any content as the program's loaders read it: the first
// byte picks the page-title loader (the form set up as a page title) or the
// wizard's loader (the form loaded as the wizard, with the installed title
// form on its pages); the rest is the form.
#include "fuzztarget.h"
#include "offscreenapp.h"
#include "queuewizuiloader.h"
#include "wizardpagetitle.h"
#include "wizardpagetitleuiloader.h"

#include <QBuffer>
#include <QByteArray>

#include <memory>

QW_FUZZ_TARGET
{
    ensureOffscreenApplication("fuzz_formloader");
    if (size < 1)
        return 0;

    QBuffer form;
    form.setData(QByteArray(reinterpret_cast<const char *>(data + 1), static_cast<qsizetype>(size - 1)));
    form.open(QIODevice::ReadOnly);
    if (data[0] & 1) {
        QueuewizUiLoader loader(QStringLiteral(QW_FUZZ_TITLE_FORM));
        std::unique_ptr<QWidget> wizard(loader.loadAs(&form, QStringLiteral("AddPrinterWizard")));
        require(!loader.isBusy());
    } else {
        WizardPageTitleUiLoader *loader = WizardPageTitleUiLoader::registered();
        std::unique_ptr<WizardPageTitle> title(
            UiLoaderEx::setupAs<WizardPageTitle>(loader->loadAs(&form, QStringLiteral("WizardPageTitle"))));
    }
    return 0;
}
