#include "ppddialog.h"

#include "cupsmanager.h"
#include "cupsprinter.h"
#include "ipprequest.h"
#include "mimesourcefactory_ppdwidgets.h"
#include "softassert.h"
#include "tempfile.h"

#include <cups/cups.h>

#include <QFile>
#include <QMessageBox>
#include <QPushButton>

#include <cerrno>
#include <cstring>

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

PPDDialog::PPDDialog(const QString &printer, QWidget *parent, const char *name, bool modal, Qt::WindowFlags flags)
    : PPDDialogBase(parent, flags)
{
    if (name)
        setObjectName(QString::fromLatin1(name));
    setModal(modal);
    connect(ppdOptionView, &PPDOptionView::optionChanged, this, &PPDDialog::setOkButtonState);
    if (!load(printer)) {
        QMessageBox box(QMessageBox::Critical, tr("Error!"), tr("Can't open PPD file!"), QMessageBox::NoButton,
                        parent);
        box.addButton(tr("Ok"), QMessageBox::AcceptRole);
        box.exec();
    }
}

PPDDialog::~PPDDialog()
{
    release();
}

bool PPDDialog::runForPrinter(const QString &printer, QWidget *parent)
{
    MimeSourceFactory_ppdwidgets::registerFactory();
    PPDDialog dialog(printer, parent, "PPDDialog", true);
    // The error has been shown; an empty dialog would only be in the way.
    if (!dialog.isLoaded())
        return false;
    return dialog.exec() == QDialog::Accepted;
}

QString PPDDialog::ppdFileName() const
{
    return m_ppdCopy ? m_ppdCopy->path() : QString();
}

bool PPDDialog::installableOptionsEditable() const
{
    return ppdOptionView->installableOptionsEditable();
}

void PPDDialog::setInstallableOptionsEditable(bool editable)
{
    ppdOptionView->setInstallableOptionsEditable(editable);
}

void PPDDialog::refresh()
{
    ppdTreeView->reload();
    ppdOptionView->setOption(ppdTreeView->currentItem());
}

void PPDDialog::setOkButtonState()
{
    OkButton->setEnabled(!ppdTreeView->hasConflicts());
}

void PPDDialog::accept()
{
    if (save()) {
        QDialog::accept();
        return;
    }
    QMessageBox box(QMessageBox::Critical, tr("Error!"), tr("Can't save results to PPD file!"),
                    QMessageBox::NoButton, this);
    // The scheduler's reason, when a request was what failed.
    const CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;
    if (manager.lastStatusText() != IPPRequest::statusText(IPP_STATUS_OK))
        box.setInformativeText(manager.lastStatusText());
    box.addButton(tr("Ok"), QMessageBox::AcceptRole);
    box.exec();
}

bool PPDDialog::load(const QString &printer)
{
    release();

    const QByteArray name = printer.toUtf8();
    // Bounded like every request: a stalled scheduler must not freeze the window.
    auto copy = std::make_unique<TempFile>(CUPSManager::m_CUPSManagerInstance.fetchPPD(printer));
    if (copy->isNull()) {
        qWarning("cupsGetPPD failed");
        return false;
    }
    PpdFilePtr ppd(ppdOpenFile(QFile::encodeName(copy->path()).constData()));
    if (!ppd) {
        qWarning("ppdOpenFile failed");
        return false;
    }

    m_ppdCopy = std::move(copy);
    m_ppd = std::move(ppd);
    ppdMarkDefaults(m_ppd.get());
    ppdTreeView->setPPD(m_ppd.get());
    setWindowTitle(tr("'%1' Properties").arg(printer));
    m_printer = printer;
    return true;
}

void PPDDialog::release()
{
    // The tree and the editor point into the PPD: empty them first.
    ppdOptionView->setOption(nullptr);
    ppdTreeView->setPPD(nullptr);
    m_ppd.reset();
    m_ppdCopy.reset();
    m_printer.clear();
}

bool PPDDialog::save()
{
    if (!softAssert(!m_printer.isEmpty(), "!printer().isEmpty()", "PPDDialog", 352)) {
        qWarning("Printer is missed");
        return false;
    }
    if (!m_ppd) {
        qWarning("PPD is missed");
        return false;
    }
    const QByteArray name = m_printer.toUtf8();

    CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;
    CUPSPrinter printer;
    if (!manager.findPrinter(m_printer, printer)) {
        qWarning("Failed to find printer <%s>", name.constData());
        return false;
    }

    // The server's current file is the source, not the copy that is open.
    const TempFile source = manager.fetchPPD(m_printer);
    if (source.isNull()) {
        qWarning("Failed to get PPD for printer <%s>", name.constData());
        return false;
    }
    const TempFile output = rewrittenCopy(m_ppd.get(), source.path());
    if (output.isNull())
        return false;

    if (!manager.attachDriverFile(printer.Name(), output.path())) {
        qWarning("Failed to attach PPD file to printer <%s> (%s)", name.constData(),
                 qPrintable(manager.lastStatusText()));
        return false;
    }
    return true;
}

TempFile PPDDialog::rewrittenCopy(ppd_file_t *ppd, const QString &source)
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

    rewriteDefaults(ppd, in.get(), out.get());
    // A short file must not replace the driver: check what the writes left.
    const bool written = !std::ferror(out.get()) && std::fclose(out.release()) == 0;
    if (!written) {
        qWarning("Failed to write PPD file <%s> (%s)", outputPath, std::strerror(errno));
        return TempFile();
    }
    return output;
}

void PPDDialog::rewriteDefaults(ppd_file_t *ppd, FILE *in, FILE *out)
{
    char line[kLineSize];
    while (readLine(in, line, kLineSize)) {
        if (std::strncmp(line, kDefault, kDefaultLength) == 0)
            rewriteDefaultLine(ppd, line);
        std::fputs(line, out);
        std::fputc('\n', out);
    }
}
