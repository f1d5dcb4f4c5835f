#include "softassert.h"

#include <QtGlobal>

bool softAssert(bool ok, const char *expression, const char *module, int line)
{
    if (!ok)
        qWarning("ASSERT: \"%s\" in %s (%d)", expression, module, line);
    return ok;
}
