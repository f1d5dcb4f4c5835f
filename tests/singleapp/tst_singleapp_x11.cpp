// Several instances on a private X server: finding the running instance,
// the message, raising, and handing the selection over at shutdown.

#include "instanceprocess.h"
#include "testpaths.h"
#include "xcbclient.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using Instance = std::unique_ptr<InstanceProcess>;

class TestSingleAppX11 : public QObject
{
    Q_OBJECT

    QProcess m_xvfb;
    QString m_display;
    xcb_connection_t *m_connection = nullptr;
    XcbClient m_x;

    // An instance of id for user; an owner has claimed the selection.
    Instance start(const QString &id, bool owner, const QString &user = QString())
    {
        auto instance = std::make_unique<InstanceProcess>(InstanceProcess::environment(m_display), id, user);
        if (!instance->start() || (owner && instance->ask("init").isNull()))
            return nullptr;
        return instance;
    }

    static QString received(InstanceProcess &instance, int timeout = 15000)
    {
        return QString::fromUtf8(QByteArray::fromPercentEncoding(instance.waitFor("message", timeout)));
    }

    xcb_window_t ownerOf(const QByteArray &selection) const
    {
        return m_x.selectionOwner(m_x.internAtom(selection, true));
    }

private slots:
    void initTestCase()
    {
        // With -displayfd the server takes a free display and writes its
        // number once it accepts connections.
        m_xvfb.setStandardErrorFile(QProcess::nullDevice());
        m_xvfb.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "640x480x24"});
        QVERIFY2(m_xvfb.waitForStarted(10000), qPrintable(m_xvfb.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(m_xvfb.canReadLine(), 30000);
        m_display = QLatin1Char(':') + QString::fromLatin1(m_xvfb.readLine().trimmed());
        m_connection = xcb_connect(m_display.toLatin1().constData(), nullptr);
        m_x = XcbClient(m_connection);
        QVERIFY(m_x.isValid());
    }

    void cleanupTestCase()
    {
        xcb_disconnect(m_connection);
        m_xvfb.terminate();
        m_xvfb.waitForFinished(5000);
    }

    void secondInstanceWakesAndRaisesFirst_data()
    {
        QTest::addColumn<QString>("message");
        QTest::newRow("empty") << QString();
        QTest::newRow("non-ascii, line breaks") << QStringLiteral("Grüße, ½ € 日本語 🖨\none\r\n\ttwo");
        // Longer than the first read of a property (4096 bytes): it must grow.
        QTest::newRow("long") << QStringLiteral("Drucker ß€ ").repeated(1500);
    }

    void secondInstanceWakesAndRaisesFirst()
    {
        QFETCH(QString, message);
        Instance first = start(QStringLiteral("WakeTest"), true);
        QVERIFY(first);
        const QList<QByteArray> windows = first->ask("show").split(' ');
        QCOMPARE(windows.size(), 2);
        const xcb_window_t mainWindow = windows.at(0).toUInt();
        const xcb_window_t cover = windows.at(1).toUInt();
        auto stackedAbove = [this](xcb_window_t upper, xcb_window_t lower) {
            const QList<xcb_window_t> order = m_x.rootChildren();
            return order.indexOf(upper) > order.indexOf(lower) && order.contains(lower);
        };
        QTRY_VERIFY_WITH_TIMEOUT(stackedAbove(cover, mainWindow), 15000);

        Instance second = start(QStringLiteral("WakeTest"), false);
        QVERIFY(second);
        QCOMPARE(second->ask("running"), QByteArray("1"));
        QCOMPARE(second->ask("send " + InstanceProcess::encode(message)), QByteArray("1"));
        QCOMPARE(received(*first), message);
        QTRY_VERIFY_WITH_TIMEOUT(stackedAbove(mainWindow, cover), 15000);
        QCOMPARE(second->quit(), 0);
        QCOMPARE(first->quit(), 0);
    }

    // The selection is named by the id and the login name, blanks and
    // non-ASCII bytes made "_": each user has an instance of their own, and
    // the last one of a user hands nothing to another user's.
    void usersHaveSeparateInstances()
    {
        const QString id = QStringLiteral("Drücker Test");
        Instance alice = start(id, true, QStringLiteral("alice"));
        Instance bob = start(id, false, QStringLiteral("bob"));
        QVERIFY(alice && bob);
        QCOMPARE(bob->ask("running"), QByteArray("0"));
        QCOMPARE(bob->ask("send x"), QByteArray("0"));
        QCOMPARE(bob->ask("init"), QByteArray(""));
        const xcb_window_t aliceOwner = ownerOf("_Dr__cker_Testalice");
        QVERIFY(aliceOwner != XCB_WINDOW_NONE && ownerOf("_Dr__cker_Testbob") != XCB_WINDOW_NONE);
        QVERIFY(aliceOwner != ownerOf("_Dr__cker_Testbob"));

        Instance aliceAgain = start(id, false, QStringLiteral("alice"));
        QVERIFY(aliceAgain);
        QCOMPARE(aliceAgain->ask("send for-alice"), QByteArray("1"));
        QCOMPARE(received(*alice), QStringLiteral("for-alice"));
        QCOMPARE(aliceAgain->quit(), 0);

        QCOMPARE(alice->quit(), 0);
        QCOMPARE(ownerOf("_Dr__cker_Testalice"), xcb_window_t(XCB_WINDOW_NONE));
        const xcb_atom_t type = m_x.internAtom("_QTSINGLEAPPLICATION", true);
        QVERIFY(m_x.windowsWithProperty(m_x.rootChildren(), m_x.internAtom("_Dr__cker_Testalice", true), type)
                    .isEmpty());
        QCOMPARE(bob->ask("running"), QByteArray("0"));
        QVERIFY(bob->waitFor("message", 0).isNull());
        QCOMPARE(bob->quit(), 0);
    }

    // Each new instance takes the selection; the one that quits passes it to
    // the most recent remaining one, which then gets the messages.
    void ownerHandsOverWhenQuitting()
    {
        const QString id = QStringLiteral("HandOverTest");
        std::vector<Instance> owners;
        for (int i = 0; i < 3; ++i) {
            owners.push_back(start(id, true));
            QVERIFY(owners.back());
        }
        Instance sender = start(id, false);
        QVERIFY(sender);
        while (!owners.empty()) {
            InstanceProcess &last = *owners.back();
            // The hand-over arrives asynchronously.
            QTRY_VERIFY_WITH_TIMEOUT(sender->ask("running") == "1" && last.ask("running") == "0", 15000);
            const QByteArray text = "to-" + QByteArray::number(qsizetype(owners.size()));
            QCOMPARE(sender->ask("send " + text), QByteArray("1"));
            QCOMPARE(last.waitFor("message"), text);
            for (size_t i = 0; i + 1 < owners.size(); ++i)
                QVERIFY(owners[i]->ask("running") == "1" && owners[i]->waitFor("message", 0).isNull());
            QCOMPARE(last.quit(), 0);
            owners.pop_back();
        }
        QCOMPARE(sender->ask("send nobody"), QByteArray("0"));
    }

    // Programs started while an instance of the same user runs: a second
    // start wakes it, the test page prints; neither may touch the logs the
    // instance writes.
    void startsBesideTheInstance_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("output");
        QTest::newRow("second start") << "app/queuewiz" << QStringList() << 0 << QString();
        QTest::newRow("test page") << "tools/printertest/printertest" << QStringList{"no_such_queue"} << 0
                                   << "there is no printer";
    }

    void startsBesideTheInstance()
    {
        QFETCH(QString, program);
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, output);
        Instance first = start(QStringLiteral("AddPrinterWizard_SingleApplication"), true);
        QVERIFY(first);
        QTemporaryDir logs;
        const QByteArray lines = "Requesting operation 0x4001...\r\nResult status: OK\n\r\n";
        const QStringList names{"ipp_request.log", "ipp_printer.log", "ipp_driver.log", "ipp_job.log",
                                "ipp_class.log"};
        for (const QString &name : names) {
            QFile log(logs.filePath(name));
            QVERIFY(log.open(QIODevice::WriteOnly) && log.write(lines) == lines.size());
        }

        QProcess child;
        QProcessEnvironment env = InstanceProcess::environment(m_display);
        env.insert(QStringLiteral("QUEUEWIZ_LOG_DIR"), logs.path());
        env.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("localhost:9"));
        child.setProcessEnvironment(env);
        child.setProcessChannelMode(QProcess::MergedChannels);
        child.start(TestPaths::binaryDir() + QLatin1Char('/') + program, arguments);
        QVERIFY2(child.waitForFinished(30000), "the program did not end");
        const QString said = QString::fromLocal8Bit(child.readAll());
        QCOMPARE(child.exitStatus(), QProcess::NormalExit);
        QCOMPARE(child.exitCode(), exitCode);
        QVERIFY2(said.contains(output), qPrintable(said));
        const bool wakes = program.endsWith(QLatin1String("queuewiz"));
        QCOMPARE(received(*first, wakes ? 15000 : 0), wakes ? QStringLiteral("Wake up!!!") : QString());
        for (const QString &name : names) {
            QFile log(logs.filePath(name));
            QVERIFY(log.open(QIODevice::ReadOnly));
            QCOMPARE(log.readAll(), lines);
        }
        QCOMPARE(first->quit(), 0);
    }
};

QTEST_GUILESS_MAIN(TestSingleAppX11)
#include "tst_singleapp_x11.moc"
