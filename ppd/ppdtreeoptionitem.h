#ifndef QUEUEWIZ_PPDTREEOPTIONITEM_H
#define QUEUEWIZ_PPDTREEOPTIONITEM_H

#include "ppdtreebaseitem.h"

namespace PPDTree {

// One PPD option: shows "text: <choice>" and marks a new choice in the PPD.
class OptionItem : public BaseItem
{
    Q_DECLARE_TR_FUNCTIONS(PPDTree::OptionItem)

public:
    // editableGroup is false for the options of an installable-options group.
    OptionItem(ppd_file_t *ppd, ppd_option_t *option, BaseItem *parent, bool editableGroup);

    ppd_option_t *option() const { return m_option; }
    ppd_choice_t *choice() const { return m_choice; }
    bool isEditableGroup() const { return m_editableGroup; }

    // Makes choice (a choice of this option, or null) the current one and
    // marks it in the PPD.
    void setChoice(ppd_choice_t *choice);
    // Rebuilds the text of column 0.
    virtual void refreshLabel();

    QList<LabelRun> labelRuns(const QPalette &palette, bool selected) const override;
    void registerIn(QHash<QString, BaseItem *> &dictionary) override;
    void updateConflict() override;
    void reload(ppd_file_t *ppd) override;

    // The picture name for an option keyword, compared without regard to
    // case; fallback when the keyword has none.
    static QString keywordPictureName(const char *keyword, const char *fallback);
    static QPixmap keywordPicture(const char *keyword, const char *fallback);

protected:
    // The runs "text: <", value, ">" with the value coloured by the state.
    QList<LabelRun> valueRuns(const QString &value, const QPalette &palette, bool selected) const;
    QString optionText() const;
    // The current value as the row shows it.
    virtual QString valueText() const;
    // "text: value".
    QString spokenText() const override;

private:
    ppd_option_t *m_option;
    ppd_choice_t *m_choice = nullptr;
    bool m_editableGroup;
};

} // namespace PPDTree

#endif
