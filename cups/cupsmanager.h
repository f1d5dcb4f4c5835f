#ifndef QUEUEWIZ_CUPSMANAGER_H
#define QUEUEWIZ_CUPSMANAGER_H

#include <QString>

// The one object through which the program talks to the print system.
class CUPSManager
{
public:
    CUPSManager();
    virtual ~CUPSManager();

    int LastStatus = 0;
    int CupsVersion = -1;

    static CUPSManager m_CUPSManagerInstance;
    static QString m_DriversDir;

private:
    static int probeCupsVersion();
};

#endif
