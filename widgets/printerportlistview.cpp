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

// Group texts are compared when URIs are made, so they are not translated.
const QString ParallelGroup = QStringLiteral("Parallel");
const QString UsbGroup = QStringLiteral("USB");
const QString NetworkGroup = QStringLiteral("Network");
const QString FileGroup = QStringLiteral("File");
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

    // CUPS 1.2 and later take IPv6 addresses in device URIs.
    const bool ipv6 = CUPSManager::m_CUPSManagerInstance.CupsVersion > 1;
    auto addEditable = [this, ipv6](QTreeWidgetItem *group, int scheme) {
        auto *item = new FormattedListItem(group);
        item->setValidator(0, new UriValidator(scheme, ipv6, this));
        item->setRenameEnabled(0, true);
    };
    auto *network = new QTreeWidgetItem(this, {NetworkGroup});
    for (int scheme = UriValidator::IppScheme; scheme <= UriValidator::SmbScheme; ++scheme)
        addEditable(network, scheme);
    auto *file = new QTreeWidgetItem(this, {FileGroup});
    addEditable(file, UriValidator::FileScheme);

    expandAll();
    setMfpMode(false);
    connect(this, &QTreeWidget::itemDoubleClicked, this, &PrinterPortListView::startRenameSelectedItem);
}

void PrinterPortListView::addLocalGroup(const QString &name, const QString &tag, const QStringList &devices)
{
    auto *group = new QTreeWidgetItem(this, {name, tag});
    for (const QString &path : devices)
        new QTreeWidgetItem(group, {path});
}

bool PrinterPortListView::isLocalGroup(const QTreeWidgetItem *group)
{
    const QString text = group->text(0);
    return text == ParallelGroup || text == UsbGroup;
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
    const QString parent = item->parent()->text(0);
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
