#include "networksearchnote.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

NetworkSearchNote::NetworkSearchNote(QWidget *form)
    : QObject(form)
    , m_pLabel(form->findChild<QLabel *>(QStringLiteral("NetworkSearchLabel")))
    , m_pButton(form->findChild<QPushButton *>(QStringLiteral("TypeAddressButton")))
{
    if (m_pButton)
        connect(m_pButton, &QPushButton::clicked, this, &NetworkSearchNote::typeAddressRequested);
    update();
}

QString NetworkSearchNote::noteFor(const NetworkDeviceList &devices)
{
    const QString checks = tr("Check that the printer is switched on and connected to the same network as this "
                              "computer, and that no firewall blocks multicast DNS (UDP port 5353).");
    switch (devices.outcome()) {
    case NetworkDeviceList::Found:
        return QString();
    case NetworkDeviceList::NothingFound:
        return tr("No network printer answered.") + QLatin1Char(' ') + checks;
    case NetworkDeviceList::ProgramMissing:
        return tr("The network search is not installed (%1 is missing).").arg(devices.problem());
    case NetworkDeviceList::ProgramFailed:
        break;
    }
    // A part of the search that could not run may be why nothing answered.
    return tr("The network search failed: %1.").arg(devices.problem().isEmpty() ? tr("no reason given")
                                                                                 : devices.problem())
        + QLatin1Char(' ') + checks;
}

void NetworkSearchNote::setSearch(const NetworkDeviceList &devices)
{
    m_text = noteFor(devices);
    update();
}

void NetworkSearchNote::setActive(bool active)
{
    m_active = active;
    update();
}

void NetworkSearchNote::update()
{
    const bool shown = m_active && !m_text.isEmpty();
    if (m_pLabel) {
        m_pLabel->setText(m_text);
        m_pLabel->setVisible(shown);
    }
    if (m_pButton)
        m_pButton->setVisible(shown);
}
