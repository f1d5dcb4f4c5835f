#ifndef QUEUEWIZ_TEMPFILE_H
#define QUEUEWIZ_TEMPFILE_H

#include <QString>

// Owns a temporary file by path (for instance the copy that cupsGetPPD
// fetches) and removes it when it goes out of scope.
class TempFile
{
public:
    // Takes over the file at path; a null path holds nothing.
    explicit TempFile(const char *path = nullptr);
    ~TempFile();
    TempFile(const TempFile &) = delete;
    TempFile &operator=(const TempFile &) = delete;
    TempFile(TempFile &&other) noexcept : m_path(other.release()) {}
    TempFile &operator=(TempFile &&) = delete;

    bool isNull() const { return m_path.isEmpty(); }
    QString path() const { return m_path; }
    // Gives the file up without removing it.
    QString release();

private:
    QString m_path;
};

#endif
