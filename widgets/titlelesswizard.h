#ifndef QUEUEWIZ_TITLELESSWIZARD_H
#define QUEUEWIZ_TITLELESSWIZARD_H

#include <QHash>
#include <QWizard>

class TitlelessWizardPage;

// A wizard driven by page index, the way the add-printer logic is written:
// Next, Back and Finish are switched per page, pages can be skipped, and the
// pages carry their own heading instead of the wizard's banner.
// Page indexes are the order in which the pages were added; pages that are
// TitlelessWizardPages take their Next button from the wizard.
class TitlelessWizard : public QWizard
{
    Q_OBJECT

public:
    explicit TitlelessWizard(QWidget *parent = nullptr, const QString &name = QString());

    int pageCount() const;
    int indexOf(QWidget *page) const;
    int currentIndex() const;
    QWidget *pageAt(int index) const;

    void setNextEnabled(int index, bool enable);
    bool isNextEnabled(int index) const;
    void setBackEnabled(int index, bool enable);
    bool isBackEnabled(int index) const;
    // On the last page Finish takes the place of Next.
    void setFinishEnabled(int index, bool enable);
    void setAppropriate(int index, bool appropriate);
    bool appropriate(int index) const;

    // The next appropriate page after the current one, or -1.
    int nextId() const override;

    // Runs pageLeaving() for the current page, then pageEntered() for the
    // page that Next is about to show.
    bool validateCurrentPage() override;

protected:
    // A page is about to be shown after Next; called on every arrival, not
    // only the first.
    virtual void pageEntered(int index);
    // The page is left with Next or Finish; false keeps it.
    virtual bool pageLeaving(int index);

private:
    friend class TitlelessWizardPage;

    TitlelessWizardPage *titlelessPage(int index) const;
    // QWizard sets Back by its history whenever it updates its buttons;
    // pages whose Back is off get it switched off again afterwards.
    void applyButtonStates();
    // QWizard leaves the focus on Next when the page's first control is
    // disabled, and Next itself may just have been disabled.
    void focusFirstControl();
    // The control of page that takes the keyboard focus when the page is
    // shown: the first usable one in the Tab order; of an exclusive group of
    // buttons, its checked button when that one is usable. Null when none.
    static QWidget *firstControl(QWidget *page);

    QHash<int, bool> m_backEnabled;
    QHash<int, bool> m_appropriate;
};

#endif
