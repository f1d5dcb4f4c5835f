#include "AddPrinterWizard.h"

#include "arrowkeyradiogroup.h"
#include "browserlauncher.h"
#include "cupsmanager.h"
#include "driverfetcher.h"
#include "drivermatcher.h"
#include "layoutdump.h"
#include "listviewitemex.h"
#include "networksearchnote.h"
#include "oemconfig.h"
#include "papersize.h"
#include "ppddialog.h"
#include "printercreator.h"
#include "printerportlistview.h"
#include "softassert.h"
#include "urlpushbutton.h"
#include "waitcursor.h"
#include "wizardpagetitle.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QUrl>

namespace {

Q_LOGGING_CATEGORY(lcLayout, "queuewiz.layout", QtWarningMsg)

QString shareDir()
{
    return QString::fromLocal8Bit(actx.shareDir);
}

// Looks a child up by name and class among all descendants.
template <class T>
bool bind(QWidget *root, T *&member, const char *name)
{
    member = root->findChild<T *>(QLatin1String(name));
    return member != nullptr;
}

} // namespace

AddPrinterWizard::AddPrinterWizard(QWidget *parent, const QString &name)
    : TitlelessWizard(parent, name)
    , m_creator(CUPSManager::m_CUPSManagerInstance)
{
}

AddPrinterWizard::~AddPrinterWizard()
{
    // A test page on its way is not cut off by closing the wizard: deleting
    // the process object would kill the program, so the object stays until
    // the program has ended, or for good when this process quits first.
    if (m_pTestPrinterProcess) {
        m_pTestPrinterProcess->disconnect(this);
        m_pTestPrinterProcess->setParent(nullptr);
        connect(m_pTestPrinterProcess, &QProcess::finished, m_pTestPrinterProcess, &QObject::deleteLater);
    }
}

bool AddPrinterWizard::bindChildren()
{
    return bind(this, m_pConnectedPrintersGroup, "ConnectedPrintersGroup")
        && bind(this, m_pConnectedButton, "ConnectedButton") && bind(this, m_pNetworkButton, "NetworkButton")
        && bind(this, m_pOfflineButton, "OfflineButton") && bind(this, m_pConnectedList, "ConnectedList")
        && bind(this, m_pNetworkList, "NetworkList") && bind(this, m_pSelectOnlineLabel, "SelectOnlineLabel")
        && bind(this, m_pSelectNetworkLabel, "SelectNetworkLabel")
        && bind(this, m_pConnectedImage, "ConnectedImage")
        && bind(this, m_pSearchNetworkButton, "SearchNetworkButton")
        && bind(this, m_pConfigureNetworkButton, "ConfigureNetworkButton")
        && bind(this, m_pPortsView, "PortsView") && bind(this, m_pDriversList, "DriversList")
        && bind(this, m_pNameEdit, "NameEdit") && bind(this, m_pLocationEdit, "LocationEdit")
        && bind(this, m_pDescriptionEdit, "DescriptionEdit") && bind(this, m_pFinishText, "FinishText")
        && bind(this, m_pTestButton, "TestButton") && bind(this, m_pOptionsButton, "OptionsButton");
}

bool AddPrinterWizard::setupUi()
{
    qCDebug(lcLayout).noquote() << LayoutDump::describe(this);

    if (!bindChildren() || pageCount() <= FinishPage) {
        qWarning("Invalid UI description");
        return false;
    }

    hideMissingNetworkHelp();

    m_portAssigned = false;
    resetPortPage();
    setBackEnabled(WelcomePage, false);

    m_pPortTypes = new QButtonGroup(this);
    m_pPortTypes->addButton(m_pConnectedButton, PortType_Connected);
    m_pPortTypes->addButton(m_pNetworkButton, PortType_AutoNetwork);
    m_pPortTypes->addButton(m_pOfflineButton, PortType_Manual);

    m_groupTitleTemplate = m_pConnectedPrintersGroup->title();
    m_pSearchNote = new NetworkSearchNote(this);
    connect(m_pSearchNote, &NetworkSearchNote::typeAddressRequested, this, &AddPrinterWizard::typeAddressInstead);

    m_pixmaps.load(shareDir());
    findLocalDevices();
    setPortType(PortType_Connected);
    m_setupFinished = true;
    m_pPortsView->setMfpMode(false);

    m_pDriversProblemLabel = findChild<QLabel *>(QStringLiteral("DriversProblemLabel"));
    m_pRetryDriversButton = findChild<QPushButton *>(QStringLiteral("RetryDriversButton"));
    if (m_pRetryDriversButton)
        connect(m_pRetryDriversButton, &QPushButton::clicked, this, &AddPrinterWizard::retryDrivers);
    fetchDrivers();

    m_pNameEdit->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[\\d\\w_]+"), QRegularExpression::UseUnicodePropertiesOption),
        m_pNameEdit));

    setBackEnabled(FinishPage, false);
    setFinishEnabled(FinishPage, true);

    m_finishTemplate = m_pFinishText->text();

    connectSlots();
    OnDriverChanged();
    OnNameChanged();

    qCDebug(lcLayout).noquote() << LayoutDump::describe(this);
    if (auto *title = findChild<WizardPageTitle *>(QStringLiteral("WizardPageTitle1"))) {
        qCDebug(lcLayout).noquote() << LayoutDump::describe(title);
        qCDebug(lcLayout).noquote() << LayoutDump::describe(title->findChild<QLabel *>(QStringLiteral("subTitleLabel")));
    }
    return true;
}

void AddPrinterWizard::connectSlots()
{
    connect(m_pPortsView, &QTreeWidget::itemSelectionChanged, this, &AddPrinterWizard::OnPortChanged);
    connect(m_pPortsView, &ListViewEx::renameCanceled, this, &AddPrinterWizard::OnPortChanged);
    connect(m_pPortsView, &ListViewEx::itemRenaming, this, &AddPrinterWizard::OnPortRenaming);
    connect(m_pDriversList, &QListWidget::itemSelectionChanged, this, &AddPrinterWizard::OnDriverChanged);
    connect(m_pNameEdit, &QLineEdit::textChanged, this, &AddPrinterWizard::OnNameChanged);
    connect(m_pTestButton, &QPushButton::clicked, this, &AddPrinterWizard::PrintTestPage);
    connect(m_pOptionsButton, &QPushButton::clicked, this, &AddPrinterWizard::OnPrinterOptions);
    connect(m_pSearchNetworkButton, &QPushButton::clicked, this, &AddPrinterWizard::OnSearchNetworkButtonClicked);
    connect(this, &QWizard::helpRequested, this, &AddPrinterWizard::help);
    // QWizard has no key for its Help button.
    auto *helpKey = new QShortcut(QKeySequence::HelpContents, this);
    connect(helpKey, &QShortcut::activated, this, &AddPrinterWizard::help);
    // The type follows the checked button however it got checked: mouse,
    // mnemonic, Space, arrows or the accessible Toggle action. The button
    // that was unchecked on the way says nothing.
    connect(m_pPortTypes, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            setPortType(id);
    });
    new ArrowKeyRadioGroup(m_pPortTypes);
    connect(m_pConnectedList, &QComboBox::textActivated, this, &AddPrinterWizard::OnLocalPrinterChanged);
    connect(m_pNetworkList, qOverload<int>(&QComboBox::activated), this, &AddPrinterWizard::OnNetworkPrinterChanged);
}

// A translated page is in help/de/ or, closer to the user's locale, help/de_AT/.
QString AddPrinterWizard::helpUrl(const QString &page)
{
    const QDir help(QDir(shareDir()).absoluteFilePath(QStringLiteral("help")));
    const QUrl relative(page);
    const QString locale = QLocale().name();
    QString path = help.filePath(relative.path());
    for (const QString &language : {locale.section(QLatin1Char('_'), 0, 0), locale}) {
        const QString translated = help.filePath(language + QLatin1Char('/') + relative.path());
        if (QFileInfo::exists(translated))
            path = translated;
    }
    QUrl url = QUrl::fromLocalFile(path);
    url.setFragment(relative.fragment());
    return url.toString();
}

// A relative address names a page of the package's help folder.
void AddPrinterWizard::hideMissingNetworkHelp()
{
    QUrl url(m_pConfigureNetworkButton->url());
    if (url.isEmpty()) {
        m_pConfigureNetworkButton->hide();
        return;
    }
    if (url.isRelative()) {
        url = QUrl(helpUrl(url.toString()));
        m_pConfigureNetworkButton->setUrl(url.toString());
    }
    if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile()))
        m_pConfigureNetworkButton->hide();
}

void AddPrinterWizard::fetchDrivers()
{
    WaitCursor wait;
    m_pDriversList->clear();
    m_drivers.clear();
    const bool fetched = DriverFetcher::fetch(CUPSManager::m_CUPSManagerInstance, m_drivers);
    for (auto it = m_drivers.cbegin(); it != m_drivers.cend(); ++it)
        m_pDriversList->addItem(it.key());
    showDriverFetchProblem(fetched);

    if (portTypeId() == PortType_Connected) {
        if (const LocalDeviceList::Device *device = m_localDevices.find(m_pConnectedList->currentText()))
            selectMatchingDriver(device->driverModel(), device->driverMake());
    }
}

void AddPrinterWizard::showDriverFetchProblem(bool fetched)
{
    if (!m_pDriversProblemLabel || !m_pRetryDriversButton)
        return;
    const CUPSManager &cups = CUPSManager::m_CUPSManagerInstance;
    if (!fetched && cups.answered())
        m_pDriversProblemLabel->setText(
            tr("The printing service could not list the drivers: %1").arg(cups.lastStatusText()));
    else if (!fetched)
        m_pDriversProblemLabel->setText(tr("The printing service does not answer"));
    m_pDriversProblemLabel->setVisible(!fetched);
    m_pRetryDriversButton->setVisible(!fetched);
}

void AddPrinterWizard::retryDrivers()
{
    fetchDrivers();
    OnDriverChanged();
    if (m_pDriversList->count() > 0)
        m_pDriversList->setFocus();
}

int AddPrinterWizard::portTypeId() const
{
    return m_pPortTypes ? m_pPortTypes->checkedId() : -1;
}

bool AddPrinterWizard::isDriverAssigned() const
{
    const QListWidgetItem *item = m_pDriversList ? m_pDriversList->currentItem() : nullptr;
    return item && m_pDriversList->currentRow() >= 0 && item->isSelected();
}

bool AddPrinterWizard::isPrinterNameAssigned() const
{
    return m_pNameEdit && !m_pNameEdit->text().isEmpty();
}

// ---- port type page ---------------------------------------------------

void AddPrinterWizard::setPortType(int id)
{
    m_setupFinished = false;
    if (m_pPortTypes->checkedId() != id) {
        if (QAbstractButton *button = m_pPortTypes->button(id))
            button->setChecked(true);
    }

    m_pConnectedList->setEnabled(id == PortType_Connected);
    m_pSelectOnlineLabel->setEnabled(id == PortType_Connected);
    m_pSelectNetworkLabel->setEnabled(id == PortType_AutoNetwork);
    m_pNetworkList->setEnabled(id == PortType_AutoNetwork);
    // A search only makes sense for the network type.
    m_pSearchNetworkButton->setEnabled(id == PortType_AutoNetwork);
    m_pSearchNote->setActive(id == PortType_AutoNetwork);

    bool ok = false;
    switch (id) {
    case PortType_Manual:
        m_portAssigned = false;
        resetPortPage();
        setAppropriate(PortsPage, true);
        setNextEnabled(PortTypePage, true);
        return;
    case PortType_Connected:
        ok = !m_pConnectedList->currentText().isEmpty();
        m_pConnectedButton->setEnabled(ok);
        m_pConnectedList->setEnabled(ok);
        m_pSelectOnlineLabel->setEnabled(ok);
        if (ok)
            applyLocalDevice(m_pConnectedList->currentText());
        break;
    case PortType_AutoNetwork:
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
    setAppropriate(PortsPage, false);
    setNextEnabled(PortTypePage, ok);
}

bool AddPrinterWizard::findLocalDevices()
{
    const bool found = m_localDevices.refresh();
    m_pConnectedList->clear();
    m_pConnectedList->addItems(m_localDevices.labels());
    return found;
}

void AddPrinterWizard::OnLocalPrinterChanged(const QString &text)
{
    if (portTypeId() != PortType_Connected)
        return;
    applyLocalDevice(text);
    setNextEnabled(PortTypePage, !text.isEmpty());
}

void AddPrinterWizard::OnSearchNetworkButtonClicked()
{
    if (!QW_CHECK(portTypeId() == PortType_AutoNetwork, "AddPrinterWizard", 1032)) {
        qWarning("Selected port type is unexpected");
        return;
    }
    QAbstractButton *button = m_pPortTypes->button(PortType_AutoNetwork);
    if (!button) {
        qWarning("Can't find port type button");
        return;
    }
    m_pNetworkList->clear();
    m_portAssigned = false;
    m_networkUri.clear();
    m_pPortsView->clearSelection();

    m_NetworkDevices.discover(actx.rootDir, actx.shareDir, CUPSManager::m_CUPSManagerInstance.CupsVersion);
    for (NetworkDeviceList::size_type i = 0; i < m_NetworkDevices.count(); ++i)
        m_pNetworkList->addItem(m_NetworkDevices.at(i).entryText());
    m_pSearchNote->setSearch(m_NetworkDevices);

    // Next and the port follow the new list.
    setPortType(m_pPortTypes->id(button));
}

void AddPrinterWizard::OnNetworkPrinterChanged(int index)
{
    if (portTypeId() != PortType_AutoNetwork)
        return;
    applyNetworkDevice(index);
    setNextEnabled(PortTypePage, m_portAssigned);
}

void AddPrinterWizard::applyNetworkDevice(int index)
{
    m_portAssigned = false;
    m_networkUri.clear();
    if (!softAssert(NetworkDeviceList::size_type(m_pNetworkList->count()) == m_NetworkDevices.count(),
                    "NetworkDeviceList::size_type(NetworkList->count()) == m_NetworkDevices.count()",
                    "AddPrinterWizard", 1117)
        || !softAssert(0 <= index && NetworkDeviceList::size_type(index) < m_NetworkDevices.count(),
                       "0 <= i && NetworkDeviceList::size_type(i) < m_NetworkDevices.count()", "AddPrinterWizard",
                       1118))
        return;

    const NetworkDeviceList::Device &device = m_NetworkDevices.at(index);
    const QString uri = device.deviceUri();
    m_pConnectedImage->setPixmap(m_pixmaps.picture(device.description));
    m_pPortsView->clearSelection();
    if (uri.isEmpty())
        return;
    // PortsView shows the URI where it has an entry of its scheme.
    selectPort(uri);
    m_networkUri = uri;
    m_portAssigned = true;
    selectMatchingDriver(device.description, QString());
}

// From a search that found nothing to the IPP entry of the ports page,
// open for typing.
void AddPrinterWizard::typeAddressInstead()
{
    m_pOfflineButton->setChecked(true);
    next();
    selectPort(QStringLiteral("ipp://"));
    m_pPortsView->setFocus();
    m_pPortsView->startRenameSelectedItem();
}

QString AddPrinterWizard::portURI() const
{
    return portTypeId() == PortType_AutoNetwork ? m_networkUri : m_pPortsView->selectedURI();
}

// ---- port page ----------------------------------------------------------

void AddPrinterWizard::resetPortPage()
{
    m_pPortsView->clearSelection();
    setNextEnabled(PortsPage, false);
    m_pConnectedImage->setPixmap(PixmapManager::genericPrinter());
}

// The device's entry in PortsView is selected, so that the queue is created
// with the URI of whatever PortsView has selected, whichever way it was chosen.
void AddPrinterWizard::applyLocalDevice(const QString &label)
{
    m_pPortsView->clearSelection();
    m_portAssigned = selectPort(QStringLiteral("mfp:") + LocalDeviceList::devicePathOf(label));

    const LocalDeviceList::Device *device = m_localDevices.find(label);
    m_pConnectedImage->setPixmap(device ? m_pixmaps.picture(device->model) : PixmapManager::genericPrinter());
    if (device)
        selectMatchingDriver(device->driverModel(), device->driverMake());
}

bool AddPrinterWizard::selectPort(const QString &uri)
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

void AddPrinterWizard::OnPortChanged()
{
    const QTreeWidgetItem *item = m_pPortsView->selectedItem();
    const bool ok = item && item->parent() && m_pPortsView->isSelectionEditable();
    m_portAssigned = ok;
    setNextEnabled(PortsPage, ok);
}

void AddPrinterWizard::OnPortRenaming(ListViewItemEx *item, int column, const QString &text)
{
    const bool ok = item && item->isAcceptable(column, text);
    m_portAssigned = ok;
    setNextEnabled(PortsPage, ok);
}

// ---- driver and name pages ---------------------------------------------

void AddPrinterWizard::selectMatchingDriver(const QString &model, const QString &make)
{
    const QString key = DriverMatcher::bestMatch(m_drivers, model, make, QLocale::system().name());
    if (key.isEmpty())
        return;
    const QList<QListWidgetItem *> items = m_pDriversList->findItems(key, Qt::MatchExactly);
    if (items.isEmpty())
        return;
    m_pDriversList->setCurrentItem(items.first());
    items.first()->setSelected(true);
    m_pDriversList->scrollToItem(items.first());
}

void AddPrinterWizard::OnDriverChanged()
{
    setNextEnabled(DriverPage, isDriverAssigned());
}

void AddPrinterWizard::OnNameChanged()
{
    setNextEnabled(NamePage, isPrinterNameAssigned());
}

QString AddPrinterWizard::proposedName(const QString &driverText)
{
    static const QRegularExpression modelToken(QStringLiteral("(\\S*\\d\\S*)"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression blanks(QStringLiteral("\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression notNameChar(QStringLiteral("[^\\d\\w_]"),
                                                QRegularExpression::UseUnicodePropertiesOption);

    const QRegularExpressionMatch m = modelToken.match(driverText);
    QString token = m.hasMatch() ? m.captured(1) : driverText.split(blanks, Qt::SkipEmptyParts).value(0);
    return token.remove(notNameChar).toLower();
}

void AddPrinterWizard::proposeName()
{
    softAssert(!isPrinterNameAssigned(), "!isPrinterNameAssigned()", "AddPrinterWizard", 1366);
    softAssert(isDriverAssigned(), "isDriverAssigned()", "AddPrinterWizard", 1367);
    const QListWidgetItem *item = m_pDriversList->currentItem();
    m_pNameEdit->setText(proposedName(item ? item->text() : QString()));
    m_pNameEdit->setFocus();
}

void AddPrinterWizard::pageEntered(int index)
{
    if (index != NamePage)
        return;
    softAssert(isPortAssigned(), "isPortAssigned()", "AddPrinterWizard", 591);
    softAssert(isDriverAssigned(), "isDriverAssigned()", "AddPrinterWizard", 592);
    // A name the user typed or accepted earlier is never replaced.
    if (!isPrinterNameAssigned())
        proposeName();
}

// Leaving the name page creates the printer.
bool AddPrinterWizard::pageLeaving(int index)
{
    return index != NamePage || commitPrinter();
}

// ---- creating the printer -----------------------------------------------

bool AddPrinterWizard::commitPrinter()
{
    softAssert(isPortAssigned(), "isPortAssigned()", "AddPrinterWizard", 609);
    softAssert(isDriverAssigned(), "isDriverAssigned()", "AddPrinterWizard", 610);
    softAssert(isPrinterNameAssigned(), "isPrinterNameAssigned()", "AddPrinterWizard", 611);

    const QString name = m_pNameEdit->text();
    CUPSPrinter printer(name);
    printer.setDeviceURI(portURI());
    printer.setLocation(m_pLocationEdit->text());
    printer.setInfo(m_pDescriptionEdit->text());
    printer.setState(IPP_PSTATE_IDLE);
    printer.setAcceptingJobs(true);
    const QListWidgetItem *driver = m_pDriversList->currentItem();
    printer.setDriver(m_drivers.value(driver ? driver->text() : QString()));

    const char *paper = defaultPaperSize();
    PrinterCreator::Result result;
    {
        WaitCursor wait;
        result = m_creator.commit(printer, paper);
    }
    switch (result.outcome) {
    case PrinterCreator::Result::NameInUse:
        showError(tr("Printer '%s' already exists! Choose another name.").replace(QLatin1String("%s"), name));
        m_pNameEdit->setFocus();
        m_pNameEdit->selectAll();
        return false;
    case PrinterCreator::Result::NameUnchecked:
        showError(tr("Can't check whether the name is free: %1. Try again.").arg(result.reason));
        return false;
    case PrinterCreator::Result::NotCreated:
        showError(tr("Can't add printer!"),
                  result.removed ? result.reason + QLatin1Char('\n') + tr("The incomplete printer was removed again.")
                                 : result.reason);
        return false;
    case PrinterCreator::Result::Created:
        break;
    }
    printer.setDefault(result.madeDefault);
    m_newPrinter = printer;

    m_pFinishText->setText(m_finishTemplate.arg(name.toHtmlEscaped(), m_newPrinter.Driver().Model().toHtmlEscaped(),
                                                m_newPrinter.DeviceURI().toHtmlEscaped(), finishNotes(result, paper)));
    // The queue exists now: there is nothing to go back to or to cancel.
    setOption(QWizard::NoBackButtonOnLastPage, true);
    setOption(QWizard::NoCancelButton, true);
    return true;
}

// The queue works either way; the user learns what to set by hand.
QString AddPrinterWizard::finishNotes(const PrinterCreator::Result &result, const char *paper) const
{
    QString notes = result.madeDefault ? tr("It is now your default printer.")
                                       : tr("It could not be made your default printer.");
    if (!result.paperSet)
        notes += QLatin1Char(' ')
            + tr("Its paper size could not be set to %1; choose it in the driver options.").arg(QLatin1String(paper));
    return QStringLiteral("<p>") + notes.toHtmlEscaped() + QStringLiteral("</p>");
}

void AddPrinterWizard::showError(const QString &text, const QString &details)
{
    QMessageBox box(QMessageBox::Critical, tr("Error!"), text, QMessageBox::Ok, this);
    box.setInformativeText(details);
    box.exec();
}

// ---- finish page --------------------------------------------------------

void AddPrinterWizard::PrintTestPage()
{
    // One test page at a time.
    if (!softAssert(!m_pTestPrinterProcess, "!m_pTestPrinterProcess", "AddPrinterWizard", 672))
        return;

    CUPSPrinter printer;
    bool found = false;
    {
        WaitCursor wait;
        found = CUPSManager::m_CUPSManagerInstance.findPrinter(m_newPrinter.Name(), printer);
    }
    if (!found)
        return;
    const QString program = PrinterCreator::testPageProgram(QString::fromLocal8Bit(actx.rootDir));
    if (program.isEmpty())
        return;

    auto *process = new QProcess(this);
    process->setProcessEnvironment(PrinterCreator::cupsClientEnvironment());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // A session of its own: no terminal to stop it or to end it with.
    process->setChildProcessModifier([] { ::setsid(); });
    connect(process, &QProcess::finished, this, &AddPrinterWizard::OnTestPrinterProcessExited);
    process->start(program, {printer.Name()});
    if (!process->waitForStarted()) {
        delete process;
        return;
    }
    m_pTestPrinterProcess = process;
    m_pTestButton->setEnabled(false);
}

// The test page program exits with 1 when the scheduler took the page.
void AddPrinterWizard::OnTestPrinterProcessExited()
{
    if (!m_pTestPrinterProcess)
        return;
    if (m_pTestPrinterProcess->exitStatus() != QProcess::NormalExit || m_pTestPrinterProcess->exitCode() == 0)
        qWarning("TestPrinter failed\n");
    m_pTestPrinterProcess->deleteLater();
    m_pTestPrinterProcess = nullptr;
    m_pTestButton->setEnabled(true);
}

void AddPrinterWizard::OnPrinterOptions()
{
    PPDDialog::runForPrinter(m_newPrinter.Name(), this);
}

// ---- wizard buttons -------------------------------------------------------

void AddPrinterWizard::help()
{
    BrowserLauncher::launch(helpUrl(QStringLiteral("PellomarAddPrinterWizard.htm")), this);
}

void AddPrinterWizard::reject()
{
    // On the last page the printer exists already: nothing to cancel.
    if (currentId() == FinishPage) {
        accept();
        return;
    }
    QMessageBox box(QMessageBox::Warning, tr("Add printer Wizard"),
                    tr("Printer is not installed. Are you sure to cancel wizard?"), QMessageBox::NoButton, this);
    QPushButton *yes = box.addButton(tr("Yes"), QMessageBox::YesRole);
    QPushButton *no = box.addButton(tr("No"), QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    if (box.clickedButton() == yes)
        TitlelessWizard::reject();
}
