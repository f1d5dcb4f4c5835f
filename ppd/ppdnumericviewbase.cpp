#include "ppdnumericviewbase.h"

PPDNumericViewBase::PPDNumericViewBase(QWidget *parent)
    : QWidget(parent)
{
    setupUi(this);
}
