#include "cupssandbox.h"
#include "ppdfileptr.h"
#include "testpaths.h"

#include <QDir>
#include <QtTest>

// The drivers the package ships.
class TestSamplePpds : public QObject
{
    Q_OBJECT

private slots:
    // The scheduler lists them all: tst_cupsmanager's driverCatalogue.
    void everySamplePpdIsValid_data()
    {
        QTest::addColumn<QString>("ppd");
        const QStringList files = QDir(TestPaths::samplePpd()).entryList({QStringLiteral("*.ppd")}, QDir::Files);
        QVERIFY(files.size() >= 5);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file;
    }

    void everySamplePpdIsValid()
    {
        QFETCH(QString, ppd);
        QString output;
        QVERIFY2(CupsSandbox::run({"cupstestppd", "-W", "all", TestPaths::samplePpd(ppd)}, &output) == 0, qPrintable(output));
    }

    // The default page sizes: tst_ppdtree's structure.
    void samplePpdDefaultsAndConstraints_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QStringList>("marks");  // option=choice, in order
        QTest::addColumn<bool>("conflict");
        QTest::newRow("no duplexer, duplex") << "acme-mfp4200.ppd" << QStringList{"Duplex=DuplexNoTumble"} << true;
        QTest::newRow("duplexer installed") << "acme-mfp4200.ppd"
                                            << QStringList{"OptionDuplexer=True", "Duplex=DuplexNoTumble"} << false;
        QTest::newRow("tray 2 missing") << "acme-mfp4200.ppd" << QStringList{"InputSlot=Tray2"} << true;
        QTest::newRow("transparency duplex") << "acme-laser1610.ppd"
                                             << QStringList{"MediaType=Transparency", "Duplex=DuplexTumble"} << true;
    }

    void samplePpdDefaultsAndConstraints()
    {
        QFETCH(QString, ppd);
        QFETCH(QStringList, marks);
        QFETCH(bool, conflict);
        const QByteArray path = QFile::encodeName(TestPaths::samplePpd(ppd));
        PpdFilePtr file(ppdOpenFile(path.constData()));
        QVERIFY(file);
        ppdMarkDefaults(file.get());
        QCOMPARE(ppdConflicts(file.get()), 0);
        for (const QString &mark : marks) {
            const QByteArray option = mark.section('=', 0, 0).toLatin1();
            const QByteArray choice = mark.section('=', 1).toLatin1();
            ppd_option_t *found = ppdFindOption(file.get(), option.constData());
            QVERIFY2(ppdFindChoice(found, choice.constData()), qPrintable(mark));
            ppdMarkOption(file.get(), option.constData(), choice.constData());
        }
        QCOMPARE(ppdConflicts(file.get()) > 0, conflict);
    }
};

QTEST_GUILESS_MAIN(TestSamplePpds)
#include "tst_sampleppds.moc"
