#ifndef QUEUEWIZ_PPDTESTFILES_H
#define QUEUEWIZ_PPDTESTFILES_H

#include "ppdfileptr.h"

#include <QString>

// The PPDs the tests open: the package's samples and the fixtures of
// tests/ppd/data.
namespace PPDTestFiles {

QString samplePpd(const QString &name);
QString fixturePpd(const QString &name);
// Opens a PPD file and marks its defaults, as the dialog does; null on failure.
PpdFilePtr open(const QString &path);
// Marks choice of option; false when the PPD has no such choice.
bool mark(ppd_file_t *ppd, const char *option, const char *choice);

} // namespace PPDTestFiles

#endif
