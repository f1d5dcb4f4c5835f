#ifndef QUEUEWIZ_QUEUELISTING_H
#define QUEUEWIZ_QUEUELISTING_H

#include "cupsclass.h"
#include "cupsdriver.h"
#include "cupsprinter.h"
#include "tempfile.h"

#include <QMap>
#include <QString>

class CUPSManager;

// What CUPSManager reads from the scheduler: queues, classes, one queue,
// its PPD and the driver catalogue. Requests go through the manager, which
// keeps the status of their answers.
class QueueListing
{
public:
    explicit QueueListing(CUPSManager &cups);

    bool listPrinters(QMap<QString, CUPSPrinter> &printers, const QString &vendorFilter);
    bool listVendorPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask);
    bool listClasses(QMap<QString, CUPSClass> &classes);
    bool findPrinter(const QString &name, CUPSPrinter &printer);
    TempFile fetchPPD(const QString &queue);
    bool listDrivers(QMap<QString, CUPSDriver> &drivers);
    bool listDrivers(QMap<QString, CUPSDriver> &drivers, const QString &vendorFilter);
    void sendDriverRequest();

private:
    bool fetchPrinters(QMap<QString, CUPSPrinter> &printers, int type, int mask, const QString &filter);
    // Fills in what listing derives rather than reads.
    static void completeListed(CUPSPrinter &printer);

    CUPSManager &m_cups;
};

#endif
