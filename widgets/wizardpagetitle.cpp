#include "wizardpagetitle.h"

#include <QLabel>
#include <QLayout>
#include <QResizeEvent>
#include <QShowEvent>

WizardPageTitle::WizardPageTitle(QWidget *parent, const QString &name)
    : QFrame(parent)
{
    setObjectName(name);
}

bool WizardPageTitle::setupUi()
{
    m_titleLabel = findChild<QLabel *>(QStringLiteral("titleLabel"));
    m_subTitleLabel = findChild<QLabel *>(QStringLiteral("subTitleLabel"));
    if (!m_titleLabel || !m_subTitleLabel) {
        m_titleLabel = m_subTitleLabel = nullptr;
        qWarning("Invalid UI description");
        return false;
    }
    m_titleFont = m_titleLabel->font();
    m_subTitleFont = m_subTitleLabel->font();
    return true;
}

QString WizardPageTitle::title() const
{
    return m_titleLabel ? m_titleLabel->text() : QString();
}

QString WizardPageTitle::subTitle() const
{
    return m_subTitleLabel ? m_subTitleLabel->text() : QString();
}

void WizardPageTitle::setTitle(const QString &text)
{
    if (m_titleLabel)
        m_titleLabel->setText(text);
}

void WizardPageTitle::setSubTitle(const QString &text)
{
    if (!m_subTitleLabel)
        return;
    m_subTitleLabel->setText(text);
    fitText();
}

void WizardPageTitle::resetTitle()
{
    setTitle(QString());
}

void WizardPageTitle::resetSubTitle()
{
    setSubTitle(QString());
}

void WizardPageTitle::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    if (m_fitPending && !event->spontaneous())
        fitText();
}

// A wider or narrower block wraps the subtitle differently.
void WizardPageTitle::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    if (m_subTitleLabel && isVisible() && !m_fitting && m_fittedWidth != -1
        && event->size().width() != m_fittedWidth)
        fitText();
}

QLayout *WizardPageTitle::labelLayout() const
{
    const QList<QLayout *> layouts = findChildren<QLayout *>();
    for (QLayout *l : layouts) {
        if (l->indexOf(m_titleLabel) >= 0)
            return l;
    }
    return nullptr;
}

void WizardPageTitle::relayout()
{
    QLayout *labels = labelLayout();
    if (labels) {
        labels->invalidate();
        labels->activate();
    }
    if (layout() && layout() != labels) {
        layout()->invalidate();
        layout()->activate();
    }
    updateGeometry();
}

void WizardPageTitle::fitText()
{
    if (!m_subTitleLabel)
        return;
    if (!isVisible()) {
        m_fitPending = true;
        return;
    }
    m_fitPending = false;
    if (qEnvironmentVariableIsSet("NOPAGETITLEADJUST"))
        return;

    m_fitting = true;
    if (m_titleLabel->font() != m_titleFont || m_subTitleLabel->font() != m_subTitleFont) {
        m_titleLabel->setFont(m_titleFont);
        m_subTitleLabel->setFont(m_subTitleFont);
        relayout();
    }

    const QLayout *labels = labelLayout();
    for (int size = font().pointSize() - 1; size >= 7; --size) {
        int needed = m_titleLabel->height() + m_subTitleLabel->heightForWidth(m_subTitleLabel->width());
        if (labels) {
            const QMargins m = labels->contentsMargins();
            needed += m.top() + m.bottom() + labels->spacing();
        }
        if (height() >= needed)
            break;

        QFont titleFont = m_titleLabel->font();
        titleFont.setPointSize(size);
        m_titleLabel->setFont(titleFont);
        QFont subTitleFont = m_subTitleLabel->font();
        subTitleFont.setPointSize(size);
        m_subTitleLabel->setFont(subTitleFont);
        relayout();
    }
    m_fittedWidth = width();
    m_fitting = false;
}
