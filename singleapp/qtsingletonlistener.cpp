#include "qtsingletonlistener.h"

QtSingletonListener::QtSingletonListener(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("QtSingletonListener"));
    // Never visible, so it must not keep the program alive or end it.
    setAttribute(Qt::WA_QuitOnClose, false);
}
