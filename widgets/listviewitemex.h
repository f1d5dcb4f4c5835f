#ifndef QUEUEWIZ_LISTVIEWITEMEX_H
#define QUEUEWIZ_LISTVIEWITEMEX_H

#include <QLineEdit>
#include <QList>
#include <QPointer>
#include <QTreeWidgetItem>

class QValidator;
class ListViewEx;

// A tree item that can be renamed in place, column by column, with one
// validator per column. While a rename is open the item holds the editor, so
// that the current text can be judged before it is stored.
class ListViewItemEx : public QTreeWidgetItem
{
public:
    // Item data role that tells the view's delegate which columns may be
    // renamed.
    static constexpr int RenameEnabledRole = Qt::UserRole + 0x7e1;

    explicit ListViewItemEx(QTreeWidget *view, int type = Type);
    explicit ListViewItemEx(QTreeWidgetItem *parent, int type = Type);
    ~ListViewItemEx() override;

    void setRenameEnabled(int column, bool enabled);
    bool renameEnabled(int column) const;

    // The validator is not owned (it is usually a child of the view). The
    // column's text is set again so that a repairing item shows the repaired
    // form at once.
    void setValidator(int column, QValidator *validator);
    QValidator *validator(int column) const;

    // True for columns without validator; else whether the validator takes a
    // copy of text as Acceptable.
    bool isAcceptable(int column, const QString &text) const;
    // The same for the text being typed when that column is renamed, else
    // for the stored text.
    bool isAcceptable(int column) const;

    QLineEdit *editor() const { return m_editor; }
    int renameColumn() const { return m_renameColumn; }

    virtual void startRename(int column);
    virtual void okRename(int column);
    virtual void cancelRename(int column);

protected:
    virtual void forgetEditor();

private:
    ListViewEx *listViewEx() const;

    QList<QPointer<QValidator>> m_validators;
    QPointer<QLineEdit> m_editor;
    int m_renameColumn = -1;
};

#endif
