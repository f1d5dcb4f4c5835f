#ifndef QUEUEWIZ_PPDBOOLEANVIEWBASE_H
#define QUEUEWIZ_PPDBOOLEANVIEWBASE_H

#include "ui_ppdbooleanviewbase.h"

#include <QWidget>

// The form of the boolean editor: two radio buttons, button1 and button2.
class PPDBooleanViewBase : public QWidget, protected Ui::PPDBooleanViewBase
{
    Q_OBJECT

public:
    explicit PPDBooleanViewBase(QWidget *parent = nullptr);
};

#endif
