#include "messageboxanswerer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

MessageBoxAnswerer::MessageBoxAnswerer(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &MessageBoxAnswerer::answer);
    m_timer.start(20);
}

void MessageBoxAnswerer::answer()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    Box seen{box->windowTitle(), box->text(), {}};
    for (QAbstractButton *button : box->buttons())
        seen.buttons << button->text();
    m_boxes << seen;
    QAbstractButton *button = box->defaultButton();
    if (!button && !box->buttons().isEmpty())
        button = box->buttons().constFirst();
    if (button)
        button->click();
    else
        box->reject();
}
