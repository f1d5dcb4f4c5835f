#ifndef QUEUEWIZ_PPDDIALOG_H
#define QUEUEWIZ_PPDDIALOG_H

#include "ppddialogbase.h"
#include "ppdfileptr.h"
#include "tempfile.h"

#include <QString>

#include <memory>


// Edits the driver options of one printer of the scheduler: fetches its PPD,
// shows the options, and on OK writes the chosen values into the "*Default"
// lines of the server's PPD and gives the file back to the printer.
class PPDDialog : public PPDDialogBase
{
    Q_OBJECT

public:
    PPDDialog(const QString &printer, QWidget *parent = nullptr, const char *name = nullptr, bool modal = false,
              Qt::WindowFlags flags = {});
    ~PPDDialog() override;

    // Shows the options of printer in a modal dialog; true when the user
    // accepted and the choices were stored.
    static bool runForPrinter(const QString &printer, QWidget *parent);

    QString printer() const { return m_printer; }
    // The local copy of the PPD that is open; empty when none.
    QString ppdFileName() const;
    ppd_file_t *ppd() const { return m_ppd.get(); }
    bool isLoaded() const { return m_ppd != nullptr; }

    bool installableOptionsEditable() const;
    void setInstallableOptionsEditable(bool editable);
    // Takes the PPD's marked choices again and shows the current option anew.
    void refresh();

public slots:
    void setOkButtonState();
    void accept() override;

private:
    bool load(const QString &printer);
    void release();
    bool save();

    QString m_printer;
    std::unique_ptr<TempFile> m_ppdCopy;
    PpdFilePtr m_ppd;
};

#endif
