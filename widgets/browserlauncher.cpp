#include "browserlauncher.h"

#include <QFile>
#include <QMessageBox>

#include <cstdlib>

namespace {

QStringList builtInCandidates()
{
    return {
        QStringLiteral("/usr/bin/firefox"),
        QStringLiteral("/usr/bin/mozilla"),
        QStringLiteral("/usr/bin/konqueror"),
        QStringLiteral("/opt/kde3/bin/konqueror"),
        QStringLiteral("/usr/bin/galeon"),
        QStringLiteral("/usr/bin/opera"),
        QStringLiteral("/usr/bin/netscape"),
        QStringLiteral("/usr/bin/epiphany"),
        QStringLiteral("/usr/bin/mozilla-firefox"),
        // The desktop's own choice, for systems without any of the above.
        QStringLiteral("/usr/bin/xdg-open"),
    };
}

QStringList &candidateTable()
{
    static QStringList table = builtInCandidates();
    return table;
}

} // namespace

QStringList BrowserLauncher::candidates()
{
    return candidateTable();
}

void BrowserLauncher::setCandidates(const QStringList &paths)
{
    candidateTable() = paths.isEmpty() ? builtInCandidates() : paths;
}

QString BrowserLauncher::findBrowser()
{
    // Existence is enough; a file that will not run fails in the shell.
    for (const QString &path : candidateTable()) {
        if (QFile::exists(path))
            return path;
    }
    return QString();
}

void BrowserLauncher::launch(const QString &address, QWidget *parent)
{
    const QString browser = findBrowser();
    if (browser.isEmpty()) {
        QMessageBox::warning(parent, tr("Warning"), tr("Web browser not found.\nUse that address:\n%1").arg(address));
        return;
    }

    // Through the shell and in the background, so the wizard never waits
    // for the browser. The address is not quoted.
    const QByteArray command = QStringLiteral("%1 %2 &").arg(browser, address).toLocal8Bit();
    if (std::system(command.constData()) == -1) {
        qWarning("Unable to execute command %s", command.constData());
        QMessageBox::warning(parent, tr("About"), tr("Error starting %1").arg(browser));
    }
}
