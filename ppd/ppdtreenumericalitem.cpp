#include "ppdtreenumericalitem.h"

#include "ppdtreegroupitem.h"

namespace PPDTree {

namespace {

bool inEditableGroup(BaseItem *parent)
{
    auto *group = dynamic_cast<GroupItem *>(parent);
    return !group || !QString::fromUtf8(group->group()->text).contains(QLatin1String("install"), Qt::CaseInsensitive);
}

} // namespace

NumericalItem::NumericalItem(ppd_file_t *ppd, ppd_option_t *option, BaseItem *parent)
    : OptionItem(ppd, option, parent, inEditableGroup(parent))
{
    m_numerical = 1;
    setPicture(keywordPictureName(option->keyword, "numeric.png"));
    reload(ppd);
}

void NumericalItem::setRealValue(int realValue)
{
    m_realValue = realValue;
    refreshLabel();
}

void NumericalItem::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
}

void NumericalItem::setValue(double value)
{
    m_value = value;
}

void NumericalItem::refreshLabel()
{
    const QString number = m_realValue ? QString::asprintf("%.3f", m_value)
                                       : QString::number(static_cast<int>(m_value));
    setText(0, QStringLiteral("%1: <%2>").arg(optionText(), number));
}

QString NumericalItem::valueText() const
{
    return QString::asprintf("%.3f", m_value);
}

void NumericalItem::registerIn(QHash<QString, BaseItem *> &dictionary)
{
    BaseItem::registerIn(dictionary);
}

void NumericalItem::updateConflict()
{
}

void NumericalItem::reload(ppd_file_t *ppd)
{
    ppd_choice_t *marked = ppd ? ppdFindMarkedChoice(ppd, option()->keyword) : nullptr;
    m_value = marked ? QString::fromUtf8(marked->text).toDouble() : 0.0;
    refreshLabel();
}

} // namespace PPDTree
