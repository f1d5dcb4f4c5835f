#ifndef QUEUEWIZ_BROWSERLAUNCHER_H
#define QUEUEWIZ_BROWSERLAUNCHER_H

#include <QCoreApplication>
#include <QStringList>

class QWidget;

// Opens a web address in an external browser, in the background, or tells
// the user why it could not.
class BrowserLauncher
{
    Q_DECLARE_TR_FUNCTIONS(BrowserLauncher)

public:
    // Browsers in the order they are tried; the first whose file exists is
    // taken.
    static QStringList candidates();
    // Replaces the list (an empty list restores the built-in one). For tests.
    static void setCandidates(const QStringList &paths);

    // The browser that would be started, or empty when none exists.
    static QString findBrowser();

    // Message boxes are children of parent, or stand alone when it is null.
    static void launch(const QString &address, QWidget *parent);
};

#endif
