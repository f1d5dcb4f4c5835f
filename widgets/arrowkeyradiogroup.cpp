#include "arrowkeyradiogroup.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QKeyEvent>

ArrowKeyRadioGroup::ArrowKeyRadioGroup(QButtonGroup *group)
    : QObject(group)
    , m_group(group)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *button : buttons)
        button->installEventFilter(this);
}

bool ArrowKeyRadioGroup::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !m_group->exclusive())
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    int step = 0;
    switch (key->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Down:
    case Qt::Key_Right:
        step = 1;
        break;
    default:
        return false;
    }
    // The group's order is the order on the screen.
    const QList<QAbstractButton *> buttons = m_group->buttons();
    const qsizetype from = buttons.indexOf(qobject_cast<QAbstractButton *>(watched));
    for (qsizetype i = from + step; i >= 0 && i < buttons.size(); i += step) {
        QAbstractButton *next = buttons.at(i);
        if (next->isEnabled() && next->isVisible()) {
            next->setFocus(step < 0 ? Qt::BacktabFocusReason : Qt::TabFocusReason);
            next->click();
            break;
        }
    }
    return true;
}
