#include "ppdbooleanview.h"

#include <QAbstractButton>
#include <QButtonGroup>

PPDBooleanView::PPDBooleanView(QWidget *parent)
    : PPDBooleanViewBase(parent)
    , m_group(new QButtonGroup(this))
{
    m_group->addButton(button1, 0);
    m_group->addButton(button2, 1);
    connect(m_group, &QButtonGroup::idClicked, this, &PPDBooleanView::valueChanged);
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
    if (QAbstractButton *button = m_group->button(id))
        button->setChecked(true);
}

int PPDBooleanView::selectedButton() const
{
    return m_group->checkedId();
}
