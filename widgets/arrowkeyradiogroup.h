#ifndef QUEUEWIZ_ARROWKEYRADIOGROUP_H
#define QUEUEWIZ_ARROWKEYRADIOGROUP_H

#include <QObject>

class QButtonGroup;

// The arrow keys on a button of an exclusive group move to the previous or
// next usable button and check it. Qt checks along only when the button left
// was checked, so with the checked button disabled (a choice that has
// nothing to offer) the arrows would move the focus and nothing else.
// Watches the buttons in the group when it is made; a child of the group.
class ArrowKeyRadioGroup : public QObject
{
    Q_OBJECT

public:
    explicit ArrowKeyRadioGroup(QButtonGroup *group);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QButtonGroup *m_group;
};

#endif
