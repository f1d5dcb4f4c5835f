#ifndef QUEUEWIZ_NETWORKSEARCHNOTE_H
#define QUEUEWIZ_NETWORKSEARCHNOTE_H

#include "networkdevicelist.h"

#include <QObject>
#include <QString>

class QLabel;
class QPushButton;
class QWidget;

// What the port page says when a network search listed nothing: that no
// printer answered and what to check, or why the search failed; with the
// offer to type the address instead. It shows the form's optional
// "NetworkSearchLabel" and "TypeAddressButton" (a form without them says
// nothing) while the network port type is chosen.
class NetworkSearchNote : public QObject
{
    Q_OBJECT

public:
    explicit NetworkSearchNote(QWidget *form);

    // Takes the outcome of the last search.
    void setSearch(const NetworkDeviceList &devices);
    // Shown only while active, and only when the last search listed nothing.
    void setActive(bool active);
    const QString &text() const { return m_text; }

    // The note for a search's outcome; empty when printers were found.
    static QString noteFor(const NetworkDeviceList &devices);

signals:
    void typeAddressRequested();

private:
    void update();

    QLabel *m_pLabel = nullptr;
    QPushButton *m_pButton = nullptr;
    QString m_text;
    bool m_active = false;
};

#endif
