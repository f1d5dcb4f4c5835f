#ifndef QUEUEWIZ_PAPERSIZE_H
#define QUEUEWIZ_PAPERSIZE_H

// "Letter" or "A4", from the paper locale of the environment (LC_PAPER).
// Returns one of two static strings.
const char *defaultPaperSize();

// The rule behind it, for a locale name such as "fr_CA.UTF-8" and the
// paper width (mm) that locale declares.
const char *paperSizeForLocale(const char *localeName, int paperWidthMm);

#endif
