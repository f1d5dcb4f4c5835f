#include "ppdtreeview.h"

#include "ppdtreebaseitem.h"
#include "ppdtreedelegate.h"
#include "ppdtreegroupitem.h"
#include "ppdtreeoptionitem.h"

#include <QHeaderView>
#include <QMessageBox>
#include <QSet>
#include <QStringList>

namespace {

void collectConflicts(const ppd_group_t *group, QStringList &lines)
{
    for (int i = 0; i < group->num_options; ++i) {
        const ppd_option_t *option = &group->options[i];
        if (!option->conflicted)
            continue;
        QStringList marked;
        for (int c = 0; c < option->num_choices; ++c) {
            if (option->choices[c].marked)
                marked << QString::fromUtf8(option->choices[c].text);
        }
        lines << QStringLiteral("%1 = %2").arg(QString::fromUtf8(option->text), marked.join(QLatin1Char(',')));
    }
    for (int i = 0; i < group->num_subgroups; ++i)
        collectConflicts(&group->subgroups[i], lines);
}

} // namespace

PPDTreeView::PPDTreeView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(1);
    setHeaderHidden(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setItemDelegate(new PPDTreeDelegate(this));
    // The column is as wide as the widest label: measured once per tree and
    // widened when a label grows (see fitColumn).
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &PPDTreeView::onItemSelectionChanged);
    connect(model(), &QAbstractItemModel::dataChanged, this, &PPDTreeView::fitColumn);
}

PPDTreeView::~PPDTreeView()
{
    // The items point into the PPD; nothing may look at them on the way out.
    blockSignals(true);
}

void PPDTreeView::setPPD(ppd_file_t *ppd)
{
    const bool hadTree = m_root != nullptr;
    m_dictionary.clear();
    m_root = nullptr;
    m_hasConflicts = false;
    clear();
    m_ppd = ppd;
    // Whoever shows the old selection must let go of it.
    if (hadTree)
        emit selectionChanged(nullptr);
    if (!ppd)
        return;

    setSortingEnabled(false);
    m_root = new PPDTree::BaseItem(ppd, this);
    m_root->setText(0, QString::fromUtf8(ppd->nickname));
    m_root->setPicture(QStringLiteral("printer.png"));
    m_root->setExpanded(true);
    // Each group goes to the top, so the last group of the PPD comes first.
    for (int i = 0; i < ppd->num_groups; ++i)
        new PPDTree::GroupItem(ppd, &ppd->groups[i], m_root);
    m_root->registerIn(m_dictionary);
    findConflicts();
    resizeColumnToContents(0);
}

void PPDTreeView::reload()
{
    if (!m_root)
        return;
    m_root->reload(m_ppd);
    checkConstraints();
}

PPDTree::BaseItem *PPDTreeView::baseItem(const QModelIndex &index) const
{
    return dynamic_cast<PPDTree::BaseItem *>(itemFromIndex(index));
}

QString PPDTreeView::conflictMessage() const
{
    if (!m_ppd)
        return QString();
    QStringList lines;
    for (int i = 0; i < m_ppd->num_groups; ++i)
        collectConflicts(&m_ppd->groups[i], lines);
    if (lines.isEmpty())
        return QString();
    const int count = static_cast<int>(lines.size());
    lines.prepend(tr("You selected %n options that are in conflict. Resolve the conflict before you "
                     "continue:\n",
                     nullptr, count));
    return lines.join(QStringLiteral("\n  "));
}

void PPDTreeView::checkConstraints()
{
    findConflicts();
    if (!m_hasConflicts)
        return;
    const QString message = conflictMessage();
    if (message.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, tr("Driver configuration"), message, QMessageBox::Ok, this);
    box.setDefaultButton(QMessageBox::Ok);
    box.exec();
}

void PPDTreeView::findConflicts()
{
    if (!m_root || !m_ppd) {
        m_hasConflicts = false;
        return;
    }
    m_hasConflicts = ppdConflicts(m_ppd) > 0;
    // The rows in conflict from now on: the options libcups flagged and the
    // way up to the root. Rows that keep their state are left alone.
    QSet<PPDTree::BaseItem *> conflicts;
    if (m_hasConflicts) {
        for (PPDTree::BaseItem *item : std::as_const(m_dictionary)) {
            // As OptionItem::updateConflict decides; numerical rows stay clear.
            const auto *option = dynamic_cast<PPDTree::OptionItem *>(item);
            if (!option || option->numerical() != 0 || !option->option()->conflicted)
                continue;
            for (PPDTree::BaseItem *up = item; up && !conflicts.contains(up); up = up->parentItem())
                conflicts.insert(up);
        }
    }
    updateConflicts(m_root, conflicts);
}

void PPDTreeView::updateConflicts(PPDTree::BaseItem *item, const QSet<PPDTree::BaseItem *> &conflicts)
{
    // Children first: a row is cleared only once nothing below it is left
    // in conflict, and setting a row sets its parents, which are in the set.
    for (PPDTree::BaseItem *child : item->childItems())
        updateConflicts(child, conflicts);
    item->setConflict(conflicts.contains(item));
}

void PPDTreeView::fitColumn(const QModelIndex &topLeft, const QModelIndex &bottomRight)
{
    // A changed row can only make the column wider: measure the rows that
    // changed, never the whole column, which costs a walk over every row.
    if (!topLeft.isValid() || !bottomRight.isValid())
        return;
    int depth = rootIsDecorated() ? 1 : 0;
    for (QModelIndex up = topLeft.parent(); up.isValid(); up = up.parent())
        ++depth;
    int width = 0;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row)
        width = qMax(width, sizeHintForIndex(topLeft.sibling(row, 0)).width());
    width += depth * indentation();
    if (width > columnWidth(0))
        setColumnWidth(0, width);
}

void PPDTreeView::onItemSelectionChanged()
{
    const QList<QTreeWidgetItem *> selected = selectedItems();
    emit selectionChanged(selected.isEmpty() ? nullptr : selected.first());
}
