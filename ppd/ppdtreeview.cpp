#include "ppdtreeview.h"

#include "ppdtreebaseitem.h"
#include "ppdtreedelegate.h"
#include "ppdtreegroupitem.h"

#include <QHeaderView>
#include <QMessageBox>
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
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &PPDTreeView::onItemSelectionChanged);
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
    lines.prepend(tr("You selected options that are in conflict. Try to resolve the\n"
                     "problem before continuing:\n"));
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
    m_root->setConflict(false);
    m_hasConflicts = ppdConflicts(m_ppd) > 0;
    if (!m_hasConflicts)
        return;
    for (PPDTree::BaseItem *item : std::as_const(m_dictionary))
        item->updateConflict();
}

void PPDTreeView::onItemSelectionChanged()
{
    const QList<QTreeWidgetItem *> selected = selectedItems();
    emit selectionChanged(selected.isEmpty() ? nullptr : selected.first());
}
