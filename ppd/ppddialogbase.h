#ifndef QUEUEWIZ_PPDDIALOGBASE_H
#define QUEUEWIZ_PPDDIALOGBASE_H

#include "ui_ppddialogbase.h"

#include <QDialog>

// The form of the driver options dialog: the option tree (ppdTreeView) on the
// left, the editor of the selected option (ppdOptionView) on the right,
// OkButton and CancelButton below.
class PPDDialogBase : public QDialog, protected Ui::PPDDialogBase
{
    Q_OBJECT

public:
    explicit PPDDialogBase(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
};

#endif
