#ifndef QUEUEWIZ_DRIVERSTEP_H
#define QUEUEWIZ_DRIVERSTEP_H

#include "cupsdriver.h"

#include <QMap>
#include <QObject>
#include <QString>

class DriverFetcher;
class QLabel;
class QListWidget;
class QPushButton;
class TitlelessWizard;

// The driver page: the package's drivers as the scheduler lists them, the
// one that matches the chosen printer preselected, and while there is no
// list, why not.
class DriverStep : public QObject
{
    Q_OBJECT

public:
    DriverStep(TitlelessWizard *wizard, int page);

    // False when the form lacks the driver list.
    bool bind(QWidget *form);
    // Asks the scheduler for the list; a list that is still being looked
    // for fills the page when it comes.
    void fetch();
    void retry();

    bool isDriverAssigned() const;
    // The chosen driver's display name, and its record.
    QString driverText() const;
    CUPSDriver driver() const;
    const QMap<QString, CUPSDriver> &drivers() const { return m_drivers; }

    // Next follows the choice.
    void driverChanged();
    // Preselects the driver that best fits the printer, now or once the
    // list is there; an empty model forgets the printer.
    void selectMatching(const QString &model, const QString &make);
    // The chosen port: a printer reached over IPP is also offered without
    // a driver of the package, built by the scheduler from what the printer
    // says of itself.
    void setDeviceUri(const QString &uri);

    // The entry after the package's drivers for such a printer, and its
    // scheduler model.
    static QString driverlessText();
    static CUPSDriver driverlessDriver();

private:
    void showDrivers(bool fetched);
    // The word while the printing service is looked for, and the
    // explanation and Retry when the list could not be had.
    void showFetchProblem(bool fetched);
    void applyMatch();
    // Adds or drops the driverless entry as the port calls for.
    void showDriverless();

    TitlelessWizard *m_wizard;
    const int m_page;
    QListWidget *m_pDriversList = nullptr;
    // Optional: a form without them shows an empty list and no reason.
    QLabel *m_pDriversProblemLabel = nullptr;
    QPushButton *m_pRetryDriversButton = nullptr;
    DriverFetcher *m_pFetcher;
    QMap<QString, CUPSDriver> m_drivers;
    QString m_wantedModel;
    QString m_wantedMake;
    QString m_deviceUri;
};

#endif
