#include "cupssandbox.h"
#include "ppddialog.h"
#include "testpaths.h"

#include <QDir>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

// A sample PPD with its defaults marked, then the marks "Option=Choice ...";
// null when a mark does not fit it.
PpdFilePtr openSample(const QString &name, const QByteArray &marks)
{
    PpdFilePtr ppd(ppdOpenFile(QFile::encodeName(TestPaths::samplePpd(name)).constData()));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    for (const QByteArray &mark : marks.split(' ')) {
        if (mark.isEmpty())
            continue;
        const QList<QByteArray> parts = mark.split('=');
        if (!ppd || !ppdFindChoice(ppdFindOption(ppd.get(), parts.at(0).constData()), parts.value(1).constData()))
            return nullptr;
        ppdMarkOption(ppd.get(), parts.at(0).constData(), parts.at(1).constData());
    }
    return ppd;
}

struct FileCloser
{
    void operator()(FILE *file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<FILE, FileCloser>;

// What rewriteDefaults() writes for input.
QByteArray rewritten(ppd_file_t *ppd, QByteArray input)
{
    char *buffer = nullptr;
    size_t size = 0;
    {
        FilePtr in(fmemopen(input.data(), size_t(input.size()), "r"));
        FilePtr out(open_memstream(&buffer, &size));
        if (ppd && in && out)
            PPDDialog::rewriteDefaults(ppd, in.get(), out.get());
    }
    const QByteArray output(buffer, qsizetype(size));
    std::free(buffer);
    return output;
}

} // namespace

// The drivers the package ships, and the rewriting of their defaults.
class TestPPDRewrite : public QObject
{
    Q_OBJECT

private slots:
    // The scheduler lists them all: tst_cupsmanager's driverCatalogue.
    void samplesAreValid_data()
    {
        QTest::addColumn<QString>("ppd");
        const QStringList files = QDir(TestPaths::samplePpd()).entryList({QStringLiteral("*.ppd")}, QDir::Files);
        QVERIFY(files.size() >= 5);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file;
    }

    // Valid, and their defaults free of conflicts.
    void samplesAreValid()
    {
        QFETCH(QString, ppd);
        QString output;
        QVERIFY2(CupsSandbox::run({"cupstestppd", "-W", "all", TestPaths::samplePpd(ppd)}, &output) == 0,
                 qPrintable(output));
        QCOMPARE(ppdConflicts(openSample(ppd, QByteArray()).get()), 0);
    }

    void sampleConstraints_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QByteArray>("marks");
        QTest::addColumn<bool>("conflict");
        QTest::newRow("no duplexer, duplex") << "acme-mfp4200.ppd" << QByteArray("Duplex=DuplexNoTumble") << true;
        QTest::newRow("duplexer installed")
            << "acme-mfp4200.ppd" << QByteArray("OptionDuplexer=True Duplex=DuplexNoTumble") << false;
        QTest::newRow("tray 2 missing") << "acme-mfp4200.ppd" << QByteArray("InputSlot=Tray2") << true;
        QTest::newRow("transparency duplex")
            << "acme-laser1610.ppd" << QByteArray("MediaType=Transparency Duplex=DuplexTumble") << true;
    }

    void sampleConstraints()
    {
        QFETCH(QString, ppd);
        QFETCH(QByteArray, marks);
        QFETCH(bool, conflict);
        const PpdFilePtr file = openSample(ppd, marks);
        QVERIFY(file);
        QCOMPARE(ppdConflicts(file.get()) > 0, conflict);
    }

    void rewrite_data()
    {
        QTest::addColumn<QByteArray>("mark"); // on top of the defaults
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("output");
        using B = QByteArray;

        // acme-laser1610.ppd defaults to PageSize Letter, Resolution 600dpi, Duplex None.
        QTest::newRow("Letter becomes A4") << B("PageSize=A4") << B("*DefaultPageSize: Letter\n")
                                           << B("*DefaultPageSize: A4\n");
        QTest::newRow("unchanged value in normal form") << B() << B("*DefaultResolution :  600dpi\n")
                                                        << B("*DefaultResolution: 600dpi\n");
        QTest::newRow("trailing remark is lost") << B("Duplex=DuplexTumble") << B("*DefaultDuplex: None *% off\n")
                                                 << B("*DefaultDuplex: DuplexTumble\n");
        QTest::newRow("no marked choice") << B() << B("*DefaultFont: Courier  \n") << B("*DefaultFont: Courier  \n");
        QTest::newRow("no colon") << B("PageSize=A4") << B("*DefaultPageSize Letter\n")
                                  << B("*DefaultPageSize Letter\n");
        QTest::newRow("last line without line feed is dropped")
            << B("PageSize=A4") << B("*DefaultPageSize: Letter\n*% End") << B("*DefaultPageSize: A4\n");
        QTest::newRow("CR LF and lone CR become LF") << B("PageSize=A4")
                                                     << B("*% a\r\n*DefaultPageSize: Letter\r\n\r\n*% b\r*% c\r")
                                                     << B("*% a\n*DefaultPageSize: A4\n\n*% b\n*% c\n");
        QTest::newRow("300 characters become 255 and 45")
            << B() << B(300, 'x') + '\n' << B(255, 'x') + '\n' + B(45, 'x') + '\n';
    }

    void rewrite()
    {
        QFETCH(QByteArray, mark);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, output);
        PpdFilePtr ppd = openSample(QStringLiteral("acme-laser1610.ppd"), mark);
        QVERIFY(ppd);
        QCOMPARE(rewritten(ppd.get(), input), output);
    }

    // Nothing but the changed defaults differs in a whole file.
    void wholeSample()
    {
        const QString name = QStringLiteral("acme-colorlaser2550.ppd");
        PpdFilePtr ppd = openSample(name, "PageSize=Letter TonerSave=True");
        QFile file(TestPaths::samplePpd(name));
        QVERIFY(ppd && file.open(QIODevice::ReadOnly));
        QByteArray expected = file.readAll();
        const QByteArray written = rewritten(ppd.get(), expected);
        expected.replace("*DefaultPageSize: A4\n", "*DefaultPageSize: Letter\n");
        expected.replace("*DefaultTonerSave: False\n", "*DefaultTonerSave: True\n");
        QCOMPARE(written, expected);
        // Marking PageSize unmarks PageRegion, so its line stays as it was.
        QVERIFY(written.contains("*DefaultPageRegion: A4\n"));
    }
};

QTEST_GUILESS_MAIN(TestPPDRewrite)
#include "tst_ppdrewrite.moc"
