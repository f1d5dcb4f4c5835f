#include "tempfile.h"

#include <QFile>

#include <cstdio>

TempFile::TempFile(const char *path)
    : m_path(path ? QFile::decodeName(path) : QString())
{
}

TempFile::~TempFile()
{
    if (!m_path.isEmpty())
        ::remove(QFile::encodeName(m_path).constData());
}

QString TempFile::release()
{
    QString path = m_path;
    m_path.clear();
    return path;
}
