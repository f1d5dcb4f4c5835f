#include "portstep.h"

#include "cupsmanager.h"
#include "networksearchnote.h"
#include "oemconfig.h"
#include "printerprobe.h"
#include "printerportlistview.h"
#include "samedevice.h"
#include "softassert.h"
#include "titlelesswizard.h"
#include "urlpushbutton.h"
#include "waitcursor.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

// Looks a child up by name and class among all descendants.
template <class T>
bool bindChild(QWidget *root, T *&member, const char *name)
{
    member = root->findChild<T *>(QLatin1String(name));
    return member != nullptr;
}

} // namespace

PortStep::PortStep(TitlelessWizard *wizard, int portTypePage, int portsPage)
    : QObject(wizard)
    , m_wizard(wizard)
    , m_portTypePage(portTypePage)
    , m_portsPage(portsPage)
{
}

bool PortStep::bind(QWidget *form)
{
    return bindChild(form, m_pConnectedPrintersGroup, "ConnectedPrintersGroup")
        && bindChild(form, m_pConnectedButton, "ConnectedButton") && bindChild(form, m_pNetworkButton, "NetworkButton")
        && bindChild(form, m_pOfflineButton, "OfflineButton") && bindChild(form, m_pConnectedList, "ConnectedList")
        && bindChild(form, m_pNetworkList, "NetworkList") && bindChild(form, m_pSelectOnlineLabel, "SelectOnlineLabel")
        && bindChild(form, m_pSelectNetworkLabel, "SelectNetworkLabel")
        && bindChild(form, m_pConnectedImage, "ConnectedImage")
        && bindChild(form, m_pSearchNetworkButton, "SearchNetworkButton")
        && bindChild(form, m_pConfigureNetworkButton, "ConfigureNetworkButton")
        && bindChild(form, m_pPortsView, "PortsView");
}

void PortStep::setUp(const QString &shareDir)
{
    m_portAssigned = false;
    resetPortPage();

    m_pPortTypes = new QButtonGroup(this);
    m_pPortTypes->addButton(m_pConnectedButton, Connected);
    m_pPortTypes->addButton(m_pNetworkButton, AutoNetwork);
    m_pPortTypes->addButton(m_pOfflineButton, Manual);
    m_pSearchNote = new NetworkSearchNote(m_wizard);
    connect(m_pSearchNote, &NetworkSearchNote::typeAddressRequested, this, &PortStep::typeAddressInstead);
    m_pPortTypeNote = m_wizard->findChild<QLabel *>(QStringLiteral("PortTypeNoteLabel"));
    m_pPortNote = m_wizard->findChild<QLabel *>(QStringLiteral("PortNoteLabel"));
    for (QLabel *note : { m_pPortTypeNote, m_pPortNote }) {
        if (note)
            note->hide();
    }
    connect(m_pPortsView, &QTreeWidget::itemChanged, this, &PortStep::portKept);

    m_pixmaps.load(shareDir);
    findLocalDevices();
    setPortType(Connected);
    m_pPortsView->setMfpMode(false);
}

int PortStep::portTypeId() const
{
    return m_pPortTypes ? m_pPortTypes->checkedId() : -1;
}

QString PortStep::deviceUri() const
{
    return portTypeId() == AutoNetwork ? m_networkUri : m_pPortsView->selectedURI();
}

// ---- port type page ---------------------------------------------------

void PortStep::setPortType(int id)
{
    if (m_pPortTypes->checkedId() != id) {
        if (QAbstractButton *button = m_pPortTypes->button(id))
            button->setChecked(true);
    }

    m_pConnectedList->setEnabled(id == Connected);
    m_pSelectOnlineLabel->setEnabled(id == Connected);
    m_pSelectNetworkLabel->setEnabled(id == AutoNetwork);
    m_pNetworkList->setEnabled(id == AutoNetwork);
    // A search only makes sense for the network type.
    m_pSearchNetworkButton->setEnabled(id == AutoNetwork);
    m_pSearchNote->setActive(id == AutoNetwork);

    bool ok = false;
    switch (id) {
    case Manual:
        m_portAssigned = false;
        noteExistingQueue(m_pPortTypeNote, QString());
        resetPortPage();
        emit deviceChosen(QString(), QString());
        m_wizard->setAppropriate(m_portsPage, true);
        m_wizard->setNextEnabled(m_portTypePage, true);
        return;
    case Connected:
        ok = !m_pConnectedList->currentText().isEmpty();
        m_pConnectedButton->setEnabled(ok);
        m_pConnectedList->setEnabled(ok);
        m_pSelectOnlineLabel->setEnabled(ok);
        if (ok)
            applyLocalDevice(m_pConnectedList->currentText());
        break;
    case AutoNetwork:
        ok = !m_pNetworkList->currentText().isEmpty();
        m_pSelectNetworkLabel->setEnabled(ok);
        m_pNetworkList->setEnabled(ok);
        if (ok)
            applyNetworkDevice(m_pNetworkList->currentIndex());
        // A printer that offers no known protocol gives no port.
        ok = ok && m_portAssigned;
        break;
    default:
        qWarning("Unknown port type identifier %d", id);
        return;
    }
    m_wizard->setAppropriate(m_portsPage, false);
    m_wizard->setNextEnabled(m_portTypePage, ok);
}

bool PortStep::findLocalDevices()
{
    const bool found = m_localDevices.refresh();
    m_pConnectedList->clear();
    m_pConnectedList->addItems(m_localDevices.labels());
    return found;
}

void PortStep::localPrinterChanged(const QString &text)
{
    if (portTypeId() != Connected)
        return;
    applyLocalDevice(text);
    m_wizard->setNextEnabled(m_portTypePage, !text.isEmpty());
}

void PortStep::searchNetwork()
{
    if (!QW_CHECK(portTypeId() == AutoNetwork, "AddPrinterWizard", 1032)) {
        qWarning("Selected port type is unexpected");
        return;
    }
    QAbstractButton *button = m_pPortTypes->button(AutoNetwork);
    if (!button) {
        qWarning("Can't find port type button");
        return;
    }
    m_pNetworkList->clear();
    m_portAssigned = false;
    m_networkUri.clear();
    m_pPortsView->clearSelection();

    m_networkDevices.discover(actx.rootDir, actx.shareDir, CUPSManager::m_CUPSManagerInstance.CupsVersion);
    for (NetworkDeviceList::size_type i = 0; i < m_networkDevices.count(); ++i)
        m_pNetworkList->addItem(m_networkDevices.at(i).entryText());
    m_pSearchNote->setSearch(m_networkDevices);

    // Next and the port follow the new list.
    setPortType(m_pPortTypes->id(button));
}

void PortStep::networkPrinterChanged(int index)
{
    if (portTypeId() != AutoNetwork)
        return;
    applyNetworkDevice(index);
    m_wizard->setNextEnabled(m_portTypePage, m_portAssigned);
}

void PortStep::applyNetworkDevice(int index)
{
    m_portAssigned = false;
    m_networkUri.clear();
    if (!softAssert(NetworkDeviceList::size_type(m_pNetworkList->count()) == m_networkDevices.count(),
                    "NetworkDeviceList::size_type(NetworkList->count()) == m_NetworkDevices.count()",
                    "AddPrinterWizard", 1117)
        || !softAssert(0 <= index && NetworkDeviceList::size_type(index) < m_networkDevices.count(),
                       "0 <= i && NetworkDeviceList::size_type(i) < m_NetworkDevices.count()", "AddPrinterWizard",
                       1118))
        return;

    const NetworkDeviceList::Device &device = m_networkDevices.at(index);
    const QString uri = device.deviceUri();
    m_pConnectedImage->setPixmap(m_pixmaps.picture(device.description));
    m_pPortsView->clearSelection();
    if (uri.isEmpty())
        return;
    // The port list shows the URI where it has an entry of its scheme.
    selectPort(uri);
    m_networkUri = uri;
    m_portAssigned = true;
    noteExistingQueue(m_pPortTypeNote, uri, device.description);
    emit deviceChosen(device.description, QString());
}

void PortStep::typeAddressInstead()
{
    m_pOfflineButton->setChecked(true);
    m_wizard->next();
    selectPort(QStringLiteral("ipp://"));
    m_pPortsView->setFocus();
    m_pPortsView->startRenameSelectedItem();
}

// ---- port page ----------------------------------------------------------

void PortStep::resetPortPage()
{
    m_pPortsView->clearSelection();
    m_wizard->setNextEnabled(m_portsPage, false);
    m_pConnectedImage->setPixmap(PixmapManager::genericPrinter());
}

void PortStep::applyLocalDevice(const QString &label)
{
    m_pPortsView->clearSelection();
    const QString uri = QStringLiteral("mfp:") + LocalDeviceList::devicePathOf(label);
    m_portAssigned = selectPort(uri);
    noteExistingQueue(m_pPortTypeNote, m_portAssigned ? uri : QString());

    const LocalDeviceList::Device *device = m_localDevices.find(label);
    m_pConnectedImage->setPixmap(device ? m_pixmaps.picture(device->model) : PixmapManager::genericPrinter());
    if (device)
        emit deviceChosen(device->driverModel(), device->driverMake());
}

bool PortStep::selectPort(const QString &uri)
{
    // A network entry holds the last URI put into it; it has to begin with
    // its bare scheme again to be found for another address.
    const qsizetype schemeEnd = uri.indexOf(QLatin1String("://"));
    if (schemeEnd > 0) {
        const QString prefix = uri.left(schemeEnd + 3);
        const QList<QTreeWidgetItem *> entries =
            m_pPortsView->findItems(prefix, Qt::MatchStartsWith | Qt::MatchRecursive);
        for (QTreeWidgetItem *entry : entries) {
            if (entry->parent())
                entry->setText(0, prefix);
        }
    }
    m_pPortsView->selectURI(uri);
    return m_pPortsView->selectedURI() == uri;
}

void PortStep::portChanged()
{
    const QTreeWidgetItem *item = m_pPortsView->selectedItem();
    const bool ok = item && item->parent() && m_pPortsView->isSelectionEditable();
    m_portAssigned = ok;
    m_wizard->setNextEnabled(m_portsPage, ok);
    // What was said of another port is gone; a typed one is looked at once
    // it is kept.
    noteExistingQueue(m_pPortNote, QString());
}

void PortStep::portRenaming(ListViewItemEx *item, int column, const QString &text)
{
    const bool ok = item && item->isAcceptable(column, text);
    m_portAssigned = ok;
    m_wizard->setNextEnabled(m_portsPage, ok);
}

QString PortStep::noteExistingQueue(QLabel *label, const QString &uri, const QString &serviceName)
{
    QString queue;
    QMap<QString, CUPSPrinter> queues;
    if (!uri.isEmpty() && CUPSManager::m_CUPSManagerInstance.listPrinters(queues))
        queue = SameDevice::queueOf(uri, queues, serviceName);
    if (label) {
        // A second queue with other options is legitimate: only a note.
        label->setText(queue.isEmpty() ? QString() : tr("This printer is already set up as '%1'.").arg(queue));
        label->setVisible(!queue.isEmpty());
    }
    return queue;
}

void PortStep::portKept(QTreeWidgetItem *item)
{
    if (item && item == m_pPortsView->selectedItem() && m_wizard->currentId() == m_portsPage && m_portAssigned)
        probeTypedPort();
}

void PortStep::probeTypedPort()
{
    const QString uri = m_pPortsView->selectedURI();
    if (portTypeId() != Manual || !m_portAssigned || uri == m_probedUri)
        return;
    m_probedUri = uri;
    const QString queue = noteExistingQueue(m_pPortNote, uri);
    if (!PrinterProbe::canAsk(uri))
        return;

    PrinterProbe::Answer answer;
    {
        WaitCursor wait;
        answer = PrinterProbe::ask(uri, 2000);
    }
    QString text;
    if (answer.answered) {
        // The resource that answered is where the queue will print.
        if (answer.uri != uri) {
            m_probedUri = answer.uri;
            m_pPortsView->selectedItem()->setText(0, answer.uri);
        }
        text = answer.makeAndModel.isEmpty() ? tr("The printer answered but did not say its model.")
                                             : tr("The printer says it is: %1.").arg(answer.makeAndModel);
        emit deviceChosen(answer.makeAndModel, QString());
    } else {
        text = tr("The printer did not answer. Choose its driver yourself.");
    }
    if (m_pPortNote) {
        m_pPortNote->setText(queue.isEmpty() ? text : m_pPortNote->text() + QLatin1Char('\n') + text);
        m_pPortNote->show();
    }
}
