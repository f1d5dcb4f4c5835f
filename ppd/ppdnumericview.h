#ifndef QUEUEWIZ_PPDNUMERICVIEW_H
#define QUEUEWIZ_PPDNUMERICVIEW_H

#include "ppdnumericviewbase.h"

// Edits a number on a slider and as text. The slider works in steps of
// 1 / scale factor: 1 for integer options, 1000 for real ones.
class PPDNumericView : public PPDNumericViewBase
{
    Q_OBJECT

public:
    explicit PPDNumericView(QWidget *parent = nullptr);

    void setRange(double minimum, double maximum);
    void setValue(double value);
    void setScaleFactor(int factor);
    int scaleFactor() const { return m_scaleFactor; }

public slots:
    void sliderChanged(int position);
    void editChanged(const QString &text);

signals:
    void valueChanged(double value);

private:
    // Sets the text without taking it for the user's.
    void showText(const QString &text);
    QString format(double value) const;
    bool parse(const QString &text, double *value) const;

    int m_scaleFactor = 1;
    // The last text that held a number; a bad keystroke returns to it.
    QString m_goodText;
};

#endif
