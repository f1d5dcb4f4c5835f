#ifndef QUEUEWIZ_PAPERSIZE_H
#define QUEUEWIZ_PAPERSIZE_H

// "Letter" or "A4", from the paper locale of the environment (LC_PAPER).
// Returns one of two static strings.
const char *defaultPaperSize();

#endif
