#include "ppddialogbase.h"

PPDDialogBase::PPDDialogBase(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setupUi(this);
    connect(OkButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(ppdTreeView, qOverload<QTreeWidgetItem *>(&PPDTreeView::selectionChanged), ppdOptionView,
            &PPDOptionView::setOption);
    connect(ppdOptionView, &PPDOptionView::optionChanged, ppdTreeView, &PPDTreeView::checkConstraints);
}
