#ifndef QUEUEWIZ_ADDPRINTERWIZARD_H
#define QUEUEWIZ_ADDPRINTERWIZARD_H

#include "cupsdriver.h"
#include "cupsprinter.h"
#include "localdevicelist.h"
#include "networkdevicelist.h"
#include "pixmapmanager.h"
#include "printercreator.h"
#include "titlelesswizard.h"

#include <QMap>
#include <QString>

class ListViewItemEx;
class NetworkSearchNote;
class PrinterPortListView;
class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProcess;
class QPushButton;
class QRadioButton;
class URLPushButton;

// The add-printer wizard. Its pages come from the form
// "ui/AddPrinterWizardBase.ui"; setupUi() binds the form's widgets by name:
// 0 welcome, 1 port type, 2 ports (only for a port chosen by hand),
// 3 drivers, 4 name, 5 finish.
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

    bool isPortAssigned() const { return m_portAssigned; }
    bool isDriverAssigned() const;
    bool isPrinterNameAssigned() const;
    // The checked port type, -1 before setupUi().
    int portTypeId() const;
    // The device URI the queue will get: the network printer's when that
    // type is chosen, else PortsView's selected entry's.
    QString portURI() const;

    const LocalDeviceList &localDevices() const { return m_localDevices; }
    const NetworkDeviceList &networkDevices() const { return m_NetworkDevices; }
    // The queue made when the name page was left; empty before.
    const CUPSPrinter &newPrinter() const { return m_newPrinter; }
    // The drivers on the driver page, by their display name.
    const QMap<QString, CUPSDriver> &drivers() const { return m_drivers; }

    // The name proposed for a driver's display name: its first word holding
    // a digit, else its first word; only letters, digits and "_", in lower
    // case ("Laser 1610 Series" gives "1610", "Acme Deskjet" gives "acme").
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
    bool bindChildren();
    void hideMissingNetworkHelp();
    void fetchDrivers();
    void resetPortPage();
    bool findLocalDevices();
    void applyLocalDevice(const QString &label);
    void selectMatchingDriver(const QString &model, const QString &make);
    void applyNetworkDevice(int index);
    void typeAddressInstead();
    // Selects the entry of PortsView that stands for uri.
    bool selectPort(const QString &uri);
    void proposeName();
    // Creates the queue; false (after a message) keeps the name page.
    bool commitPrinter();
    // The finish page's word on the default printer and the paper size.
    QString finishNotes(const PrinterCreator::Result &result, const char *paper) const;
    // The driver page's explanation and Retry button, shown when the list
    // could not be fetched.
    void showDriverFetchProblem(bool fetched);
    void retryDrivers();
    void showError(const QString &text, const QString &details = QString());
    void connectSlots();
    // A page ("name.htm#anchor") of the package's help folder as a file URL,
    // in the user's language when it has been translated.
    static QString helpUrl(const QString &page);

    QGroupBox *m_pConnectedPrintersGroup = nullptr;
    QRadioButton *m_pConnectedButton = nullptr;
    QRadioButton *m_pNetworkButton = nullptr;
    QRadioButton *m_pOfflineButton = nullptr;
    QComboBox *m_pConnectedList = nullptr;
    QComboBox *m_pNetworkList = nullptr;
    QLabel *m_pSelectOnlineLabel = nullptr;
    QLabel *m_pSelectNetworkLabel = nullptr;
    QLabel *m_pConnectedImage = nullptr;
    QPushButton *m_pSearchNetworkButton = nullptr;
    URLPushButton *m_pConfigureNetworkButton = nullptr;
    PrinterPortListView *m_pPortsView = nullptr;
    QListWidget *m_pDriversList = nullptr;
    QLineEdit *m_pNameEdit = nullptr;
    QLineEdit *m_pLocationEdit = nullptr;
    QLineEdit *m_pDescriptionEdit = nullptr;
    QLabel *m_pFinishText = nullptr;
    QPushButton *m_pTestButton = nullptr;
    QPushButton *m_pOptionsButton = nullptr;
    // Optional: a form without them shows an empty list and no reason.
    QLabel *m_pDriversProblemLabel = nullptr;
    QPushButton *m_pRetryDriversButton = nullptr;

    QButtonGroup *m_pPortTypes = nullptr;
    NetworkSearchNote *m_pSearchNote = nullptr;
    LocalDeviceList m_localDevices;
    NetworkDeviceList m_NetworkDevices;
    CUPSPrinter m_newPrinter;
    // The chosen network printer's URI; PortsView has no entry for some.
    QString m_networkUri;
    // Lives as long as the wizard: it remembers queues a failed commit may
    // have left half-made.
    PrinterCreator m_creator;
    // The running test page program, null when none runs.
    QProcess *m_pTestPrinterProcess = nullptr;
    QMap<QString, CUPSDriver> m_drivers;
    PixmapManager m_pixmaps;
    // The texts the form gives, before anything is filled in.
    QString m_groupTitleTemplate;
    QString m_finishTemplate;  // %1 name, %2 model, %3 device URI
    // PortsView's selected entry is the port the queue will use.
    bool m_portAssigned = false;
    // Cleared while setPortType() runs, set once setupUi() has applied the
    // first port type.
    bool m_setupFinished = false;
};

#endif
