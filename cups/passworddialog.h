#ifndef QUEUEWIZ_PASSWORDDIALOG_H
#define QUEUEWIZ_PASSWORDDIALOG_H

#include <QCoreApplication>
#include <QDialog>

class QLineEdit;

// Asks for the name and password of an account that the scheduler accepts,
// under the prompt that libcups words (it names the user and the host).
class PasswordDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(PasswordDialog)

public:
    PasswordDialog(const QString &prompt, const QString &user, QWidget *parent = nullptr);

    // Shows the dialog modal over the active window. *user comes filled
    // with the name to propose. False when the user cancelled, or when the
    // program has no widgets to show one.
    static bool ask(const QString &prompt, QString *user, QString *password);

    QString user() const;
    // The typed password; the field is emptied.
    QString takePassword();

private:
    QLineEdit *m_user = nullptr;
    QLineEdit *m_password = nullptr;
};

#endif
