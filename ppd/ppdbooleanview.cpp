#include "ppdbooleanview.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QSignalBlocker>

PPDBooleanView::PPDBooleanView(QWidget *parent)
    : PPDBooleanViewBase(parent)
    , m_group(new QButtonGroup(this))
{
    m_group->addButton(button1, 0);
    m_group->addButton(button2, 1);
    // Arrows and the accessible Toggle action check a button without a click.
    connect(m_group, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            emit valueChanged(id);
    });
}

void PPDBooleanView::setButtonText(int id, const QString &text)
{
    if (QAbstractButton *button = m_group->button(id))
        button->setText(text);
}

QString PPDBooleanView::buttonText(int id) const
{
    const QAbstractButton *button = m_group->button(id);
    return button ? button->text() : QString();
}

void PPDBooleanView::selectButton(int id)
{
    // Showing the current choice is not choosing it.
    const QSignalBlocker blocker(m_group);
    if (QAbstractButton *button = m_group->button(id))
        button->setChecked(true);
}

int PPDBooleanView::selectedButton() const
{
    return m_group->checkedId();
}
