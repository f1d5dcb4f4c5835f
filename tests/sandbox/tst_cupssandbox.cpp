#include "cupssandbox.h"
#include "testpaths.h"
#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cups/ppd.h>

#include <memory>

// libcups marks its PPD interface deprecated; it is still the one that reads
// the sample drivers the way the program does.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace {

// Live processes other than this one whose command line or environment
// mention text.
QStringList processesMentioning(const QString &text)
{
    QStringList found;
    const QString self = QString::number(QCoreApplication::applicationPid());
    for (const QString &pid : QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs)) {
        QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
        if (pid == self || !stat.open(QIODevice::ReadOnly) || stat.readAll().contains(") Z "))
            continue;
        for (const char *part : {"cmdline", "environ"}) {
            QFile file(QStringLiteral("/proc/%1/%2").arg(pid, QLatin1String(part)));
            if (file.open(QIODevice::ReadOnly) && file.readAll().contains(text.toLocal8Bit())) {
                found << pid;
                break;
            }
        }
    }
    return found;
}

} // namespace

class TestCupsSandbox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QW_USE_SHARED_SCHEDULER(); }

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
        std::unique_ptr<ppd_file_t, decltype(&ppdClose)> file(ppdOpenFile(path.constData()), &ppdClose);
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

    void privateSchedulersStopIndependentlyAndCompletely()
    {
        QStringList directories;
        {
            CupsSandbox first;
            CupsSandbox second;
            directories << first.directory() << second.directory();
            QString error;
            QVERIFY2(first.start(&error), qPrintable(error));
            QVERIFY2(second.start(&error), qPrintable(error));
            QVERIFY(first.port() != second.port());
            second.use();
            QString output;
            QVERIFY2(CupsSandbox::run({"lpstat", "-r"}, &output) == 0, qPrintable(output));

            QVERIFY(first.stop());
            QVERIFY(!first.isRunning() && second.isRunning());
            QCOMPARE(processesMentioning(first.directory()), QStringList());
            QVERIFY(!processesMentioning(second.directory()).isEmpty());
            QVERIFY(first.stop());
        }
        for (const QString &dir : std::as_const(directories)) {
            QCOMPARE(processesMentioning(dir), QStringList());
            QVERIFY(!QFileInfo::exists(dir));
        }
        QVERIFY(CupsSandbox::useShared());
    }

    // A test that crashes leaves no scheduler behind.
    void ownedSchedulerEndsWithItsOwner()
    {
        QProcess owner;
        owner.start(QStringLiteral("sleep"), {QStringLiteral("120")});
        QVERIFY(owner.waitForStarted());
        QTemporaryDir parent;
        const QString dir = parent.filePath(QStringLiteral("owned"));
        QString output;
        QVERIFY2(CupsSandbox::run({"bash", CupsSandbox::scriptPath(), "start", dir, "--owner",
                                   QString::number(owner.processId())}, &output) == 0,
                 qPrintable(output));
        QVERIFY(!processesMentioning(dir).isEmpty());
        owner.kill();
        owner.waitForFinished();
        QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(dir), 20000);
        QCOMPARE(processesMentioning(dir), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestCupsSandbox)
#include "tst_cupssandbox.moc"
