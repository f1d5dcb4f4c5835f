#include "titlelesswizardpage.h"

#include "titlelesswizard.h"

TitlelessWizardPage::TitlelessWizardPage(QWidget *parent)
    : QWizardPage(parent)
{
}

bool TitlelessWizardPage::isComplete() const
{
    return m_complete;
}

void TitlelessWizardPage::setComplete(bool complete)
{
    if (m_complete == complete)
        return;
    m_complete = complete;
    emit completeChanged();
    // QWizard's answer to completeChanged() also sets Back again.
    if (auto *w = qobject_cast<TitlelessWizard *>(wizard()))
        w->applyButtonStates();
}
