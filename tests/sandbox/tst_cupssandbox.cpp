#include "cupssandbox.h"
#include "loopbackprinter.h"
#include "testpaths.h"

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

QString samplePpd(const QString &name)
{
    return TestPaths::sourceDir() + QStringLiteral("/share/ppd/") + name;
}

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
    void initTestCase()
    {
        QString error;
        QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
    }

    void everySamplePpdIsValidAndListed_data()
    {
        QTest::addColumn<QString>("ppd");
        const QStringList files = QDir(samplePpd({})).entryList({QStringLiteral("*.ppd")}, QDir::Files);
        QVERIFY(files.size() >= 5);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << file;
    }

    void everySamplePpdIsValidAndListed()
    {
        QFETCH(QString, ppd);
        QString output;
        QVERIFY2(CupsSandbox::run({"cupstestppd", "-W", "all", samplePpd(ppd)}, &output) == 0, qPrintable(output));
        QCOMPARE(CupsSandbox::run({"lpinfo", "-m"}, &output), 0);
        const QRegularExpression line(QStringLiteral("^%1 \\S").arg(QRegularExpression::escape(ppd)),
                                      QRegularExpression::MultilineOption);
        QVERIFY2(line.match(output).hasMatch(), qPrintable(output));
    }

    void samplePpdDefaultsAndConstraints_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<QString>("pageSize");
        QTest::addColumn<QStringList>("marks");  // option=choice, in order
        QTest::addColumn<bool>("conflict");
        QTest::newRow("Letter, no duplexer, duplex") << "acme-mfp4200.ppd" << "Letter"
                                                     << QStringList{"Duplex=DuplexNoTumble"} << true;
        QTest::newRow("duplexer installed") << "acme-mfp4200.ppd" << "Letter"
                                            << QStringList{"OptionDuplexer=True", "Duplex=DuplexNoTumble"} << false;
        QTest::newRow("tray 2 missing") << "acme-mfp4200.ppd" << "Letter" << QStringList{"InputSlot=Tray2"} << true;
        QTest::newRow("German A4") << "acme-laser1610-de.ppd" << "A4" << QStringList{"TonerSave=True"} << false;
        QTest::newRow("transparency duplex") << "acme-laser1610.ppd" << "Letter"
                                             << QStringList{"MediaType=Transparency", "Duplex=DuplexTumble"} << true;
    }

    void samplePpdDefaultsAndConstraints()
    {
        QFETCH(QString, ppd);
        QFETCH(QString, pageSize);
        QFETCH(QStringList, marks);
        QFETCH(bool, conflict);
        const QByteArray path = QFile::encodeName(samplePpd(ppd));
        std::unique_ptr<ppd_file_t, decltype(&ppdClose)> file(ppdOpenFile(path.constData()), &ppdClose);
        QVERIFY(file);
        ppdMarkDefaults(file.get());
        QCOMPARE(ppdConflicts(file.get()), 0);
        ppd_choice_t *size = ppdFindMarkedChoice(file.get(), "PageSize");
        QVERIFY(size);
        QCOMPARE(QString::fromLatin1(size->choice), pageSize);
        for (const QString &mark : marks) {
            const QByteArray option = mark.section('=', 0, 0).toLatin1();
            const QByteArray choice = mark.section('=', 1).toLatin1();
            ppd_option_t *found = ppdFindOption(file.get(), option.constData());
            QVERIFY2(ppdFindChoice(found, choice.constData()), qPrintable(mark));
            ppdMarkOption(file.get(), option.constData(), choice.constData());
        }
        QCOMPARE(ppdConflicts(file.get()) > 0, conflict);
    }

    void jobReachesSocketPrinter_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("passedThrough");  // what the printer must receive as is
        QTest::newRow("PostScript") << QByteArray("%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
                                                  "/Helvetica findfont 24 scalefont setfont 72 700 moveto "
                                                  "(qw-marker) show showpage\n%%EOF\n")
                                    << QByteArray("(qw-marker) show");
        // Text is rendered anew: only the driver's setup code is known.
        QTest::newRow("text") << QByteArray("qw-marker\nsecond line\n") << QByteArray();
    }

    void jobReachesSocketPrinter()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, passedThrough);
        LoopbackPrinter printer;
        const QString queue = QStringLiteral("sandbox_job_%1_%2").arg(QCoreApplication::applicationPid())
                                  .arg(QString::fromLatin1(QTest::currentDataTag()).toLower());
        QString output;
        QVERIFY2(CupsSandbox::run({"lpadmin", "-p", queue, "-E", "-v", printer.deviceUri(), "-m", "acme-laser1610.ppd"},
                                  &output) == 0,
                 qPrintable(output));
        QTemporaryDir dir;
        QFile file(dir.filePath(QStringLiteral("document")));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(document) == document.size());
        file.close();
        QVERIFY2(CupsSandbox::run({"lp", "-d", queue, "-o", "TonerSave=True", file.fileName()}, &output) == 0,
                 qPrintable(output));

        const QByteArray data = printer.waitForJob(120000);
        CupsSandbox::run({"lpadmin", "-x", queue});
        QVERIFY2(data.startsWith("%!PS"), data.left(80).constData());
        QVERIFY2(data.contains(passedThrough), data.left(400).constData());
        // The option given to lp, as the PPD's code for it.
        QVERIFY(data.contains("AcmeTonerSave true"));
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

    void useSharedExplainsMissingScheduler()
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
};

QTEST_GUILESS_MAIN(TestCupsSandbox)
#include "tst_cupssandbox.moc"
