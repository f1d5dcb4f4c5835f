#ifndef QUEUEWIZ_FUZZ_OFFSCREENAPP_H
#define QUEUEWIZ_FUZZ_OFFSCREENAPP_H

#include <QApplication>

#include <cstdlib>

// Widgets need an application object: one for the whole run, offscreen,
// without the warnings that odd input makes by the thousand.
inline void ensureOffscreenApplication(const char *name)
{
    static int argc = 1;
    static char *argv[] = { const_cast<char *>(name), nullptr };
    static QApplication *app = [] {
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
        setenv("QT_LOGGING_RULES", "*.warning=false", 0);
        return new QApplication(argc, argv);
    }();
    (void)app;
}

#endif
