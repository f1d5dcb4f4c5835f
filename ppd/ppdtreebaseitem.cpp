#include "ppdtreebaseitem.h"

#include "mimesourcefactory_ppdwidgets.h"

#include <QTreeWidget>

namespace PPDTree {

BaseItem::BaseItem(ppd_file_t *ppd, QTreeWidget *view)
    : m_ppd(ppd)
    , m_parentItem(nullptr)
{
    if (view)
        view->insertTopLevelItem(0, this);
}

BaseItem::BaseItem(ppd_file_t *ppd, BaseItem *parent)
    : m_ppd(ppd)
    , m_parentItem(parent)
{
    if (parent) {
        parent->m_childItems.append(this);
        parent->insertChild(0, this);
    }
}

BaseItem::~BaseItem()
{
    // The tree widget deletes children after this part of the parent is
    // gone, so the links are cut from both sides here.
    for (BaseItem *child : std::as_const(m_childItems))
        child->m_parentItem = nullptr;
    if (m_parentItem)
        m_parentItem->m_childItems.removeOne(this);
}

void BaseItem::setPicture(const QString &name)
{
    m_pictureName = name;
    m_picture = name.isEmpty() ? QPixmap() : pixmapFromMimeSource(name);
    repaint();
}

void BaseItem::setConflict(bool conflict)
{
    // Clearing finds every child clear and setting every parent set when
    // this item already is, so only rows whose colour changes are touched:
    // a repaint per row of a big tree would freeze the dialog.
    if (conflict == m_conflict)
        return;
    m_conflict = conflict;
    if (!conflict) {
        for (BaseItem *child : std::as_const(m_childItems))
            child->setConflict(false);
    } else if (m_parentItem) {
        m_parentItem->setConflict(true);
    }
    repaint();
}

QList<LabelRun> BaseItem::labelRuns(const QPalette &palette, bool selected) const
{
    const QColor colour = m_conflict ? markColour(palette, Qt::red) : textColour(palette, selected);
    return {LabelRun{text(0), colour}};
}

void BaseItem::registerIn(QHash<QString, BaseItem *> &dictionary)
{
    for (BaseItem *child : std::as_const(m_childItems))
        child->registerIn(dictionary);
}

void BaseItem::updateConflict()
{
}

QVariant BaseItem::data(int column, int role) const
{
    if (role != Qt::AccessibleTextRole || column != 0)
        return QTreeWidgetItem::data(column, role);
    return m_conflict ? tr("%1, in conflict").arg(spokenText()) : spokenText();
}

QString BaseItem::spokenText() const
{
    return text(0);
}

void BaseItem::reload(ppd_file_t *ppd)
{
    for (BaseItem *child : std::as_const(m_childItems))
        child->reload(ppd);
}

QColor BaseItem::textColour(const QPalette &palette, bool selected)
{
    return palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

QColor BaseItem::markColour(const QPalette &palette, Qt::GlobalColor onLight)
{
    const QColor colour(onLight);
    if (palette.color(QPalette::Base).lightness() >= 128)
        return colour;
    return QColor::fromHsl(colour.hslHue(), colour.hslSaturation(), 170);
}

void BaseItem::repaint()
{
    emitDataChanged();
}

} // namespace PPDTree
