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

// One shell word that the shell takes literally: inside single quotes
// nothing is special but the quote itself, which is closed, escaped, reopened.
QString shellQuoted(const QString &text)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
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
    // for the browser. Both words are quoted: the help page lies under the
    // install prefix, which may hold blanks or characters the shell reads.
    const QByteArray command = QStringLiteral("%1 %2 &").arg(shellQuoted(browser), shellQuoted(address)).toLocal8Bit();
    if (std::system(command.constData()) == -1) {
        qWarning("Unable to execute command %s", command.constData());
        QMessageBox::warning(parent, tr("About"), tr("Error starting %1").arg(browser));
    }
}
