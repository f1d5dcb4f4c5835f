#ifndef QUEUEWIZ_PORTSTEP_H
#define QUEUEWIZ_PORTSTEP_H

#include "localdevicelist.h"
#include "networkdevicelist.h"
#include "pixmapmanager.h"

#include <QObject>
#include <QString>

class ListViewItemEx;
class NetworkSearchNote;
class PrinterPortListView;
class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTreeWidgetItem;
class TitlelessWizard;
class URLPushButton;

// How the printer is attached: the port-type page (a local device, a
// network printer found by discovery, or a port chosen by hand) and the
// ports page. Whichever way the port was chosen, it is the entry selected
// in the port list, so the queue gets that entry's device URI.
class PortStep : public QObject
{
    Q_OBJECT

public:
    enum PortType { Connected = 0, AutoNetwork = 1, Manual = 2 };

    PortStep(TitlelessWizard *wizard, int portTypePage, int portsPage);

    // False when the form lacks one of the step's widgets.
    bool bind(QWidget *form);
    // Lists the local devices and starts on the local port type.
    void setUp(const QString &shareDir);

    bool isPortAssigned() const { return m_portAssigned; }
    // The checked port type, -1 before setUp().
    int portTypeId() const;
    // The device URI the queue will get: the network printer's when that
    // type is chosen (the port list has no entry for some, ipps:// say),
    // else the port list's selected entry's.
    QString deviceUri() const;
    const LocalDeviceList &localDevices() const { return m_localDevices; }
    const NetworkDeviceList &networkDevices() const { return m_networkDevices; }

    void setPortType(int id);
    void localPrinterChanged(const QString &text);
    void networkPrinterChanged(int index);
    void searchNetwork();
    void portChanged();
    void portRenaming(ListViewItemEx *item, int column, const QString &text);
    // A network address typed and kept on the ports page is asked what
    // printer it is, once per address; the answer picks the driver.
    void probeTypedPort();

    QButtonGroup *portTypes() const { return m_pPortTypes; }
    PrinterPortListView *portsView() const { return m_pPortsView; }
    URLPushButton *configureNetworkButton() const { return m_pConfigureNetworkButton; }

signals:
    // The printer chosen, for the driver page to match; empty when none.
    void deviceChosen(const QString &model, const QString &make);

private:
    bool findLocalDevices();
    void resetPortPage();
    void applyLocalDevice(const QString &label);
    void applyNetworkDevice(int index);
    // From a search that found nothing to the IPP entry of the ports page,
    // open for typing.
    void typeAddressInstead();
    // Selects the entry of the port list that stands for uri.
    bool selectPort(const QString &uri);
    // Says on label which queue already prints to uri; empty when none.
    QString noteExistingQueue(QLabel *label, const QString &uri, const QString &serviceName = QString());
    void portKept(QTreeWidgetItem *item);

    TitlelessWizard *m_wizard;
    const int m_portTypePage;
    const int m_portsPage;
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
    QButtonGroup *m_pPortTypes = nullptr;
    NetworkSearchNote *m_pSearchNote = nullptr;
    // Optional notes of the port type page and of the ports page.
    QLabel *m_pPortTypeNote = nullptr;
    QLabel *m_pPortNote = nullptr;

    LocalDeviceList m_localDevices;
    NetworkDeviceList m_networkDevices;
    PixmapManager m_pixmaps;
    // The port list's selected entry is the port the queue will use.
    bool m_portAssigned = false;
    // The chosen network printer's URI.
    QString m_networkUri;
    // The typed address last asked, as it answered.
    QString m_probedUri;
};

#endif
