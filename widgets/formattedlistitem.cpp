#include "formattedlistitem.h"

#include <QValidator>

FormattedListItem::FormattedListItem(QTreeWidget *view)
    : ListViewItemEx(view, RTTI)
{
}

FormattedListItem::FormattedListItem(QTreeWidgetItem *parent)
    : ListViewItemEx(parent, RTTI)
{
}

void FormattedListItem::setData(int column, int role, const QVariant &value)
{
    if ((role != Qt::DisplayRole && role != Qt::EditRole) || !value.canConvert<QString>()) {
        ListViewItemEx::setData(column, role, value);
        return;
    }

    // The repair is made before storing, so views never see the raw text.
    QString text = value.toString();
    if (QValidator *v = validator(column)) {
        int pos = 0;
        v->validate(text, pos);
    } else {
        qWarning("Validator is not set");
    }
    ListViewItemEx::setData(column, role, text);
}
