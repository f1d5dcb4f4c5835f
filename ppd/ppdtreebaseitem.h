#ifndef QUEUEWIZ_PPDTREEBASEITEM_H
#define QUEUEWIZ_PPDTREEBASEITEM_H

#include <cups/ppd.h>

#include <QColor>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QPalette>
#include <QPixmap>
#include <QString>
#include <QTreeWidgetItem>

namespace PPDTree {

// A piece of an item's label in one colour; PPDTreeDelegate draws the runs
// one after the other.
struct LabelRun
{
    QString text;
    QColor colour;
};

// An item of the option tree. The root (the driver) is a plain BaseItem.
// Items point into the open PPD and never copy its data. Each item is put at
// the top of its parent and keeps a non-owning list of its child items; the
// tree widget owns and deletes the items.
class BaseItem : public QTreeWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(PPDTree::BaseItem)

public:
    // The root, at the top of view.
    BaseItem(ppd_file_t *ppd, QTreeWidget *view);
    BaseItem(ppd_file_t *ppd, BaseItem *parent);
    ~BaseItem() override;
    BaseItem(const BaseItem &) = delete;
    BaseItem &operator=(const BaseItem &) = delete;

    ppd_file_t *ppd() const { return m_ppd; }
    BaseItem *parentItem() const { return m_parentItem; }
    const QList<BaseItem *> &childItems() const { return m_childItems; }
    bool isConflict() const { return m_conflict; }
    // 1 for a NumericalItem, 0 otherwise.
    int numerical() const { return m_numerical; }

    QPixmap picture() const { return m_picture; }
    QString pictureName() const { return m_pictureName; }
    // A built-in picture by name; an empty name clears it.
    void setPicture(const QString &name);

    // Sets the flag; clearing goes down to every child, setting goes up to
    // the root.
    virtual void setConflict(bool conflict);
    // The label as coloured runs, for a row that is selected or not.
    virtual QList<LabelRun> labelRuns(const QPalette &palette, bool selected) const;
    // Puts every option item below (or this one) under its keyword.
    virtual void registerIn(QHash<QString, BaseItem *> &dictionary);
    // Marks the item in conflict when libcups flagged its option.
    virtual void updateConflict();
    // Takes the marked choices of ppd again.
    virtual void reload(ppd_file_t *ppd);

    // Screen readers read the row from Qt::AccessibleTextRole: the label
    // without its decoration, and the conflict that only the colour shows.
    QVariant data(int column, int role) const override;

protected:
    // What a screen reader reads for the row, conflict aside.
    virtual QString spokenText() const;
    // The colour of plain label text.
    static QColor textColour(const QPalette &palette, bool selected);
    // A marking colour (red, dark green) as drawn on the palette's base: on
    // a dark scheme the same hue, light enough to read.
    static QColor markColour(const QPalette &palette, Qt::GlobalColor onLight);

    int m_numerical = 0;

private:
    void repaint();

    ppd_file_t *m_ppd;
    BaseItem *m_parentItem;
    QList<BaseItem *> m_childItems;
    bool m_conflict = false;
    QPixmap m_picture;
    QString m_pictureName;
};

} // namespace PPDTree

#endif
