#ifndef QUEUEWIZ_PRINTERPORTLISTVIEW_H
#define QUEUEWIZ_PRINTERPORTLISTVIEW_H

#include "listviewex.h"

class CUPSPrinter;

// Display names of the network port kinds; entry i belongs to the
// UriValidator scheme id i + 1. Marked for translation in the
// "PrinterPortListView" context.
extern const char *const _networkPort[4];

// The tree of ports a new queue can use: local parallel and USB device nodes
// (the maker's "/dev/mfpN" nodes or the kernel's, see mfpMode), four kinds of
// network connection and a file. Network and file entries hold a whole device
// URI and are edited in place under a UriValidator.
class PrinterPortListView : public ListViewEx
{
    Q_OBJECT
    Q_PROPERTY(bool mfpMode READ mfpMode WRITE setMfpMode)

public:
    explicit PrinterPortListView(QWidget *parent = nullptr, const char *name = nullptr);

    // true: the maker's device nodes are listed; false: the kernel's.
    bool mfpMode() const { return m_mfpMode; }
    void setMfpMode(bool mfpMode);

    // The device URI an entry stands for ("mfp:/dev/mfp5",
    // "usb:/dev/usb/lp1", "ipp://host", ...); empty for null or a group.
    QString itemURI(QTreeWidgetItem *item) const;
    // The URI of the selected entry; empty when none or a group is selected.
    QString selectedURI() const;
    QTreeWidgetItem *selectedItem() const;

    // The first entry whose text begins or ends the URI, hidden groups
    // included; null when none.
    QTreeWidgetItem *findItem(const QString &uri) const;
    // What the entry for the URI shows: the device path for a local device,
    // the URI itself for a network or file entry; empty when no entry fits.
    QString displayText(const QString &uri) const;
    // Selects the entry for the URI, showing the group of local devices it
    // belongs to; an unknown URI changes nothing.
    void selectURI(const QString &uri);
    // The same for the device URI of a queue record.
    void selectURI(const CUPSPrinter &printer);

    // Whether the selected entry, with the text being typed if it is renamed
    // right now, can be used as it stands. False with nothing selected.
    bool isSelectionEditable() const;

public slots:
    void startRenameSelectedItem();

private:
    // A top-level entry that shows name in the user's language.
    QTreeWidgetItem *addGroup(const QString &name, const QString &tag);
    void addLocalGroup(const QString &name, const QString &tag, const QStringList &devices);
    // The English name of a group, whatever language it shows.
    static QString groupName(const QTreeWidgetItem *group);
    static bool isLocalGroup(const QTreeWidgetItem *group);

    bool m_mfpMode = false;
};

#endif
