#include "printerportlistview.h"

#include "cupsmanager.h"
#include "cupsprinter.h"
#include "formattedlistitem.h"
#include "softassert.h"
#include "urivalidator.h"

#include <QCoreApplication>

const char *const _networkPort[4] = {
    QT_TRANSLATE_NOOP("PrinterPortListView", "IPP"),
    QT_TRANSLATE_NOOP("PrinterPortListView", "AppSocket"),
    QT_TRANSLATE_NOOP("PrinterPortListView", "LPR/LPD"),
    QT_TRANSLATE_NOOP("PrinterPortListView", "SMB"),
};

namespace {

// URIs are made from the group a device belongs to, so a group is told by
// its English name, kept beside the shown (translated) one.
const char *const GroupNames[] = {
    QT_TRANSLATE_NOOP("PrinterPortListView", "Parallel"),
    QT_TRANSLATE_NOOP("PrinterPortListView", "USB"),
    QT_TRANSLATE_NOOP("PrinterPortListView", "Network"),
    QT_TRANSLATE_NOOP("PrinterPortListView", "File"),
};
const QString ParallelGroup = QLatin1String(GroupNames[0]);
const QString UsbGroup = QLatin1String(GroupNames[1]);
const QString NetworkGroup = QLatin1String(GroupNames[2]);
const QString FileGroup = QLatin1String(GroupNames[3]);
constexpr int GroupNameRole = Qt::UserRole;
const QString MfpTag = QStringLiteral("mfp");
const QString NativeTag = QStringLiteral("native");

constexpr int ParallelCount = 4;
constexpr int UsbCount = 8;
constexpr int TagColumn = 1;

QStringList devicePaths(const char *format, int first, int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i)
        paths << QString::asprintf(format, first + i);
    return paths;
}

// CUPS 1.2 and later take IPv6 addresses in device URIs. Asked when a URI
// is judged, not while the forms load: the version may still be probed.
bool cupsTakesIpv6()
{
    return CupsVersionProbe::takesIpv6(CUPSManager::m_CUPSManagerInstance.CupsVersion);
}

} // namespace

PrinterPortListView::PrinterPortListView(QWidget *parent, const char *name)
    : ListViewEx(parent)
{
    if (name)
        setObjectName(QString::fromLatin1(name));

    setColumnCount(2);
    setHeaderLabels({tr("Port"), QString()});
    setHeaderHidden(true);
    hideColumn(TagColumn);
    setSelectionMode(SingleSelection);

    addLocalGroup(ParallelGroup, MfpTag, devicePaths("/dev/mfp%d", 0, ParallelCount));
    addLocalGroup(UsbGroup, MfpTag, devicePaths("/dev/mfp%d", ParallelCount, UsbCount));
    addLocalGroup(ParallelGroup, NativeTag, devicePaths("/dev/lp%d", 0, ParallelCount));
    addLocalGroup(UsbGroup, NativeTag, devicePaths("/dev/usb/lp%d", 0, UsbCount));

    auto addEditable = [this](QTreeWidgetItem *group, int scheme) {
        auto *item = new FormattedListItem(group);
        item->setValidator(0, new UriValidator(scheme, &cupsTakesIpv6, this));
        item->setRenameEnabled(0, true);
    };
    QTreeWidgetItem *network = addGroup(NetworkGroup, QString());
    for (int scheme = UriValidator::IppScheme; scheme <= UriValidator::SmbScheme; ++scheme)
        addEditable(network, scheme);
    QTreeWidgetItem *file = addGroup(FileGroup, QString());
    addEditable(file, UriValidator::FileScheme);

    expandAll();
    setMfpMode(false);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &PrinterPortListView::startRenameSelectedItem);
}

QTreeWidgetItem *PrinterPortListView::addGroup(const QString &name, const QString &tag)
{
    auto *group = new QTreeWidgetItem(this, {tr(name.toLatin1().constData()), tag});
    group->setData(0, GroupNameRole, name);
    return group;
}

void PrinterPortListView::addLocalGroup(const QString &name, const QString &tag, const QStringList &devices)
{
    QTreeWidgetItem *group = addGroup(name, tag);
    for (const QString &path : devices)
        new QTreeWidgetItem(group, {path});
}

QString PrinterPortListView::groupName(const QTreeWidgetItem *group)
{
    return group->data(0, GroupNameRole).toString();
}

bool PrinterPortListView::isLocalGroup(const QTreeWidgetItem *group)
{
    const QString name = groupName(group);
    return name == ParallelGroup || name == UsbGroup;
}

void PrinterPortListView::setMfpMode(bool mfpMode)
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = topLevelItem(i);
        const QString tag = group->text(TagColumn);
        if (tag == NativeTag)
            group->setHidden(mfpMode);
        else if (tag == MfpTag)
            group->setHidden(!mfpMode);
    }
    m_mfpMode = mfpMode;
}

QString PrinterPortListView::itemURI(QTreeWidgetItem *item) const
{
    if (!item)
        return QString();
    if (!QW_CHECK(item->parent(), "printerportlistview", 215))
        return QString();
    const QString parent = groupName(item->parent());
    const QString text = item->text(0);
    if (parent != ParallelGroup && parent != UsbGroup)
        return text;
    if (text.contains(MfpTag))
        return QStringLiteral("mfp:") + text;
    if (parent == UsbGroup)
        return QStringLiteral("usb:") + text;
    return QStringLiteral("parallel:") + text;
}

QTreeWidgetItem *PrinterPortListView::selectedItem() const
{
    const QList<QTreeWidgetItem *> items = selectedItems();
    return items.isEmpty() ? nullptr : items.first();
}

QString PrinterPortListView::selectedURI() const
{
    // A selected group is an ordinary state, not a fault: no URI, no warning.
    QTreeWidgetItem *item = selectedItem();
    return item && item->parent() ? itemURI(item) : QString();
}

QTreeWidgetItem *PrinterPortListView::findItem(const QString &uri) const
{
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = topLevelItem(i);
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem *child = group->child(j);
            const QString text = child->text(0);
            if (uri.startsWith(text) || uri.endsWith(text))
                return child;
        }
    }
    return nullptr;
}

QString PrinterPortListView::displayText(const QString &uri) const
{
    QTreeWidgetItem *item = findItem(uri);
    if (!item)
        return QString();
    if (!QW_CHECK(item->parent(), "printerportlistview", 191))
        return QString();
    return isLocalGroup(item->parent()) ? item->text(0) : uri;
}

void PrinterPortListView::selectURI(const QString &uri)
{
    QTreeWidgetItem *li = findItem(uri);
    if (!li)
        return;
    li->setText(0, displayText(uri));
    if (!QW_CHECK(li->parent(), "printerportlistview", 293))
        return;
    QTreeWidgetItem *group = li->parent();
    // Show the group first: a hidden row cannot be scrolled to.
    if (isLocalGroup(group) && group->isHidden())
        setMfpMode(!m_mfpMode);
    group->setExpanded(true);
    setCurrentItem(li);
    scrollToItem(li);
}

void PrinterPortListView::selectURI(const CUPSPrinter &printer)
{
    selectURI(printer.DeviceURI());
}

bool PrinterPortListView::isSelectionEditable() const
{
    QTreeWidgetItem *item = selectedItem();
    if (!item)
        return false;
    if (item->type() == QTreeWidgetItem::Type)
        return true;
    auto *formatted = dynamic_cast<FormattedListItem *>(item);
    if (!softAssert(item->type() == FormattedListItem::RTTI && formatted,
                    "item->rtti() == FormattedListItem::RTTI", "printerportlistview", 329))
        return false;
    return formatted->isAcceptable(0);
}

void PrinterPortListView::startRenameSelectedItem()
{
    QTreeWidgetItem *item = selectedItem();
    if (!item) {
        qWarning("No item selected");
        return;
    }
    if (auto *renamable = dynamic_cast<ListViewItemEx *>(item))
        renamable->startRename(0);
}
