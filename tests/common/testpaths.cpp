#include "testpaths.h"

#include <QtGlobal>

namespace TestPaths {

QString sourceDir()
{
    return qEnvironmentVariable("QW_SOURCE_DIR", QStringLiteral(QW_DEFAULT_SOURCE_DIR));
}

QString binaryDir()
{
    return qEnvironmentVariable("QW_BINARY_DIR", QStringLiteral(QW_DEFAULT_BINARY_DIR));
}

QString samplePpd(const QString &name)
{
    return sourceDir() + QStringLiteral("/share/ppd/") + name;
}

} // namespace TestPaths
