#include "ppddialog.h"
#include "ppdtestfiles.h"

#include <QtTest>

#include <cstdio>
#include <memory>

namespace {

struct FileCloser
{
    void operator()(FILE *file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<FILE, FileCloser>;

QByteArray readAll(FILE *file)
{
    std::rewind(file);
    QByteArray data;
    char buffer[512];
    size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, file)) > 0)
        data.append(buffer, qsizetype(n));
    return data;
}

} // namespace

class TestPPDRewrite : public QObject
{
    Q_OBJECT

private slots:
    void rewrite_data()
    {
        QTest::addColumn<QStringList>("marks");  // option=choice, on top of the defaults
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QByteArray>("output");

        // The PPD is acme-laser1610.ppd: PageSize Letter, Resolution 600dpi,
        // Duplex None by default.
        QTest::newRow("Letter becomes A4") << QStringList{"PageSize=A4"} << QByteArray("*DefaultPageSize: Letter\n")
                                           << QByteArray("*DefaultPageSize: A4\n");
        QTest::newRow("normal form of an unchanged value")
            << QStringList{} << QByteArray("*DefaultResolution :  600dpi\n") << QByteArray("*DefaultResolution: 600dpi\n");
        QTest::newRow("blanks and tabs before the colon")
            << QStringList{"Resolution=1200dpi"} << QByteArray("*DefaultResolution \t :600dpi\n")
            << QByteArray("*DefaultResolution: 1200dpi\n");
        QTest::newRow("trailing remark is lost")
            << QStringList{"Duplex=DuplexTumble"} << QByteArray("*DefaultDuplex: None *% was off\n")
            << QByteArray("*DefaultDuplex: DuplexTumble\n");
        QTest::newRow("keyword without marked choice")
            << QStringList{} << QByteArray("*DefaultFont: Courier  \n*DefaultImageableArea: Letter\n")
            << QByteArray("*DefaultFont: Courier  \n*DefaultImageableArea: Letter\n");
        QTest::newRow("keyword without colon")
            << QStringList{"PageSize=A4"} << QByteArray("*DefaultPageSize Letter\n")
            << QByteArray("*DefaultPageSize Letter\n");
        QTest::newRow("colon beyond 40 characters")
            << QStringList{} << QByteArray("*DefaultPageSize                                  : Letter\n")
            << QByteArray("*DefaultPageSize                                  : Letter\n");
        QTest::newRow("last line without line feed is dropped")
            << QStringList{"PageSize=A4"} << QByteArray("*DefaultPageSize: Letter\n*% End")
            << QByteArray("*DefaultPageSize: A4\n");
        QTest::newRow("CR LF becomes LF")
            << QStringList{"PageSize=A4"} << QByteArray("*% a\r\n*DefaultPageSize: Letter\r\n\r\n*% b\r\n")
            << QByteArray("*% a\n*DefaultPageSize: A4\n\n*% b\n");
        QTest::newRow("lone CR ends a line")
            << QStringList{} << QByteArray("*% a\r*% b\r\r*% c\r") << QByteArray("*% a\n*% b\n\n*% c\n");
        QTest::newRow("300 characters become 255 and 45")
            << QStringList{} << QByteArray(300, 'x') + '\n'
            << QByteArray(255, 'x') + '\n' + QByteArray(45, 'x') + '\n';
        QTest::newRow("255 characters and the line feed as an empty line")
            << QStringList{} << QByteArray(255, 'y') + "\n*% z\n" << QByteArray(255, 'y') + "\n\n*% z\n";
        QTest::newRow("long default line is cut, the rest kept")
            << QStringList{"PageSize=A4"} << "*DefaultPageSize: Letter " + QByteArray(260, 'r') + '\n'
            << "*DefaultPageSize: A4\n" + QByteArray(260 - 230, 'r') + '\n';
    }

    void rewrite()
    {
        QFETCH(QStringList, marks);
        QFETCH(QByteArray, input);
        QFETCH(QByteArray, output);

        PpdFilePtr ppd = PPDTestFiles::open(PPDTestFiles::samplePpd(QStringLiteral("acme-laser1610.ppd")));
        QVERIFY(ppd);
        for (const QString &mark : marks) {
            const QByteArray option = mark.section(QLatin1Char('='), 0, 0).toLatin1();
            const QByteArray choice = mark.section(QLatin1Char('='), 1).toLatin1();
            QVERIFY2(PPDTestFiles::mark(ppd.get(), option.constData(), choice.constData()), qPrintable(mark));
        }

        FilePtr in(std::tmpfile());
        FilePtr out(std::tmpfile());
        QVERIFY(in && out);
        QCOMPARE(std::fwrite(input.constData(), 1, size_t(input.size()), in.get()), size_t(input.size()));
        std::rewind(in.get());
        PPDDialog::rewriteDefaults(ppd.get(), in.get(), out.get());
        QCOMPARE(readAll(out.get()), output);
    }

    // The whole sample comes out with its defaults in the normal form and
    // nothing else changed.
    void wholeSample()
    {
        const QString path = PPDTestFiles::samplePpd(QStringLiteral("acme-colorlaser2550.ppd"));
        PpdFilePtr ppd = PPDTestFiles::open(path);
        QVERIFY(ppd);
        QVERIFY(PPDTestFiles::mark(ppd.get(), "PageSize", "Letter"));
        QVERIFY(PPDTestFiles::mark(ppd.get(), "TonerSave", "True"));

        QFile source(path);
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QByteArray original = source.readAll();
        FilePtr in(std::fopen(QFile::encodeName(path).constData(), "r"));
        FilePtr out(std::tmpfile());
        PPDDialog::rewriteDefaults(ppd.get(), in.get(), out.get());
        const QByteArray written = readAll(out.get());

        QByteArray expected = original;
        expected.replace("*DefaultPageSize: A4\n", "*DefaultPageSize: Letter\n");
        expected.replace("*DefaultTonerSave: False\n", "*DefaultTonerSave: True\n");
        QCOMPARE(written, expected);

        // ppdMarkOption() of PageSize unmarks PageRegion, so its line stays.
        QVERIFY(written.contains("*DefaultPageRegion: A4\n"));
    }
};

QTEST_GUILESS_MAIN(TestPPDRewrite)
#include "tst_ppdrewrite.moc"
