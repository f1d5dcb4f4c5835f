#include "passworddialog.h"

#include <QApplication>
#include <QInputDialog>
#include <QLineEdit>

bool askRootPassword(QString *password)
{
    // A QCoreApplication (or none) can't show a dialog; that counts as cancel.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return false;
    bool ok = false;
    const QString text = QInputDialog::getText(nullptr, QCoreApplication::translate("IPPRequest", "Authorization"),
                                               QCoreApplication::translate("IPPRequest",
                                                                           "Please, enter the root password:"),
                                               QLineEdit::Password, QString(), &ok);
    if (ok && password)
        *password = text;
    return ok;
}
