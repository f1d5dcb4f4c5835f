#include "ppdrewriter.h"

#include <cups/cups.h>

#include <QFile>

#include <cerrno>
#include <cstring>
#include <memory>

#include <unistd.h>

namespace {

constexpr int kLineSize = 256;
constexpr int kKeywordSize = 41;
const char kDefault[] = "*Default";
constexpr size_t kDefaultLength = sizeof(kDefault) - 1;

struct FileCloser
{
    void operator()(FILE *file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<FILE, FileCloser>;

// Reads one line of at most size - 1 characters into line. CR, LF and CR LF
// end a line and are not stored; a full buffer ends it too, and the rest
// comes as the next line. False at the end of the file: the characters read
// since the last line end are dropped with it.
bool readLine(FILE *in, char *line, int size)
{
    int length = 0;
    while (length < size - 1) {
        const int c = std::getc(in);
        if (c == EOF)
            return false;
        if (c == '\n')
            break;
        if (c == '\r') {
            const int next = std::getc(in);
            if (next != '\n' && next != EOF)
                std::ungetc(next, in);
            break;
        }
        line[length++] = static_cast<char>(c);
    }
    line[length] = '\0';
    return true;
}

// "*DefaultKEY: VALUE" with the marked choice of KEY, when it has one.
void rewriteDefaultLine(ppd_file_t *ppd, char *line)
{
    char keyword[kKeywordSize];
    std::strncpy(keyword, line + kDefaultLength, kKeywordSize - 1);
    keyword[kKeywordSize - 1] = '\0';
    char *colon = std::strchr(keyword, ':');
    if (!colon)
        return;
    *colon = '\0';
    for (char *end = colon; end > keyword && (end[-1] == ' ' || end[-1] == '\t'); --end)
        end[-1] = '\0';
    // The old value is not compared: the line is written in the normal form
    // even when the choice stays the same.
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, keyword);
    if (marked && marked->choice[0] != '\0')
        std::snprintf(line, kLineSize, "%s%s: %s", kDefault, keyword, marked->choice);
}

} // namespace

PPDRewriter::PPDRewriter(ppd_file_t *ppd)
    : m_ppd(ppd)
{
}

void PPDRewriter::rewriteDefaults(FILE *in, FILE *out) const
{
    char line[kLineSize];
    while (readLine(in, line, kLineSize)) {
        if (std::strncmp(line, kDefault, kDefaultLength) == 0)
            rewriteDefaultLine(m_ppd, line);
        std::fputs(line, out);
        std::fputc('\n', out);
    }
}

TempFile PPDRewriter::rewrittenCopy(const QString &source) const
{
    const QByteArray sourcePath = QFile::encodeName(source);
    FilePtr in(std::fopen(sourcePath.constData(), "r"));
    if (!in) {
        qWarning("Failed to open PPD file <%s> (%s)", sourcePath.constData(), std::strerror(errno));
        return TempFile();
    }
    char outputPath[1024];
    const int fd = cupsTempFd(outputPath, sizeof outputPath);
    if (fd < 0) {
        qWarning("Failed to create temporary file (%s)", std::strerror(errno));
        return TempFile();
    }
    TempFile output(outputPath);
    FilePtr out(fdopen(fd, "w"));
    if (!out) {
        qWarning("Failed to open file by descriptor %d (%s)", fd, std::strerror(errno));
        ::close(fd);
        return TempFile();
    }

    rewriteDefaults(in.get(), out.get());
    // A short file must not replace the driver: check what the writes left.
    const bool written = !std::ferror(out.get()) && std::fclose(out.release()) == 0;
    if (!written) {
        qWarning("Failed to write PPD file <%s> (%s)", outputPath, std::strerror(errno));
        return TempFile();
    }
    return output;
}

TempFile PPDRewriter::paperSizeCopy(const QString &source, const char *paper) const
{
    if (!ppdFindChoice(ppdFindOption(m_ppd, "PageSize"), paper))
        return TempFile();
    // Marking either of the two unmarks the other: a pass for each.
    ppdMarkOption(m_ppd, "PageSize", paper);
    const TempFile sized = rewrittenCopy(source);
    if (sized.isNull())
        return TempFile();
    ppdMarkOption(m_ppd, "PageRegion", paper);
    return rewrittenCopy(sized.path());
}
