#include "cupsmanager.h"

#include <cstdio>

CUPSManager CUPSManager::m_CUPSManagerInstance;
QString CUPSManager::m_DriversDir = QStringLiteral("/usr/share/cups/model/");

CUPSManager::CUPSManager()
    : CupsVersion(probeCupsVersion())
{
}

CUPSManager::~CUPSManager() = default;

int CUPSManager::probeCupsVersion()
{
    FILE *pipe = popen("((which rpm >/dev/null && rpm -q cups) || (which dpkg >/dev/null && dpkg -p "
                       "cupsys-common | grep -i \"version:\")) | awk -F. '{ print $2 }'",
                       "r");
    if (!pipe)
        return -1;
    char text[16] = {};
    const size_t n = fread(text, 1, 15, pipe);
    const bool atEnd = feof(pipe);
    pclose(pipe);
    if (n == 0 || !atEnd)
        return -1;
    bool ok = false;
    const int v = QString::fromLatin1(text, static_cast<int>(n)).trimmed().toInt(&ok, 10);
    return ok ? v : -1;
}
