#include "AddPrinterWizard.h"

#include "arrowkeyradiogroup.h"
#include "browserlauncher.h"
#include "cupsmanager.h"
#include "driverstep.h"
#include "finishstep.h"
#include "layoutdump.h"
#include "namestep.h"
#include "oemconfig.h"
#include "papersize.h"
#include "portstep.h"
#include "printerportlistview.h"
#include "softassert.h"
#include "urlpushbutton.h"
#include "waitcursor.h"
#include "wizardpagetitle.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QUrl>

namespace {

Q_LOGGING_CATEGORY(lcLayout, "queuewiz.layout", QtWarningMsg)

QString shareDir()
{
    return QString::fromLocal8Bit(actx.shareDir);
}

} // namespace

AddPrinterWizard::AddPrinterWizard(QWidget *parent, const QString &name)
    : TitlelessWizard(parent, name)
    , m_ports(new PortStep(this, PortTypePage, PortsPage))
    , m_drivers(new DriverStep(this, DriverPage))
    , m_names(new NameStep(this, NamePage))
    , m_finish(new FinishStep(this))
    , m_creator(CUPSManager::m_CUPSManagerInstance)
{
    connect(m_ports, &PortStep::deviceChosen, m_drivers, &DriverStep::selectMatching);
}

AddPrinterWizard::~AddPrinterWizard() = default;

bool AddPrinterWizard::setupUi()
{
    qCDebug(lcLayout).noquote() << LayoutDump::describe(this);

    if (!m_ports->bind(this) || !m_drivers->bind(this) || !m_names->bind(this) || !m_finish->bind(this)
        || pageCount() <= FinishPage) {
        qWarning("Invalid UI description");
        return false;
    }

    hideMissingNetworkHelp();
    setBackEnabled(WelcomePage, false);
    m_ports->setUp(shareDir());
    m_drivers->fetch();
    m_names->setUp();

    setBackEnabled(FinishPage, false);
    setFinishEnabled(FinishPage, true);

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
    PrinterPortListView *ports = m_ports->portsView();
    connect(ports, &QTreeWidget::itemSelectionChanged, this, &AddPrinterWizard::OnPortChanged);
    connect(ports, &ListViewEx::renameCanceled, this, &AddPrinterWizard::OnPortChanged);
    connect(ports, &ListViewEx::itemRenaming, this, &AddPrinterWizard::OnPortRenaming);
    connect(findChild<QListWidget *>(QStringLiteral("DriversList")), &QListWidget::itemSelectionChanged, this,
            &AddPrinterWizard::OnDriverChanged);
    connect(findChild<QLineEdit *>(QStringLiteral("NameEdit")), &QLineEdit::textChanged, this,
            &AddPrinterWizard::OnNameChanged);
    connect(m_finish->testButton(), &QPushButton::clicked, this, &AddPrinterWizard::PrintTestPage);
    connect(m_finish->optionsButton(), &QPushButton::clicked, this, &AddPrinterWizard::OnPrinterOptions);
    connect(m_finish, &FinishStep::testPageProgramFinished, this, &AddPrinterWizard::OnTestPrinterProcessExited);
    connect(findChild<QPushButton *>(QStringLiteral("SearchNetworkButton")), &QPushButton::clicked, this,
            &AddPrinterWizard::OnSearchNetworkButtonClicked);
    connect(this, &QWizard::helpRequested, this, &AddPrinterWizard::help);
    // QWizard has no key for its Help button.
    auto *helpKey = new QShortcut(QKeySequence::HelpContents, this);
    connect(helpKey, &QShortcut::activated, this, &AddPrinterWizard::help);
    // The type follows the checked button however it got checked: mouse,
    // mnemonic, Space, arrows or the accessible Toggle action. The button
    // that was unchecked on the way says nothing.
    connect(m_ports->portTypes(), &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            setPortType(id);
    });
    new ArrowKeyRadioGroup(m_ports->portTypes());
    connect(findChild<QComboBox *>(QStringLiteral("ConnectedList")), &QComboBox::textActivated, this,
            &AddPrinterWizard::OnLocalPrinterChanged);
    connect(findChild<QComboBox *>(QStringLiteral("NetworkList")), qOverload<int>(&QComboBox::activated), this,
            &AddPrinterWizard::OnNetworkPrinterChanged);
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
    URLPushButton *button = m_ports->configureNetworkButton();
    QUrl url(button->url());
    if (url.isEmpty()) {
        button->hide();
        return;
    }
    if (url.isRelative()) {
        url = QUrl(helpUrl(url.toString()));
        button->setUrl(url.toString());
    }
    if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile()))
        button->hide();
}

bool AddPrinterWizard::isPortAssigned() const
{
    return m_ports->isPortAssigned();
}

bool AddPrinterWizard::isDriverAssigned() const
{
    return m_drivers->isDriverAssigned();
}

bool AddPrinterWizard::isPrinterNameAssigned() const
{
    return m_names->isPrinterNameAssigned();
}

int AddPrinterWizard::portTypeId() const
{
    return m_ports->portTypeId();
}

QString AddPrinterWizard::portURI() const
{
    return m_ports->deviceUri();
}

const LocalDeviceList &AddPrinterWizard::localDevices() const
{
    return m_ports->localDevices();
}

const NetworkDeviceList &AddPrinterWizard::networkDevices() const
{
    return m_ports->networkDevices();
}

const QMap<QString, CUPSDriver> &AddPrinterWizard::drivers() const
{
    return m_drivers->drivers();
}

QString AddPrinterWizard::proposedName(const QString &driverText)
{
    return NameStep::proposedName(driverText);
}

PrinterChoice AddPrinterWizard::choice() const
{
    return {m_ports->deviceUri(), m_drivers->driver(), m_names->name(), m_names->location(), m_names->description()};
}

// ---- the slots of the form -------------------------------------------------

void AddPrinterWizard::setPortType(int id)
{
    m_ports->setPortType(id);
}

void AddPrinterWizard::OnLocalPrinterChanged(const QString &text)
{
    m_ports->localPrinterChanged(text);
}

void AddPrinterWizard::OnSearchNetworkButtonClicked()
{
    m_ports->searchNetwork();
}

void AddPrinterWizard::OnNetworkPrinterChanged(int index)
{
    m_ports->networkPrinterChanged(index);
}

void AddPrinterWizard::OnPortChanged()
{
    m_ports->portChanged();
}

void AddPrinterWizard::OnPortRenaming(ListViewItemEx *item, int column, const QString &text)
{
    m_ports->portRenaming(item, column, text);
}

void AddPrinterWizard::OnDriverChanged()
{
    m_drivers->driverChanged();
}

void AddPrinterWizard::OnNameChanged()
{
    m_names->nameChanged();
}

void AddPrinterWizard::PrintTestPage()
{
    m_finish->printTestPage(m_newPrinter.Name());
}

void AddPrinterWizard::OnTestPrinterProcessExited()
{
    m_finish->testPageProgramEnded();
}

void AddPrinterWizard::OnPrinterOptions()
{
    m_finish->openOptions(m_newPrinter.Name());
}

// ---- the flow -------------------------------------------------------------

void AddPrinterWizard::pageEntered(int index)
{
    if (index == DriverPage)
        m_drivers->setDeviceUri(choice().deviceUri);
    if (index != NamePage)
        return;
    softAssert(isPortAssigned(), "isPortAssigned()", "AddPrinterWizard", 591);
    softAssert(isDriverAssigned(), "isDriverAssigned()", "AddPrinterWizard", 592);
    // A name the user typed or accepted earlier is never replaced.
    if (!isPrinterNameAssigned()) {
        softAssert(isDriverAssigned(), "isDriverAssigned()", "AddPrinterWizard", 1367);
        m_names->propose(m_drivers->driverText());
    }
}

// Leaving the name page creates the printer.
bool AddPrinterWizard::pageLeaving(int index)
{
    // A typed address not asked yet (Next clicked while typing) is asked now.
    if (index == PortsPage)
        m_ports->probeTypedPort();
    return index != NamePage || commitPrinter();
}

// ---- creating the printer -----------------------------------------------

bool AddPrinterWizard::commitPrinter()
{
    softAssert(isPortAssigned(), "isPortAssigned()", "AddPrinterWizard", 609);
    softAssert(isDriverAssigned(), "isDriverAssigned()", "AddPrinterWizard", 610);
    softAssert(isPrinterNameAssigned(), "isPrinterNameAssigned()", "AddPrinterWizard", 611);

    const PrinterChoice chosen = choice();
    const QString &name = chosen.name;
    CUPSPrinter printer(name);
    printer.setDeviceURI(chosen.deviceUri);
    printer.setLocation(chosen.location);
    printer.setInfo(chosen.description);
    printer.setState(IPP_PSTATE_IDLE);
    printer.setAcceptingJobs(true);
    printer.setDriver(chosen.driver);

    const char *paper = defaultPaperSize();
    PrinterCreator::Result result;
    {
        WaitCursor wait;
        result = m_creator.commit(printer, paper);
    }
    switch (result.outcome) {
    case PrinterCreator::Result::NameInUse:
        showError(tr("Printer '%s' already exists! Choose another name.").replace(QLatin1String("%s"), name));
        m_names->retypeName();
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

    m_finish->showCreated(name, m_newPrinter.Driver().Model(), m_newPrinter.DeviceURI(), finishNotes(result, paper));
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
