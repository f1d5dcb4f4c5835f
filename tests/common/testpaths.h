#ifndef QUEUEWIZ_TESTPATHS_H
#define QUEUEWIZ_TESTPATHS_H

#include <QString>

// Where the tree and the build are; CTest passes both in the environment.
namespace TestPaths {
QString sourceDir();
QString binaryDir();
}

#endif
