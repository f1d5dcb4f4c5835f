#ifndef QUEUEWIZ_TITLELESSWIZARDPAGE_H
#define QUEUEWIZ_TITLELESSWIZARDPAGE_H

#include <QWizardPage>

// A page whose Next (or Finish) button is switched by its wizard rather
// than derived from mandatory fields.
class TitlelessWizardPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit TitlelessWizardPage(QWidget *parent = nullptr);

    bool isComplete() const override;
    void setComplete(bool complete);

private:
    bool m_complete = true;
};

#endif
