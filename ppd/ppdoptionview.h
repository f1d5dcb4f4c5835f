#ifndef QUEUEWIZ_PPDOPTIONVIEW_H
#define QUEUEWIZ_PPDOPTIONVIEW_H

#include <QGroupBox>

class PPDBooleanView;
class PPDNumericView;
class QListWidget;
class QStackedWidget;
class QTreeWidgetItem;

// The editor of the option selected in the tree: a stack with an empty page
// (0), the boolean editor (1), the list of choices (2) and the numeric
// editor (3).
class PPDOptionView : public QGroupBox
{
    Q_OBJECT

public:
    enum Page { EmptyPage = 0, BooleanPage = 1, ListPage = 2, NumericPage = 3 };

    explicit PPDOptionView(QWidget *parent = nullptr);

    // The item being edited, or null.
    QTreeWidgetItem *item() const { return m_item; }
    int currentPage() const;

    // Whether the options of installable-options groups may be changed.
    bool installableOptionsEditable() const { return m_installableOptionsEditable; }
    void setInstallableOptionsEditable(bool editable);

public slots:
    void setOption(QTreeWidgetItem *item);
    // A choice index was picked in the list or the boolean editor.
    void selectionChanged(int index);
    void valueChanged(double value);

signals:
    // A choice was marked in the PPD.
    void optionChanged();

private:
    QStackedWidget *m_stack;
    PPDBooleanView *m_booleanView;
    QListWidget *m_choiceList;
    PPDNumericView *m_numericView;
    QTreeWidgetItem *m_item = nullptr;
    bool m_installableOptionsEditable = false;
};

#endif
