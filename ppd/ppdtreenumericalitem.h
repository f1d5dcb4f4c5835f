#ifndef QUEUEWIZ_PPDTREENUMERICALITEM_H
#define QUEUEWIZ_PPDTREENUMERICALITEM_H

#include "ppdtreeoptionitem.h"

namespace PPDTree {

// An option with a number for its value, edited with the numeric editor
// between a minimum and a maximum, as an integer or with three decimals.
class NumericalItem : public OptionItem
{
public:
    NumericalItem(ppd_file_t *ppd, ppd_option_t *option, BaseItem *parent);

    // Nonzero: the value is shown and edited with three decimals.
    int realValue() const { return m_realValue; }
    void setRealValue(int realValue);
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    void setRange(double minimum, double maximum);
    double value() const { return m_value; }
    void setValue(double value);

    void refreshLabel() override;

    void registerIn(QHash<QString, BaseItem *> &dictionary) override;
    void updateConflict() override;
    void reload(ppd_file_t *ppd) override;

protected:
    QString valueText() const override;

private:
    int m_realValue = 0;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    double m_value = 0.0;
};

} // namespace PPDTree

#endif
