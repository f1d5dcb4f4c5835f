#include "titlelesswizard.h"

#include "titlelesswizardpage.h"

#include <QAbstractButton>
#include <QButtonGroup>

TitlelessWizard::TitlelessWizard(QWidget *parent, const QString &name)
    : QWizard(parent)
{
    setObjectName(name);
    setWizardStyle(QWizard::ClassicStyle);
    setOptions(QWizard::IndependentPages | QWizard::HaveHelpButton | QWizard::NoBackButtonOnStartPage);
    connect(this, &QWizard::currentIdChanged, this, &TitlelessWizard::applyButtonStates);
    connect(this, &QWizard::currentIdChanged, this, &TitlelessWizard::focusFirstControl);
}

int TitlelessWizard::pageCount() const
{
    return pageIds().count();
}

int TitlelessWizard::indexOf(QWidget *page) const
{
    const QList<int> ids = pageIds();
    for (int id : ids) {
        if (QWizard::page(id) == page)
            return id;
    }
    return -1;
}

int TitlelessWizard::currentIndex() const
{
    return currentId();
}

QWidget *TitlelessWizard::pageAt(int index) const
{
    return QWizard::page(index);
}

TitlelessWizardPage *TitlelessWizard::titlelessPage(int index) const
{
    return qobject_cast<TitlelessWizardPage *>(QWizard::page(index));
}

void TitlelessWizard::setNextEnabled(int index, bool enable)
{
    if (TitlelessWizardPage *p = titlelessPage(index))
        p->setComplete(enable);
}

bool TitlelessWizard::isNextEnabled(int index) const
{
    const TitlelessWizardPage *p = titlelessPage(index);
    return p ? p->isComplete() : true;
}

void TitlelessWizard::setBackEnabled(int index, bool enable)
{
    m_backEnabled[index] = enable;
    applyButtonStates();
}

bool TitlelessWizard::isBackEnabled(int index) const
{
    return m_backEnabled.value(index, true);
}

void TitlelessWizard::setFinishEnabled(int index, bool enable)
{
    setNextEnabled(index, enable);
}

void TitlelessWizard::setAppropriate(int index, bool appropriate)
{
    if (this->appropriate(index) == appropriate)
        return;
    m_appropriate[index] = appropriate;
    // Whether the current page offers Next or Finish depends on nextId(),
    // which QWizard asks again when the page's completeness may have changed.
    if (QWizardPage *p = currentPage())
        emit p->completeChanged();
    applyButtonStates();
}

bool TitlelessWizard::appropriate(int index) const
{
    return m_appropriate.value(index, true);
}

int TitlelessWizard::nextId() const
{
    const QList<int> ids = pageIds();
    const int from = ids.indexOf(currentId());
    if (from < 0)
        return -1;
    for (int i = from + 1; i < ids.count(); ++i) {
        if (appropriate(ids.at(i)))
            return ids.at(i);
    }
    return -1;
}

bool TitlelessWizard::validateCurrentPage()
{
    const int from = currentId();
    if (!QWizard::validateCurrentPage() || !pageLeaving(from))
        return false;
    const int to = nextId();
    if (to != -1)
        pageEntered(to);
    return true;
}

void TitlelessWizard::pageEntered(int)
{
}

bool TitlelessWizard::pageLeaving(int)
{
    return true;
}

void TitlelessWizard::applyButtonStates()
{
    const int id = currentId();
    if (id < 0)
        return;
    if (QAbstractButton *back = button(QWizard::BackButton)) {
        if (!isBackEnabled(id))
            back->setEnabled(false);
    }
}

QWidget *TitlelessWizard::firstControl(QWidget *page)
{
    for (QWidget *w = page->nextInFocusChain(); w && w != page; w = w->nextInFocusChain()) {
        if (!page->isAncestorOf(w) || !w->isEnabled() || !w->isVisible())
            continue;
        // Of an exclusive group Tab reaches one button, the one focused
        // last; the checked one is what the user wants to hear about.
        const auto *button = qobject_cast<QAbstractButton *>(w);
        const QButtonGroup *group = button ? button->group() : nullptr;
        QAbstractButton *checked = group && group->exclusive() ? group->checkedButton() : nullptr;
        if (checked && checked->isEnabled() && checked->isVisible())
            return checked;
        if (w->focusPolicy() & Qt::TabFocus)
            return w;
    }
    return nullptr;
}

void TitlelessWizard::focusFirstControl()
{
    if (QWidget *page = currentPage()) {
        if (QWidget *control = firstControl(page))
            control->setFocus(Qt::TabFocusReason);
    }
}
