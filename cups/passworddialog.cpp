#include "passworddialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

PasswordDialog::PasswordDialog(const QString &prompt, const QString &user, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Authorization"));
    setModal(true);
    auto *layout = new QFormLayout(this);
    auto *text = new QLabel(prompt.trimmed(), this);
    text->setWordWrap(true);
    layout->addRow(text);

    m_user = new QLineEdit(user, this);
    m_user->setObjectName(QStringLiteral("UserEdit"));
    layout->addRow(tr("User name:"), m_user);
    m_password = new QLineEdit(this);
    m_password->setObjectName(QStringLiteral("PasswordEdit"));
    m_password->setEchoMode(QLineEdit::Password);
    layout->addRow(tr("Password:"), m_password);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addRow(buttons);
    // A proposed name is usually right; the password is what is typed.
    (user.isEmpty() ? m_user : m_password)->setFocus();
}

QString PasswordDialog::user() const
{
    return m_user->text().trimmed();
}

QString PasswordDialog::takePassword()
{
    const QString password = m_password->text();
    m_password->clear();
    return password;
}

bool PasswordDialog::ask(const QString &prompt, QString *user, QString *password)
{
    // A QCoreApplication (or none) can't show a dialog; that counts as cancel.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return false;
    // Over the wizard, also when another program has the focus.
    QWidget *parent = QApplication::activeModalWidget();
    if (!parent)
        parent = QApplication::activeWindow();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto it = windows.cbegin(); !parent && it != windows.cend(); ++it) {
        if ((*it)->isVisible())
            parent = *it;
    }
    PasswordDialog dialog(prompt, user ? *user : QString(), parent);
    const bool confirmed = dialog.exec() == QDialog::Accepted;
    QString typed = dialog.takePassword();
    if (confirmed && user)
        *user = dialog.user();
    if (confirmed && password)
        *password = typed;
    typed.fill(QChar(0));
    return confirmed;
}
