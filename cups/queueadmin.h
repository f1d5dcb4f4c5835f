#ifndef QUEUEWIZ_QUEUEADMIN_H
#define QUEUEWIZ_QUEUEADMIN_H

#include "cupsclass.h"
#include "cupsprinter.h"

#include <QMap>
#include <QString>

class CUPSManager;

// What CUPSManager changes on the scheduler: queues and classes made,
// changed, enabled, renamed and deleted, and the default printer. Each
// request goes through the manager, which keeps the status of its answer;
// each operation stops at the first request that failed.
class QueueAdmin
{
public:
    explicit QueueAdmin(CUPSManager &cups);

    bool setDefaultPrinter(const QString &printerUri);
    bool addPrinter(const CUPSPrinter &printer);
    bool attachDriverFile(const QString &printerName, const QString &ppdFile);
    bool addClass(const CUPSClass &cls);
    bool enablePrinter(const QString &name);
    bool disablePrinter(const QString &name);
    bool deletePrinter(const QString &name);
    bool deleteClass(const QString &name);
    bool renamePrinter(const QString &oldName, const QString &newName, const CUPSPrinter &newPrinter);

private:
    bool sendPlain(int operation, const QString &printerName);
    bool setPPDName(const QByteArray &uri, const QString &ppdName);
    // Re-sends every class of classes that lists printerName, with the name
    // replaced by newName, or dropped when newName is empty.
    bool updateClasses(QMap<QString, CUPSClass> &classes, const QString &printerName, const QString &newName);

    CUPSManager &m_cups;
};

#endif
