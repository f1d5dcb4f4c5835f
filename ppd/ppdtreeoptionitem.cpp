#include "ppdtreeoptionitem.h"

#include "mimesourcefactory_ppdwidgets.h"

#include <cstring>

namespace PPDTree {

namespace {

struct KeywordPicture
{
    const char *keyword;
    const char *picture;
};

// Media type and quality share the page-size picture.
const KeywordPicture kKeywordPictures[] = {
    {"PageSize", "pagesize.png"},       {"MediaType", "pagesize.png"},   {"InputSlot", "inputslot.png"},
    {"Brightness", "brightness.png"},   {"ColorModel", "color_opt.png"}, {"Grayscale", "color_opt.png"},
    {"Yellow", "yellow.png"},           {"Cyan", "cyan.png"},            {"Magenta", "magenta.png"},
    {"Gamma", "gamma.png"},             {"Duplex", "duplex.png"},        {"GSResolution", "gsresol.png"},
    {"Resolution", "resol.png"},        {"Saturation", "saturation.png"}, {"Contrast", "contrast.png"},
    {"Dither", "dither.png"},           {"Dithering", "dither.png"},     {"ImageType", "imagetype.png"},
    {"Quality", "pagesize.png"},
};

const char *lookUp(const QByteArray &keyword)
{
    const QByteArray lower = keyword.toLower();
    for (const KeywordPicture &row : kKeywordPictures) {
        if (lower == QByteArray(row.keyword).toLower())
            return row.picture;
    }
    return nullptr;
}

// libcups unmarks the page region when the page size is marked (and the
// other way round), and the manual feed and the input slot likewise.
bool marksPartner(const char *keyword)
{
    for (const char *partnered : {"PageSize", "PageRegion", "InputSlot", "ManualFeed"}) {
        if (qstricmp(keyword, partnered) == 0)
            return true;
    }
    return false;
}

} // namespace

OptionItem::OptionItem(ppd_file_t *ppd, ppd_option_t *option, BaseItem *parent, bool editableGroup)
    : BaseItem(ppd, parent)
    , m_option(option)
    , m_editableGroup(editableGroup)
{
    setPicture(keywordPictureName(option->keyword, "list.png"));

    // The last marked choice wins; without one, the PPD's default.
    ppd_choice_t *current = nullptr;
    for (int i = 0; i < option->num_choices; ++i) {
        if (option->choices[i].marked)
            current = &option->choices[i];
    }
    if (!current) {
        for (int i = 0; i < option->num_choices && !current; ++i) {
            if (std::strcmp(option->choices[i].choice, option->defchoice) == 0)
                current = &option->choices[i];
        }
    }
    setChoice(current);
}

void OptionItem::setChoice(ppd_choice_t *choice)
{
    m_choice = choice;
    if (m_option->ui == PPD_UI_BOOLEAN) {
        if (!choice)
            setPicture(QString());
        else
            setPicture(std::strcmp(choice->choice, "True") == 0 ? QStringLiteral("bool_on.png")
                                                                  : QStringLiteral("bool_off.png"));
    }
    // Every ppdMarkOption tests all constraints of the PPD, so building the
    // tree of a big one would take long: a choice that is marked already is
    // not marked again, unless marking it also clears a partner option.
    if (choice && ppd() && (!choice->marked || marksPartner(m_option->keyword)))
        ppdMarkOption(ppd(), m_option->keyword, choice->choice);
    refreshLabel();
}

void OptionItem::refreshLabel()
{
    const QString value = m_choice ? QString::fromUtf8(m_choice->text) : tr("Undefined");
    setText(0, QStringLiteral("%1: <%2>").arg(optionText(), value));
}

QList<LabelRun> OptionItem::labelRuns(const QPalette &palette, bool selected) const
{
    return valueRuns(valueText(), palette, selected);
}

QString OptionItem::valueText() const
{
    return m_choice ? QString::fromUtf8(m_choice->text) : tr("Undefined");
}

QString OptionItem::spokenText() const
{
    return optionText() + QStringLiteral(": ") + valueText();
}

void OptionItem::registerIn(QHash<QString, BaseItem *> &dictionary)
{
    dictionary.insert(QString::fromUtf8(m_option->keyword), this);
}

void OptionItem::updateConflict()
{
    if (m_option->conflicted)
        setConflict(true);
}

void OptionItem::reload(ppd_file_t *ppd)
{
    setChoice(ppdFindMarkedChoice(ppd, m_option->keyword));
}

QString OptionItem::keywordPictureName(const char *keyword, const char *fallback)
{
    const QByteArray key(keyword);
    const char *picture = lookUp(key);
    // A row may name an option by the spelling with the "Stp" prefix.
    if (!picture && !key.startsWith("Stp"))
        picture = lookUp("Stp" + key);
    return QString::fromLatin1(picture ? picture : fallback);
}

QPixmap OptionItem::keywordPicture(const char *keyword, const char *fallback)
{
    return pixmapFromMimeSource(keywordPictureName(keyword, fallback));
}

QList<LabelRun> OptionItem::valueRuns(const QString &value, const QPalette &palette, bool selected) const
{
    const QColor plain = textColour(palette, selected);
    QColor valueColour = plain;
    if (isConflict())
        valueColour = markColour(palette, Qt::red);
    else if (!selected)
        valueColour = markColour(palette, Qt::darkGreen);
    return {LabelRun{optionText() + QStringLiteral(": <"), plain}, LabelRun{value, valueColour},
            LabelRun{QStringLiteral(">"), plain}};
}

QString OptionItem::optionText() const
{
    return QString::fromUtf8(m_option->text);
}

} // namespace PPDTree
