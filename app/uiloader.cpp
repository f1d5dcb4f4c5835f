#include "uiloader.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QStringList s_hiddenLibraryPaths;

// QUiLoader loads every designer plug-in of the library paths when it is
// made. The forms use none, and the system's one (Qt Quick's) brings the
// QML engine's libraries into every start; so the paths are hidden while
// the loader is made. Plug-in folders already scanned are not scanned again
// when the paths come back.
QObject *hidingLibraryPaths(QObject *parent)
{
    s_hiddenLibraryPaths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    return parent;
}

} // namespace

UiLoader::UiLoader(QObject *parent)
    : QUiLoader(hidingLibraryPaths(parent))
{
    QCoreApplication::setLibraryPaths(s_hiddenLibraryPaths);
}

UiLoader::~UiLoader() = default;

QWidget *UiLoader::createWidget(const QString &className, QWidget *parent, const QString &name)
{
    return QUiLoader::createWidget(className, parent, name);
}

void UiLoader::loadImages(const QString &dir)
{
    QDir::addSearchPath(QStringLiteral("images"), dir);
}
