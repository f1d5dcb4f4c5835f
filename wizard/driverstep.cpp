#include "driverstep.h"

#include "cupsmanager.h"
#include "driverfetcher.h"
#include "drivermatcher.h"
#include "titlelesswizard.h"

#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>

DriverStep::DriverStep(TitlelessWizard *wizard, int page)
    : QObject(wizard)
    , m_wizard(wizard)
    , m_page(page)
    , m_pFetcher(new DriverFetcher(CUPSManager::m_CUPSManagerInstance, this))
{
    connect(m_pFetcher, &DriverFetcher::finished, this, &DriverStep::showDrivers);
}

bool DriverStep::bind(QWidget *form)
{
    m_pDriversList = form->findChild<QListWidget *>(QStringLiteral("DriversList"));
    m_pDriversProblemLabel = form->findChild<QLabel *>(QStringLiteral("DriversProblemLabel"));
    m_pRetryDriversButton = form->findChild<QPushButton *>(QStringLiteral("RetryDriversButton"));
    if (m_pRetryDriversButton)
        connect(m_pRetryDriversButton, &QPushButton::clicked, this, &DriverStep::retry);
    return m_pDriversList != nullptr;
}

void DriverStep::fetch()
{
    m_pDriversList->clear();
    m_drivers.clear();
    if (m_pFetcher->start())
        showDrivers(m_pFetcher->fetched());
    else
        showFetchProblem(false);
}

void DriverStep::retry()
{
    fetch();
    if (m_pDriversList->count() > 0)
        m_pDriversList->setFocus();
}

void DriverStep::showDrivers(bool fetched)
{
    m_drivers = m_pFetcher->drivers();
    for (auto it = m_drivers.cbegin(); it != m_drivers.cend(); ++it)
        m_pDriversList->addItem(it.key());
    showFetchProblem(fetched);
    showDriverless();
    // The list may come after the printer was chosen.
    applyMatch();
    driverChanged();
    if (fetched && m_wizard->currentIndex() == m_page)
        m_pDriversList->setFocus();
}

void DriverStep::showFetchProblem(bool fetched)
{
    if (!m_pDriversProblemLabel || !m_pRetryDriversButton)
        return;
    const CUPSManager &cups = CUPSManager::m_CUPSManagerInstance;
    const bool searching = m_pFetcher->isSearching();
    // The wizard's words, in the wizard's catalogue context.
    if (searching)
        m_pDriversProblemLabel->setText(QCoreApplication::translate("AddPrinterWizard", "Looking for the printing service..."));
    else if (!fetched && cups.answered())
        m_pDriversProblemLabel->setText(
            QCoreApplication::translate("AddPrinterWizard", "The printing service could not list the drivers: %1")
                .arg(cups.lastStatusText()));
    else if (!fetched)
        m_pDriversProblemLabel->setText(QCoreApplication::translate("AddPrinterWizard", "The printing service does not answer"));
    m_pDriversProblemLabel->setVisible(!fetched);
    m_pRetryDriversButton->setVisible(!fetched && !searching);
}

bool DriverStep::isDriverAssigned() const
{
    const QListWidgetItem *item = m_pDriversList ? m_pDriversList->currentItem() : nullptr;
    return item && m_pDriversList->currentRow() >= 0 && item->isSelected();
}

CUPSDriver DriverStep::driver() const
{
    const QString text = driverText();
    return text == driverlessText() ? driverlessDriver() : m_drivers.value(text);
}

QString DriverStep::driverlessText()
{
    return QStringLiteral("Driverless (IPP Everywhere)");
}

CUPSDriver DriverStep::driverlessDriver()
{
    CUPSDriver driver;
    driver.setModel(driverlessText());
    // The scheduler's model, as "lpadmin -m everywhere" names it.
    driver.setDriverFile(QStringLiteral("everywhere"));
    return driver;
}

void DriverStep::setDeviceUri(const QString &uri)
{
    m_deviceUri = uri;
    showDriverless();
    applyMatch();
    driverChanged();
}

void DriverStep::showDriverless()
{
    if (!m_pDriversList)
        return;
    const QString scheme = m_deviceUri.section(QLatin1Char(':'), 0, 0).toLower();
    const bool wanted = !m_drivers.isEmpty()
        && (scheme == QLatin1String("ipp") || scheme == QLatin1String("ipps") || scheme == QLatin1String("dnssd"));
    const QList<QListWidgetItem *> items = m_pDriversList->findItems(driverlessText(), Qt::MatchExactly);
    if (wanted && items.isEmpty())
        m_pDriversList->addItem(driverlessText());
    else if (!wanted)
        qDeleteAll(items);
}

QString DriverStep::driverText() const
{
    const QListWidgetItem *item = m_pDriversList ? m_pDriversList->currentItem() : nullptr;
    return item ? item->text() : QString();
}

void DriverStep::driverChanged()
{
    m_wizard->setNextEnabled(m_page, isDriverAssigned());
}

void DriverStep::selectMatching(const QString &model, const QString &make)
{
    m_wantedModel = model;
    m_wantedMake = make;
    applyMatch();
}

void DriverStep::applyMatch()
{
    QString key;
    if (!m_wantedModel.isEmpty())
        key = DriverMatcher::bestMatch(m_drivers, m_wantedModel, m_wantedMake, QLocale().name());
    // The package's own driver comes first; without one that fits, a
    // printer that needs none is set up without, unless the user chose.
    if (key.isEmpty() && !isDriverAssigned())
        key = driverlessText();
    if (key.isEmpty())
        return;
    const QList<QListWidgetItem *> items = m_pDriversList->findItems(key, Qt::MatchExactly);
    if (items.isEmpty())
        return;
    m_pDriversList->setCurrentItem(items.first());
    items.first()->setSelected(true);
    m_pDriversList->scrollToItem(items.first());
}
