#ifndef QUEUEWIZ_PPDREWRITER_H
#define QUEUEWIZ_PPDREWRITER_H

#include "tempfile.h"

#include <cups/ppd.h>

#include <QString>

#include <cstdio>

// Writes the "*Default" lines of a PPD file from the marked choices of an
// open PPD: the options dialog stores the user's choices this way, and the
// new queue gets the paper size of the user's country.
class PPDRewriter
{
public:
    // ppd: the open PPD whose marks are written; not owned.
    explicit PPDRewriter(ppd_file_t *ppd);

    // Copies in to out line by line, with every "*Default" line of an option
    // that has a marked choice rewritten as "*DefaultKEY: CHOICE".
    void rewriteDefaults(FILE *in, FILE *out) const;
    // A temporary copy of the PPD file source with the default lines of the
    // marked choices; a null file (after a warning) on failure.
    TempFile rewrittenCopy(const QString &source) const;
    // A temporary copy of source with paper as the default of PageSize and
    // PageRegion, the other defaults as marked; leaves paper marked as the
    // PageRegion. A null file when the PPD has no such paper or the copy
    // failed.
    TempFile paperSizeCopy(const QString &source, const char *paper) const;

private:
    ppd_file_t *m_ppd;
};

#endif
