#ifndef QUEUEWIZ_PPDBOOLEANVIEW_H
#define QUEUEWIZ_PPDBOOLEANVIEW_H

#include "ppdbooleanviewbase.h"

class QButtonGroup;

// Edits a boolean option: button 0 stands for its first choice, button 1
// for its second; a click passes the button's number on as the choice index.
class PPDBooleanView : public PPDBooleanViewBase
{
    Q_OBJECT

public:
    explicit PPDBooleanView(QWidget *parent = nullptr);

    void setButtonText(int id, const QString &text);
    QString buttonText(int id) const;
    void selectButton(int id);
    // The selected button, -1 for none.
    int selectedButton() const;

signals:
    void valueChanged(int id);

private:
    QButtonGroup *m_group;
};

#endif
