#include "ppdtestfiles.h"

#include "testpaths.h"

#include <QFile>

namespace PPDTestFiles {

QString samplePpd(const QString &name)
{
    return TestPaths::sourceDir() + QStringLiteral("/share/ppd/") + name;
}

QString fixturePpd(const QString &name)
{
    return TestPaths::sourceDir() + QStringLiteral("/tests/ppd/data/") + name;
}

PpdFilePtr open(const QString &path)
{
    PpdFilePtr ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}

bool mark(ppd_file_t *ppd, const char *option, const char *choice)
{
    if (!ppdFindChoice(ppdFindOption(ppd, option), choice))
        return false;
    ppdMarkOption(ppd, option, choice);
    return true;
}

} // namespace PPDTestFiles
