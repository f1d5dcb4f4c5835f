#ifndef QUEUEWIZ_LAYOUTDUMP_H
#define QUEUEWIZ_LAYOUTDUMP_H

#include <QString>

class QLayout;
class QWidget;

// Text dumps of a widget tree (class, name, geometry, font, layouts) for
// the log category "queuewiz.layout"; they never change the widgets.
class LayoutDump
{
public:
    static QString describe(const QWidget *widget);
    static QString describe(const QLayout *layout);

private:
    static void widget(QString &out, const QWidget *w, int depth);
    static void layout(QString &out, const QLayout *l, int depth);
};

#endif
