#ifndef QUEUEWIZ_ADDPRINTERWIZARD_H
#define QUEUEWIZ_ADDPRINTERWIZARD_H

#include "cupsdriver.h"
#include "cupsprinter.h"
#include "localdevicelist.h"
#include "networkdevicelist.h"
#include "printerchoice.h"
#include "printercreator.h"
#include "titlelesswizard.h"

#include <QMap>
#include <QString>

class DriverStep;
class FinishStep;
class ListViewItemEx;
class NameStep;
class PortStep;

// The add-printer wizard. Its pages come from the form
// "ui/AddPrinterWizardBase.ui": 0 welcome, 1 port type, 2 ports (only for a
// port chosen by hand), 3 drivers, 4 name, 5 finish. Each page's behaviour
// is a step of its own (PortStep for pages 1 and 2, DriverStep, NameStep,
// FinishStep); the wizard leads the flow: which page comes, Next and Back,
// the commit that creates the queue when the name page is left, Cancel and
// Help. Its slots are the wizard's interface to the form.
class AddPrinterWizard : public TitlelessWizard
{
    Q_OBJECT

public:
    enum PortType { PortType_Connected = 0, PortType_AutoNetwork = 1, PortType_Manual = 2 };
    enum Page { WelcomePage = 0, PortTypePage = 1, PortsPage = 2, DriverPage = 3, NamePage = 4, FinishPage = 5 };

    explicit AddPrinterWizard(QWidget *parent = nullptr, const QString &name = QString());
    ~AddPrinterWizard() override;

    // Binds and wires the form, lists the local devices and the drivers;
    // false ("Invalid UI description") when a widget is missing.
    bool setupUi();

    bool isPortAssigned() const;
    bool isDriverAssigned() const;
    bool isPrinterNameAssigned() const;
    // The checked port type, -1 before setupUi().
    int portTypeId() const;
    // The device URI the queue will get.
    QString portURI() const;

    const LocalDeviceList &localDevices() const;
    const NetworkDeviceList &networkDevices() const;
    // The queue made when the name page was left; empty before.
    const CUPSPrinter &newPrinter() const { return m_newPrinter; }
    // The drivers on the driver page, by their display name.
    const QMap<QString, CUPSDriver> &drivers() const;
    // What the pages hold now.
    PrinterChoice choice() const;

    static QString proposedName(const QString &driverText);

public slots:
    virtual void OnPortChanged();
    virtual void OnPortRenaming(ListViewItemEx *item, int column, const QString &text);
    virtual void OnDriverChanged();
    virtual void OnNameChanged();
    virtual void PrintTestPage();
    virtual void OnPrinterOptions();
    virtual void OnSearchNetworkButtonClicked();
    virtual void help();
    void reject() override;
    void setPortType(int id);
    void OnLocalPrinterChanged(const QString &text);
    void OnNetworkPrinterChanged(int index);
    void OnTestPrinterProcessExited();

protected:
    void pageEntered(int index) override;
    bool pageLeaving(int index) override;

private:
    void hideMissingNetworkHelp();
    // Creates the queue; false (after a message) keeps the name page.
    bool commitPrinter();
    // The finish page's word on the default printer and the paper size.
    QString finishNotes(const PrinterCreator::Result &result, const char *paper) const;
    void showError(const QString &text, const QString &details = QString());
    void connectSlots();
    // A page ("name.htm#anchor") of the package's help folder as a file URL,
    // in the user's language when it has been translated.
    static QString helpUrl(const QString &page);

    PortStep *m_ports;
    DriverStep *m_drivers;
    NameStep *m_names;
    FinishStep *m_finish;
    CUPSPrinter m_newPrinter;
    // Lives as long as the wizard: it remembers queues a failed commit may
    // have left half-made.
    PrinterCreator m_creator;
};

#endif
