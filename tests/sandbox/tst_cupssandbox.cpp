#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <memory>

// libcups marks its PPD interface deprecated; it is still the one that reads
// the sample drivers the way the program does.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

class TestCupsSandbox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void catalogueRecords_data();
    void catalogueRecords();
    void everySamplePpdIsValidAndListed_data();
    void everySamplePpdIsValidAndListed();
    void samplePpdDefaultsAndConstraints_data();
    void samplePpdDefaultsAndConstraints();
    void jobReachesSocketPrinter_data();
    void jobReachesSocketPrinter();
    void privateSchedulersStopIndependentlyAndCompletely();
    void ownedSchedulerEndsWithItsOwner();
    void useSharedExplainsMissingScheduler();
};

namespace {

using IppPtr = std::unique_ptr<ipp_t, decltype(&ippDelete)>;
using PpdPtr = std::unique_ptr<ppd_file_t, decltype(&ppdClose)>;

QString samplePpdDir()
{
    return TestPaths::sourceDir() + QStringLiteral("/share/ppd");
}

void addSamplePpdRows()
{
    QTest::addColumn<QString>("ppd");
    const QStringList files = QDir(samplePpdDir()).entryList({QStringLiteral("*.ppd")}, QDir::Files);
    QVERIFY(files.size() >= 5);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

struct CatalogueEntry
{
    QString make;
    QString makeAndModel;
    QString language;
};

QHash<QString, CatalogueEntry> catalogue()
{
    QHash<QString, CatalogueEntry> entries;
    IppPtr response(cupsDoRequest(CUPS_HTTP_DEFAULT, ippNewRequest(CUPS_GET_PPDS), "/"), &ippDelete);
    if (!response)
        return entries;
    QString name;
    CatalogueEntry entry;
    auto flush = [&] {
        if (!name.isEmpty())
            entries.insert(name, entry);
        name.clear();
        entry = CatalogueEntry();
    };
    for (ipp_attribute_t *attr = ippFirstAttribute(response.get()); attr; attr = ippNextAttribute(response.get())) {
        const char *attrName = ippGetName(attr);
        if (!attrName) {
            flush();
            continue;
        }
        const QString value = QString::fromUtf8(ippGetString(attr, 0, nullptr));
        if (qstrcmp(attrName, "ppd-name") == 0)
            name = value;
        else if (qstrcmp(attrName, "ppd-make") == 0)
            entry.make = value;
        else if (qstrcmp(attrName, "ppd-make-and-model") == 0)
            entry.makeAndModel = value;
        else if (qstrcmp(attrName, "ppd-natural-language") == 0)
            entry.language = value;
    }
    flush();
    return entries;
}

// A one-page PDF with a correct cross-reference table.
QByteArray makePdf(const QByteArray &text)
{
    const QByteArray content = "BT /F1 24 Tf 72 700 Td (" + text + ") Tj ET";
    const QList<QByteArray> objects{
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R "
        "/Resources << /Font << /F1 5 0 R >> >> >>",
        "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content + "\nendstream",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    };
    QByteArray pdf = "%PDF-1.4\n";
    QList<qsizetype> offsets;
    for (int i = 0; i < objects.size(); ++i) {
        offsets << pdf.size();
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const qsizetype xref = pdf.size();
    pdf += "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (qsizetype offset : offsets)
        pdf += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    pdf += "trailer\n<< /Size " + QByteArray::number(objects.size() + 1) + " /Root 1 0 R >>\nstartxref\n"
        + QByteArray::number(xref) + "\n%%EOF\n";
    return pdf;
}

// Live processes (other than this one) whose command line or environment
// mention text.
QStringList processesMentioning(const QString &text)
{
    QStringList found;
    const QByteArray needle = text.toLocal8Bit();
    const QString self = QString::number(QCoreApplication::applicationPid());
    const QStringList pids = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &pid : pids) {
        bool numeric = false;
        pid.toInt(&numeric);
        if (!numeric || pid == self)
            continue;
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        if (!stat.open(QIODevice::ReadOnly) || stat.readAll().contains(") Z "))
            continue;
        for (const char *part : {"cmdline", "environ"}) {
            QFile file(QStringLiteral("/proc/%1/%2").arg(pid, QLatin1String(part)));
            if (file.open(QIODevice::ReadOnly) && file.readAll().contains(needle)) {
                found << pid;
                break;
            }
        }
    }
    return found;
}

} // namespace

void TestCupsSandbox::initTestCase()
{
    QString error;
    QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
}

void TestCupsSandbox::catalogueRecords_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QString>("make");
    QTest::addColumn<QString>("makeAndModel");
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << "acme-laser1610.ppd" << "Acme" << "Acme Laser 1610 Series" << "en";
    QTest::newRow("same model in German") << "acme-laser1610-de.ppd" << "Acme" << "Acme Laser 1610 Series" << "de";
    QTest::newRow("colour") << "acme-colorlaser2550.ppd" << "Acme" << "Acme ColorLaser 2550" << "en";
    QTest::newRow("MFP") << "acme-mfp4200.ppd" << "Acme" << "Acme MFP 4200 Series" << "en";
    QTest::newRow("other vendor") << "globex-pagewriter40.ppd" << "Globex" << "Globex PageWriter 40" << "en";
}

void TestCupsSandbox::catalogueRecords()
{
    QFETCH(QString, ppd);
    QFETCH(QString, make);
    QFETCH(QString, makeAndModel);
    QFETCH(QString, language);
    const QHash<QString, CatalogueEntry> entries = catalogue();
    QVERIFY2(entries.contains(ppd), cupsLastErrorString());
    const CatalogueEntry entry = entries.value(ppd);
    QCOMPARE(entry.make, make);
    QCOMPARE(entry.makeAndModel, makeAndModel);
    QCOMPARE(entry.language, language);
}

void TestCupsSandbox::everySamplePpdIsValidAndListed_data()
{
    addSamplePpdRows();
}

void TestCupsSandbox::everySamplePpdIsValidAndListed()
{
    QFETCH(QString, ppd);
    QString output;
    const int status = CupsSandbox::run(
        {QStringLiteral("cupstestppd"), QStringLiteral("-W"), QStringLiteral("all"), samplePpdDir() + QLatin1Char('/') + ppd},
        &output);
    QVERIFY2(status == 0, qPrintable(output));

    QCOMPARE(CupsSandbox::run({QStringLiteral("lpinfo"), QStringLiteral("-m")}, &output), 0);
    const QRegularExpression line(QStringLiteral("^%1 \\S").arg(QRegularExpression::escape(ppd)),
                                  QRegularExpression::MultilineOption);
    QVERIFY2(line.match(output).hasMatch(), qPrintable(output));
}

void TestCupsSandbox::samplePpdDefaultsAndConstraints_data()
{
    QTest::addColumn<QString>("ppd");
    QTest::addColumn<QString>("pageSize");
    QTest::addColumn<QStringList>("marks");  // option=choice, in order
    QTest::addColumn<bool>("conflict");
    QTest::newRow("Letter, no duplexer, duplex")
        << "acme-mfp4200.ppd" << "Letter" << QStringList{"Duplex=DuplexNoTumble"} << true;
    QTest::newRow("duplexer installed")
        << "acme-mfp4200.ppd" << "Letter" << QStringList{"OptionDuplexer=True", "Duplex=DuplexNoTumble"} << false;
    QTest::newRow("tray 2 missing")
        << "acme-mfp4200.ppd" << "Letter" << QStringList{"InputSlot=Tray2"} << true;
    QTest::newRow("tray 2 installed")
        << "acme-mfp4200.ppd" << "Letter" << QStringList{"OptionTray2=True", "InputSlot=Tray2"} << false;
    QTest::newRow("German A4") << "acme-laser1610-de.ppd" << "A4" << QStringList{"TonerSave=True"} << false;
    QTest::newRow("transparency duplex")
        << "acme-laser1610.ppd" << "Letter" << QStringList{"MediaType=Transparency", "Duplex=DuplexTumble"} << true;
    QTest::newRow("colour A4") << "acme-colorlaser2550.ppd" << "A4" << QStringList{"ColorModel=Gray"} << false;
}

void TestCupsSandbox::samplePpdDefaultsAndConstraints()
{
    QFETCH(QString, ppd);
    QFETCH(QString, pageSize);
    QFETCH(QStringList, marks);
    QFETCH(bool, conflict);
    const QByteArray path = QFile::encodeName(samplePpdDir() + QLatin1Char('/') + ppd);
    PpdPtr file(ppdOpenFile(path.constData()), &ppdClose);
    QVERIFY(file);
    ppdMarkDefaults(file.get());
    QCOMPARE(ppdConflicts(file.get()), 0);
    ppd_choice_t *size = ppdFindMarkedChoice(file.get(), "PageSize");
    QVERIFY(size);
    QCOMPARE(QString::fromLatin1(size->choice), pageSize);
    for (const QString &mark : marks) {
        const QByteArray option = mark.section(QLatin1Char('='), 0, 0).toLatin1();
        const QByteArray choice = mark.section(QLatin1Char('='), 1).toLatin1();
        QVERIFY2(ppdFindChoice(ppdFindOption(file.get(), option.constData()), choice.constData()), qPrintable(mark));
        ppdMarkOption(file.get(), option.constData(), choice.constData());
    }
    QCOMPARE(ppdConflicts(file.get()) > 0, conflict);
}

void TestCupsSandbox::jobReachesSocketPrinter_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("passedThrough");  // document text the printer must receive as is
    QTest::newRow("PostScript") << QByteArray("%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
                                              "/Helvetica findfont 24 scalefont setfont 72 700 moveto "
                                              "(qw-marker) show showpage\n%%EOF\n")
                                << QByteArray("(qw-marker) show");
    // These two are rendered anew, so only the driver's setup code is known.
    QTest::newRow("PDF") << makePdf("qw-marker") << QByteArray();
    QTest::newRow("text") << QByteArray("qw-marker\nsecond line\n") << QByteArray();
}

void TestCupsSandbox::jobReachesSocketPrinter()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, passedThrough);
    LoopbackPrinter printer;
    const QString queue = QStringLiteral("sandbox_job_%1_%2")
                              .arg(QCoreApplication::applicationPid())
                              .arg(QString::fromLatin1(QTest::currentDataTag()).toLower().remove(QLatin1Char(' ')));
    QString output;
    QVERIFY2(CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-p"), queue, QStringLiteral("-E"),
                               QStringLiteral("-v"), printer.deviceUri(), QStringLiteral("-m"),
                               QStringLiteral("acme-laser1610.ppd")},
                              &output) == 0,
             qPrintable(output));

    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("document")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(document);
    file.close();
    const int status = CupsSandbox::run({QStringLiteral("lp"), QStringLiteral("-d"), queue, QStringLiteral("-o"),
                                         QStringLiteral("TonerSave=True"), file.fileName()},
                                        &output);
    QVERIFY2(status == 0, qPrintable(output));

    const QByteArray data = printer.waitForJob(120000);
    CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-x"), queue});
    QVERIFY2(!data.isEmpty(), "no job arrived at the socket printer");
    QVERIFY2(data.startsWith("%!PS"), data.left(80).constData());
    QVERIFY2(data.contains(passedThrough), data.left(400).constData());
    // The option given to lp, as the PPD's code for it.
    QVERIFY(data.contains("AcmeTonerSave true"));
}

void TestCupsSandbox::privateSchedulersStopIndependentlyAndCompletely()
{
    QTemporaryDir work;
    const QString recorder = work.filePath(QStringLiteral("recorder"));
    {
        QFile script(recorder);
        QVERIFY(script.open(QIODevice::WriteOnly));
        // Lists one device when asked, otherwise stores a variable of the
        // scheduler's environment and the job where the device URI says;
        // only a backend run as root can write here.
        script.write("#!/bin/sh\n"
                     "if [ $# -eq 0 ]; then echo \"direct ${0##*/} \\\"Acme\\\" \\\"Recorder\\\"\"; exit 0; fi\n"
                     "out=${DEVICE_URI#*:}\n"
                     "{ echo \"$QW_SANDBOX_MARK\"; if [ -n \"$6\" ]; then cat \"$6\"; else cat; fi; } > \"$out.tmp\"\n"
                     "mv \"$out.tmp\" \"$out\"\n");
    }

    const QString document = work.filePath(QStringLiteral("document.ps"));
    {
        QFile file(document);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("%!PS-Adobe-3.0\nshowpage\n");
    }

    QStringList directories;
    {
        CupsSandbox first;
        CupsSandbox second;
        directories << first.directory() << second.directory();
        QVERIFY(second.addBackend(QStringLiteral("qwbefore"), recorder));
        second.setEnv(QStringLiteral("QW_SANDBOX_MARK"), QStringLiteral("marked for tests"));
        QString error;
        QVERIFY2(first.start(&error), qPrintable(error));
        QVERIFY2(second.start(&error), qPrintable(error));
        QVERIFY(first.port() != second.port());
        QVERIFY(second.addBackend(QStringLiteral("qwafter"), recorder));

        second.use();
        QString output;
        QCOMPARE(CupsSandbox::run({QStringLiteral("lpinfo"), QStringLiteral("--include-schemes"),
                                   QStringLiteral("qwbefore,qwafter"), QStringLiteral("-v")},
                                  &output),
                 0);
        QVERIFY2(output.contains(QStringLiteral("direct qwbefore")) && output.contains(QStringLiteral("direct qwafter")),
                 qPrintable(output));

        for (const QString &scheme : {QStringLiteral("qwbefore"), QStringLiteral("qwafter")}) {
            const QString target = work.filePath(scheme + QStringLiteral(".out"));
            QVERIFY2(CupsSandbox::run({QStringLiteral("lpadmin"), QStringLiteral("-p"), scheme, QStringLiteral("-E"),
                                       QStringLiteral("-v"), scheme + QLatin1Char(':') + target,
                                       QStringLiteral("-m"), QStringLiteral("acme-mfp4200.ppd")},
                                      &output) == 0,
                     qPrintable(output));
            QVERIFY2(CupsSandbox::run({QStringLiteral("lp"), QStringLiteral("-d"), scheme, document}, &output) == 0,
                     qPrintable(output));
            QTRY_VERIFY2_WITH_TIMEOUT(QFile::exists(target), qPrintable(second.errorLog()), 120000);
            QFile job(target);
            QVERIFY(job.open(QIODevice::ReadOnly));
            QCOMPARE(job.readLine(), QByteArray("marked for tests\n"));
            QVERIFY(job.readAll().contains("%!PS"));
        }

        QVERIFY(first.stop());
        QVERIFY(!first.isRunning());
        QVERIFY(second.isRunning());
        QVERIFY(processesMentioning(first.directory()).isEmpty());
        QVERIFY(!processesMentioning(second.directory()).isEmpty());
        QVERIFY(first.stop());
    }
    for (const QString &dir : std::as_const(directories)) {
        QCOMPARE(processesMentioning(dir), QStringList());
        QVERIFY(!QFileInfo::exists(dir));
    }
    QString error;
    QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
}

void TestCupsSandbox::ownedSchedulerEndsWithItsOwner()
{
    QProcess owner;
    owner.start(QStringLiteral("sleep"), {QStringLiteral("120")});
    QVERIFY(owner.waitForStarted());
    QTemporaryDir parent;
    const QString dir = parent.filePath(QStringLiteral("owned"));
    QString output;
    QVERIFY2(CupsSandbox::run({QStringLiteral("bash"), CupsSandbox::scriptPath(), QStringLiteral("start"), dir,
                               QStringLiteral("--owner"), QString::number(owner.processId())},
                              &output) == 0,
             qPrintable(output));
    QVERIFY(!processesMentioning(dir).isEmpty());

    owner.kill();
    owner.waitForFinished();
    QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(dir), 20000);
    QCOMPARE(processesMentioning(dir), QStringList());
}

void TestCupsSandbox::useSharedExplainsMissingScheduler()
{
    const QByteArray saved = qgetenv("QW_BINARY_DIR");
    QTemporaryDir empty;
    qputenv("QW_BINARY_DIR", QFile::encodeName(empty.path()));
    QString error;
    const bool used = CupsSandbox::useShared(&error);
    qputenv("QW_BINARY_DIR", saved);
    QVERIFY(!used);
    QVERIFY2(error.contains(QStringLiteral("not running")) && error.contains(empty.path()), qPrintable(error));
    QVERIFY(CupsSandbox::useShared());
}

QTEST_GUILESS_MAIN(TestCupsSandbox)
#include "tst_cupssandbox.moc"
