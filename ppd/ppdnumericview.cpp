#include "ppdnumericview.h"

#include <QApplication>
#include <QSignalBlocker>

PPDNumericView::PPDNumericView(QWidget *parent)
    : PPDNumericViewBase(parent)
{
    connect(sliderValue, &QSlider::valueChanged, this, &PPDNumericView::sliderChanged);
    connect(editValue, &QLineEdit::textChanged, this, &PPDNumericView::editChanged);
    editValue->setText(QStringLiteral("1"));
    setRange(1.0, 100.0);
}

void PPDNumericView::setRange(double minimum, double maximum)
{
    {
        const QSignalBlocker blocker(sliderValue);
        const int low = static_cast<int>(minimum * m_scaleFactor);
        const int high = static_cast<int>(maximum * m_scaleFactor);
        sliderValue->setRange(low, high);
        sliderValue->setSingleStep(1);
        sliderValue->setPageStep(qMax((high - low) / 20, 1));
    }
    labelMin->setText(format(minimum));
    labelMax->setText(format(maximum));
}

void PPDNumericView::setValue(double value)
{
    const int position = static_cast<int>(value * m_scaleFactor);
    if (sliderValue->value() != position) {
        sliderValue->setValue(position);
    } else {
        // The slider stays put, but the text may show something else.
        showText(format(double(position) / m_scaleFactor));
    }
}

void PPDNumericView::setScaleFactor(int factor)
{
    m_scaleFactor = qMax(factor, 1);
}

void PPDNumericView::sliderChanged(int position)
{
    const double value = double(position) / m_scaleFactor;
    showText(format(value));
    emit valueChanged(value);
}

void PPDNumericView::editChanged(const QString &text)
{
    double value = 0.0;
    if (!parse(text, &value)) {
        // Take back just the keystroke that spoilt the number.
        QApplication::beep();
        const int cursor = editValue->cursorPosition() - int(text.size() - m_goodText.size());
        const QSignalBlocker blocker(editValue);
        editValue->setText(m_goodText);
        editValue->setCursorPosition(qBound(0, cursor, int(m_goodText.size())));
        return;
    }
    m_goodText = text;
    {
        const QSignalBlocker blocker(sliderValue);
        sliderValue->setValue(static_cast<int>(value * m_scaleFactor));
    }
    emit valueChanged(value);
}

void PPDNumericView::showText(const QString &text)
{
    const QSignalBlocker blocker(editValue);
    m_goodText = text;
    editValue->setText(text);
}

QString PPDNumericView::format(double value) const
{
    return m_scaleFactor == 1 ? QString::number(static_cast<int>(value)) : QString::number(value, 'f', 3);
}

bool PPDNumericView::parse(const QString &text, double *value) const
{
    bool ok = false;
    if (m_scaleFactor == 1)
        *value = text.toInt(&ok);
    else
        *value = text.toDouble(&ok);
    return ok;
}
