#ifndef QUEUEWIZ_WIZARDFIXTURE_H
#define QUEUEWIZ_WIZARDFIXTURE_H

#include "AddPrinterWizard.h"

#include <QTemporaryDir>
#include <QWizard>

#include <memory>

class FakeMachine;
class QAbstractItemModel;
class QAbstractItemView;
class QLineEdit;

// The program's wizard loaded from the tree's forms and shown offscreen,
// with a package root (bin/, share/ with the help page) and a fixture
// machine (FakeMachine::build) of its own; only the sample vendor's drivers
// are listed. Machine and share directory can be changed before load().
class WizardFixture
{
public:
    explicit WizardFixture(const QString &machine = QStringLiteral("empty"));
    ~WizardFixture();

    // Loads the program's form, or form when given, and shows the wizard.
    bool load(const QByteArray &form = QByteArray());

    AddPrinterWizard *wizard() const { return m_wizard.get(); }
    FakeMachine &machine() const { return *m_machine; }
    QString rootDir() const { return m_root.path(); }
    QString shareDir() const { return m_root.filePath(QStringLiteral("share")); }
    // Writes an executable script at path below the package root.
    bool addScript(const QString &path, const QByteArray &script) const;

    template <class T>
    T *child(const char *name) const
    {
        return m_wizard->findChild<T *>(QLatin1String(name));
    }

    QAbstractButton *button(QWizard::WizardButton which) const { return m_wizard->button(which); }
    bool nextEnabled() const;
    // Clicks a wizard button with the mouse; false when it is not usable.
    bool click(QWizard::WizardButton which) const;
    // On the round mark: a radio button's text may be shorter than the button.
    void clickRadio(const char *name) const;
    // Clicks the row of a list or tree showing text; false when none does.
    static bool clickItem(QAbstractItemView *view, const QString &text);
    // The texts of a list's rows.
    static QStringList texts(const QAbstractItemModel *model);

    // From the welcome page to the ports page by the manual port type.
    bool toPortsPage() const;
    // Opens the in-place editor of the port entry showing text.
    QLineEdit *renamePort(const QString &text) const;
    // On the ports page: types uri ("socket://host:port") into the entry of
    // its scheme, which then is the port.
    bool typePort(const QString &uri) const;
    // From the driver page with driver chosen to the name page.
    bool toNamePage(const QString &driver) const;

    // The program's form with every occurrence of from replaced by to.
    static QByteArray programForm(const QByteArray &from = QByteArray(), const QByteArray &to = QByteArray());

private:
    QTemporaryDir m_root;
    std::unique_ptr<FakeMachine> m_machine;
    std::unique_ptr<AddPrinterWizard> m_wizard;
};

#endif
