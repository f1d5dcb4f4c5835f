#ifndef QUEUEWIZ_WIZARDFIXTURE_H
#define QUEUEWIZ_WIZARDFIXTURE_H

#include "AddPrinterWizard.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QWizard>

#include <memory>

class FakeMachine;

// The program's wizard loaded from the tree's forms and shown offscreen,
// with a package root (bin/, share/) and a machine of its own: the device
// library sees the fixture machine (FakeMachine::build), the help folder
// holds the program's help page, and only the sample vendor's drivers are
// listed. Machine and share directory can be changed before load().
class WizardFixture
{
public:
    explicit WizardFixture(const QString &machine = QStringLiteral("empty"));
    ~WizardFixture();

    // Loads the program's form, or form when given, and shows the wizard.
    bool load(const QByteArray &form = QByteArray());

    // Null when the form could not be loaded.
    AddPrinterWizard *wizard() const { return m_wizard.get(); }
    FakeMachine &machine() const { return *m_machine; }
    QString rootDir() const;
    QString shareDir() const;
    // Writes an executable script at path below the package root.
    bool addScript(const QString &path, const QByteArray &script) const;

    template <class T>
    T *child(const char *name) const
    {
        return m_wizard->findChild<T *>(QLatin1String(name));
    }

    QAbstractButton *button(QWizard::WizardButton which) const;
    // Clicks a wizard button with the mouse; false when it is not usable.
    bool click(QWizard::WizardButton which) const;

    // The program's form with every occurrence of from replaced by to.
    static QByteArray programForm(const QByteArray &from = QByteArray(), const QByteArray &to = QByteArray());

    // Answers the next message box that opens within timeoutMs by clicking
    // the button with the text answer; its text lands in *seen.
    static void answerMessageBox(const QString &answer, QString *seen, int timeoutMs = 5000);

private:
    QTemporaryDir m_root;
    std::unique_ptr<FakeMachine> m_machine;
    std::unique_ptr<AddPrinterWizard> m_wizard;
};

#endif
