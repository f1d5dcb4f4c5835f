#ifndef QUEUEWIZ_NAMESTEP_H
#define QUEUEWIZ_NAMESTEP_H

#include <QObject>
#include <QString>

class QLineEdit;
class TitlelessWizard;

// The name page: the queue's name (letters, digits and "_"), proposed from
// the driver unless the user gave one, its location and description.
class NameStep : public QObject
{
    Q_OBJECT

public:
    NameStep(TitlelessWizard *wizard, int page);

    bool bind(QWidget *form);
    void setUp();

    bool isPrinterNameAssigned() const;
    QString name() const;
    QString location() const;
    QString description() const;

    // Next follows the name.
    void nameChanged();
    // Puts the name proposed for driverText into the name field.
    void propose(const QString &driverText);
    // The name was taken: the field, ready to be typed over.
    void retypeName();

    // The name proposed for a driver's display name: its first word holding
    // a digit, else its first word; only letters, digits and "_", in lower
    // case ("Laser 1610 Series" gives "1610", "Acme Deskjet" gives "acme").
    static QString proposedName(const QString &driverText);

private:
    TitlelessWizard *m_wizard;
    const int m_page;
    QLineEdit *m_pNameEdit = nullptr;
    QLineEdit *m_pLocationEdit = nullptr;
    QLineEdit *m_pDescriptionEdit = nullptr;
};

#endif
