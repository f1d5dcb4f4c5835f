#ifndef QUEUEWIZ_TOURGUIDE_H
#define QUEUEWIZ_TOURGUIDE_H

#include <QDir>
#include <QString>
#include <QStringList>

class AddPrinterWizard;
class QWidget;

// Walks the wizard through every page the way a user would (mouse clicks and
// typing), from the welcome page to the finish page, the test page and the
// driver options, and saves a picture of each step.
class TourGuide
{
public:
    struct Choices
    {
        QString port;   // typed after "socket://", e.g. "127.0.0.1:9101"
        QString driver; // as listed, e.g. "Acme ColorLaser 2550"
        QString name;   // empty: keep the wizard's proposal
        QString location;
        QString description;
    };

    TourGuide(AddPrinterWizard *wizard, const QDir &pictures, const Choices &choices);

    // False, with the reason in error(), when a step did not do what it
    // should have.
    bool run();
    QString error() const { return m_error; }
    QStringList pictures() const { return m_saved; }

private:
    bool fail(const QString &why);
    void picture(QWidget *widget, const QString &name);
    bool clickNext(int expectedPage);
    template <class T>
    T *child(const char *name) const;

    bool welcome();
    bool connection();
    bool port();
    bool model();
    bool name();
    bool finish();
    bool options();

    AddPrinterWizard *m_wizard;
    QDir m_dir;
    Choices m_choices;
    QString m_error;
    QStringList m_saved;
};

#endif
