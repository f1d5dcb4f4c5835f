#ifndef QUEUEWIZ_PPDNUMERICVIEWBASE_H
#define QUEUEWIZ_PPDNUMERICVIEWBASE_H

#include "ui_ppdnumericviewbase.h"

#include <QWidget>

// The form of the numeric editor: the value as text (editValue) and on a
// slider (sliderValue) between the labels labelMin and labelMax.
class PPDNumericViewBase : public QWidget, protected Ui::PPDNumericViewBase
{
    Q_OBJECT

public:
    explicit PPDNumericViewBase(QWidget *parent = nullptr);
};

#endif
