#ifndef QUEUEWIZ_PASSWORDDIALOG_H
#define QUEUEWIZ_PASSWORDDIALOG_H

#include <QString>

// Asks the user for the root password in a modal dialog. False when the user
// cancelled or when the program has no widgets to show one.
bool askRootPassword(QString *password);

#endif
