#ifndef QUEUEWIZ_TESTPATHS_H
#define QUEUEWIZ_TESTPATHS_H

#include <QString>

// Where the tree and the build are; CTest passes both in the environment.
namespace TestPaths {
QString sourceDir();
QString binaryDir();
// A sample driver of the package (share/ppd/name); the folder for none.
QString samplePpd(const QString &name = QString());
}

#endif
