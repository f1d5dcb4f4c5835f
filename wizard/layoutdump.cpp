#include "layoutdump.h"

#include <QLayout>
#include <QWidget>

namespace {

QString indent(int depth)
{
    return QString(depth * 2, QLatin1Char(' '));
}

QString rect(const QRect &r)
{
    return QStringLiteral("%1x%2+%3+%4").arg(r.width()).arg(r.height()).arg(r.x()).arg(r.y());
}

} // namespace

QString LayoutDump::describe(const QWidget *w)
{
    QString out;
    if (w)
        widget(out, w, 0);
    return out;
}

QString LayoutDump::describe(const QLayout *l)
{
    QString out;
    if (l)
        layout(out, l, 0);
    return out;
}

void LayoutDump::widget(QString &out, const QWidget *w, int depth)
{
    out += QStringLiteral("%1%2 \"%3\" %4 font=%5%6\n")
               .arg(indent(depth), QString::fromLatin1(w->metaObject()->className()), w->objectName(),
                    rect(w->geometry()), w->font().toString(), w->isHidden() ? QStringLiteral(" hidden") : QString());
    if (w->layout())
        layout(out, w->layout(), depth + 1);
    const QObjectList children = w->children();
    for (const QObject *child : children) {
        if (child->isWidgetType())
            widget(out, static_cast<const QWidget *>(child), depth + 1);
    }
}

void LayoutDump::layout(QString &out, const QLayout *l, int depth)
{
    const QMargins m = l->contentsMargins();
    out += QStringLiteral("%1[%2 \"%3\" margins=%4,%5,%6,%7 spacing=%8]\n")
               .arg(indent(depth), QString::fromLatin1(l->metaObject()->className()), l->objectName())
               .arg(m.left())
               .arg(m.top())
               .arg(m.right())
               .arg(m.bottom())
               .arg(l->spacing());
    for (int i = 0; i < l->count(); ++i) {
        QLayoutItem *item = l->itemAt(i);
        if (const QLayout *sub = item->layout())
            layout(out, sub, depth + 1);
        else if (const QWidget *w = item->widget())
            out += QStringLiteral("%1- \"%2\"\n").arg(indent(depth + 1), w->objectName());
    }
}
