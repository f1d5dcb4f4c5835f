#ifndef QUEUEWIZ_WIZARDPAGETITLEUILOADER_H
#define QUEUEWIZ_WIZARDPAGETITLEUILOADER_H

#include "uiloaderex.h"

#include <QDateTime>

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

    // Builds a title from the form fileName and binds its labels; nothing
    // on failure. The file is read and parsed once, again only when it
    // changes: a wizard has a title on every page.
    WizardPageTitle *loadTitle(const QString &fileName, QWidget *parent);

    // The process's one title loader, made on first use.
    static WizardPageTitleUiLoader *registered();

private:
    // The form last read, with the file's name and state when it was read.
    Form m_form;
    QString m_formFile;
    QDateTime m_formModified;
    qint64 m_formSize = -1;
};

#endif
