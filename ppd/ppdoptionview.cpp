#include "ppdoptionview.h"

#include "ppdbooleanview.h"
#include "ppdnumericview.h"
#include "ppdtreenumericalitem.h"

#include <QListWidget>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

int depthOf(const QTreeWidgetItem *item)
{
    int depth = 0;
    for (const QTreeWidgetItem *up = item->parent(); up; up = up->parent())
        ++depth;
    return depth;
}

} // namespace

PPDOptionView::PPDOptionView(QWidget *parent)
    : QGroupBox(parent)
    , m_stack(new QStackedWidget(this))
    , m_booleanView(new PPDBooleanView(m_stack))
    , m_choiceList(new QListWidget(m_stack))
    , m_numericView(new PPDNumericView(m_stack))
{
    m_booleanView->setObjectName(QStringLiteral("booleanView"));
    m_choiceList->setObjectName(QStringLiteral("choiceList"));
    m_numericView->setObjectName(QStringLiteral("numericView"));
    m_stack->addWidget(new QWidget(m_stack));
    m_stack->addWidget(m_booleanView);
    m_stack->addWidget(m_choiceList);
    m_stack->addWidget(m_numericView);
    m_stack->setCurrentIndex(EmptyPage);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(11, 11, 11, 11);
    layout->setSpacing(0);
    layout->addSpacing(10);
    layout->addWidget(m_stack);

    setTitle(tr("No option selected"));

    connect(m_booleanView, &PPDBooleanView::valueChanged, this, &PPDOptionView::selectionChanged);
    connect(m_choiceList, &QListWidget::currentRowChanged, this, &PPDOptionView::selectionChanged);
    connect(m_numericView, &PPDNumericView::valueChanged, this, &PPDOptionView::valueChanged);
}

int PPDOptionView::currentPage() const
{
    return m_stack->currentIndex();
}

void PPDOptionView::setInstallableOptionsEditable(bool editable)
{
    m_installableOptionsEditable = editable;
}

void PPDOptionView::setOption(QTreeWidgetItem *item)
{
    // Filling the editors must not count as the user's choice: the item is
    // taken on only when its page is ready.
    const QSignalBlocker blocker(this);
    m_item = nullptr;
    setTitle(tr("No option selected"));
    m_stack->setCurrentIndex(EmptyPage);
    m_stack->setEnabled(true);

    auto *option = dynamic_cast<PPDTree::OptionItem *>(item);
    if (!item || item->childCount() > 0 || !option)
        return;

    ppd_option_t *ppdOption = option->option();
    setTitle(QString::fromUtf8(ppdOption->text));
    if (depthOf(item) >= 2 && option->numerical() == 1) {
        auto *numerical = static_cast<PPDTree::NumericalItem *>(option);
        m_stack->setCurrentIndex(NumericPage);
        if (numerical->realValue())
            m_numericView->setScaleFactor(1000);
        m_numericView->setRange(numerical->minimum(), numerical->maximum());
        m_numericView->setValue(numerical->value());
    } else if (ppdOption->ui == PPD_UI_BOOLEAN) {
        m_stack->setCurrentIndex(BooleanPage);
        if (ppdOption->num_choices == 2) {
            m_booleanView->setButtonText(0, QString::fromUtf8(ppdOption->choices[0].text));
            m_booleanView->setButtonText(1, QString::fromUtf8(ppdOption->choices[1].text));
            m_booleanView->selectButton(option->choice() == &ppdOption->choices[0] ? 0 : 1);
        }
    } else if (ppdOption->ui == PPD_UI_PICKONE) {
        m_stack->setCurrentIndex(ListPage);
        const QSignalBlocker listBlocker(m_choiceList);
        m_choiceList->clear();
        // The list has no caption of its own; the box's title says what it is.
        m_choiceList->setAccessibleName(QString::fromUtf8(ppdOption->text));
        int current = -1;
        for (int i = 0; i < ppdOption->num_choices; ++i) {
            m_choiceList->addItem(QString::fromUtf8(ppdOption->choices[i].text));
            if (option->choice() == &ppdOption->choices[i])
                current = i;
        }
        m_choiceList->setCurrentRow(current);
    }
    m_stack->setEnabled(option->isEditableGroup() || m_installableOptionsEditable);
    m_item = item;
}

void PPDOptionView::selectionChanged(int index)
{
    auto *option = dynamic_cast<PPDTree::OptionItem *>(m_item);
    if (option && option->numerical() == 0 && depthOf(option) > 1 && index >= 0
        && index < option->option()->num_choices) {
        option->setChoice(&option->option()->choices[index]);
    }
    emit optionChanged();
}

void PPDOptionView::valueChanged(double value)
{
    auto *numerical = dynamic_cast<PPDTree::NumericalItem *>(m_item);
    if (!numerical)
        return;
    numerical->setValue(value);
    numerical->refreshLabel();
}
