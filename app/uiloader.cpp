#include "uiloader.h"

#include <QDir>

UiLoader::UiLoader(QObject *parent)
    : QUiLoader(parent)
{
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
