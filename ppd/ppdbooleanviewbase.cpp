#include "ppdbooleanviewbase.h"

PPDBooleanViewBase::PPDBooleanViewBase(QWidget *parent)
    : QWidget(parent)
{
    setupUi(this);
}
