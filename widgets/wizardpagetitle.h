#ifndef QUEUEWIZ_WIZARDPAGETITLE_H
#define QUEUEWIZ_WIZARDPAGETITLE_H

#include <QFont>
#include <QFrame>

class QLabel;
class QLayout;

// The heading of a wizard page: a title line and a subtitle paragraph whose
// fonts shrink, one point at a time down to 7 points, until the text fits
// the height of the block. The labels come from the form
// "wizardpagetitle.ui"; setting "NOPAGETITLEADJUST" in the environment
// keeps the form's fonts.
class WizardPageTitle : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle RESET resetTitle)
    Q_PROPERTY(QString subTitle READ subTitle WRITE setSubTitle RESET resetSubTitle)

public:
    explicit WizardPageTitle(QWidget *parent = nullptr, const QString &name = QString());

    // Finds "titleLabel" and "subTitleLabel" among the loaded children;
    // warns "Invalid UI description" and fails when one is missing.
    bool setupUi();

    QString title() const;
    QString subTitle() const;

public slots:
    virtual void setTitle(const QString &text);
    virtual void setSubTitle(const QString &text);
    virtual void resetTitle();
    virtual void resetSubTitle();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitText();
    void relayout();
    QLayout *labelLayout() const;

    QLabel *m_titleLabel = nullptr;
    QLabel *m_subTitleLabel = nullptr;
    // The fonts the form gives; every fitting starts from them again.
    QFont m_titleFont;
    QFont m_subTitleFont;
    // Heights are only known once the block is laid out and shown, so a
    // subtitle set before that is fitted when the block appears.
    bool m_fitPending = false;
    bool m_fitting = false;
    int m_fittedWidth = -1;
};

#endif
