#ifndef QUEUEWIZ_UIPATHS_H
#define QUEUEWIZ_UIPATHS_H

#include <QString>

class CommandLineOptions;

// The four files and folders the user interface is built from.
struct UiPaths
{
    QString ui;
    QString res;
    QString uiTitle;
    QString resTitle;

    // Command-line values, else defaults under the share directory. The
    // title images default beside the res path's parent, not beside the
    // title form: with all defaults both image folders are the same.
    static UiPaths resolve(const CommandLineOptions &options, const QString &shareDir);
};

#endif
