#ifndef QUEUEWIZ_PPDTREEVIEW_H
#define QUEUEWIZ_PPDTREEVIEW_H

#include <cups/ppd.h>

#include <QHash>
#include <QSet>
#include <QString>
#include <QTreeWidget>

namespace PPDTree {
class BaseItem;
}

// The option tree of one open PPD: a root for the driver, its groups, their
// options. Checks the PPD's constraints and paints the way to every option in
// conflict red.
class PPDTreeView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit PPDTreeView(QWidget *parent = nullptr);
    ~PPDTreeView() override;

    // Builds the tree for ppd (not owned); null leaves the view empty.
    void setPPD(ppd_file_t *ppd);
    ppd_file_t *ppd() const { return m_ppd; }
    // Every option item takes the PPD's marked choice again; then the
    // constraints are checked.
    void reload();
    // Whether the last check found conflicts.
    bool hasConflicts() const { return m_hasConflicts; }

    PPDTree::BaseItem *rootItem() const { return m_root; }
    // The option item of a keyword, or null.
    PPDTree::BaseItem *findOption(const QString &keyword) const { return m_dictionary.value(keyword); }
    PPDTree::BaseItem *baseItem(const QModelIndex &index) const;
    // The warning for the options that are in conflict now; empty when none.
    QString conflictMessage() const;

public slots:
    // Checks the constraints and, when options conflict, says which.
    void checkConstraints();

signals:
    // The selected item changed (null: none is selected).
    void selectionChanged(QTreeWidgetItem *item);

protected:
    using QTreeWidget::selectionChanged;

private:
    void findConflicts();
    void updateConflicts(PPDTree::BaseItem *item, const QSet<PPDTree::BaseItem *> &conflicts);
    void fitColumn(const QModelIndex &topLeft, const QModelIndex &bottomRight);
    void onItemSelectionChanged();

    ppd_file_t *m_ppd = nullptr;
    PPDTree::BaseItem *m_root = nullptr;
    QHash<QString, PPDTree::BaseItem *> m_dictionary;
    bool m_hasConflicts = false;
};

#endif
