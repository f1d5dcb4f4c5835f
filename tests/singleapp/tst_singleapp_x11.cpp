// Several instances on a private X server: finding the running instance,
// the message, raising, and handing the selection over at shutdown.

#include "instanceprocess.h"
#include "testpaths.h"
#include "xcbclient.h"
#include "xvfbserver.h"

#include <QProcess>
#include <QTest>

#include <memory>

namespace {

struct XcbDisconnect
{
    void operator()(xcb_connection_t *c) const { xcb_disconnect(c); }
};

} // namespace

class TestSingleAppX11 : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void secondInstanceWakesAndRaisesFirst();
    void messagesArriveUnchanged_data();
    void messagesArriveUnchanged();
    void usersHaveSeparateInstances();
    void sendWithoutInstanceFails();
    void ownerHandsOverWhenQuitting();
    void loneOwnerSendsNothing();
    void secondQueuewizStartExits();

private:
    std::unique_ptr<InstanceProcess> startInstance(const QString &id, const QString &user = QString());
    std::unique_ptr<InstanceProcess> startOwner(const QString &id, const QString &user = QString());
    xcb_window_t ownerOf(const QByteArray &selection);

    XvfbServer m_xvfb;
    std::unique_ptr<xcb_connection_t, XcbDisconnect> m_connection;
    std::unique_ptr<XcbClient> m_x;
};

void TestSingleAppX11::initTestCase()
{
    QVERIFY2(m_xvfb.start(), qPrintable(m_xvfb.errorString()));
    m_connection.reset(xcb_connect(m_xvfb.display().toLatin1().constData(), nullptr));
    m_x = std::make_unique<XcbClient>(m_connection.get());
    QVERIFY(m_x->isValid());
}

std::unique_ptr<InstanceProcess> TestSingleAppX11::startInstance(const QString &id, const QString &user)
{
    auto instance = std::make_unique<InstanceProcess>(m_xvfb.display(), id, user);
    if (!instance->start())
        return nullptr;
    return instance;
}

std::unique_ptr<InstanceProcess> TestSingleAppX11::startOwner(const QString &id, const QString &user)
{
    auto instance = startInstance(id, user);
    if (!instance || instance->ask("init", "initialized").isNull())
        return nullptr;
    return instance;
}

xcb_window_t TestSingleAppX11::ownerOf(const QByteArray &selection)
{
    return m_x->selectionOwner(m_x->internAtom(selection, true));
}

void TestSingleAppX11::secondInstanceWakesAndRaisesFirst()
{
    const QString id = QStringLiteral("WakeTest");
    auto first = startOwner(id);
    QVERIFY(first);
    const QList<QByteArray> windows = first->ask("show", "windows").split(' ');
    QCOMPARE(windows.size(), 2);
    const xcb_window_t mainWindow = windows.at(0).toUInt();
    const xcb_window_t cover = windows.at(1).toUInt();
    auto stackedAbove = [this](xcb_window_t upper, xcb_window_t lower) {
        const QList<xcb_window_t> order = m_x->rootChildren();
        return order.indexOf(upper) > order.indexOf(lower) && order.contains(lower);
    };
    QTRY_VERIFY_WITH_TIMEOUT(stackedAbove(cover, mainWindow), 15000);

    auto second = startInstance(id);
    QVERIFY(second);
    QCOMPARE(second->ask("running", "running"), QByteArray("1"));
    QCOMPARE(second->ask("send " + InstanceProcess::encode(QStringLiteral("Wake up!!!")), "sent"),
             QByteArray("1"));
    QCOMPARE(QByteArray::fromPercentEncoding(first->waitFor("message")), QByteArray("Wake up!!!"));
    QTRY_VERIFY_WITH_TIMEOUT(stackedAbove(mainWindow, cover), 15000);

    QCOMPARE(second->quit(), 0);
    QCOMPARE(first->quit(), 0);
}

void TestSingleAppX11::messagesArriveUnchanged_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("ascii") << QStringLiteral("Wake up!!!");
    QTest::newRow("empty") << QString();
    QTest::newRow("non-ascii") << QStringLiteral("Grüße, ½ € 日本語 🖨");
    QTest::newRow("line breaks") << QStringLiteral("one\ntwo\r\n\tthree");
    // Longer than the first read of a property (4096 bytes): it must grow.
    QTest::newRow("long") << QStringLiteral("Drucker ß€ ").repeated(1500);
}

void TestSingleAppX11::messagesArriveUnchanged()
{
    QFETCH(QString, message);
    const QString id = QStringLiteral("MessageTest");
    auto first = startOwner(id);
    QVERIFY(first);
    auto second = startInstance(id);
    QVERIFY(second);
    QCOMPARE(second->ask("send " + InstanceProcess::encode(message), "sent"), QByteArray("1"));
    QCOMPARE(QString::fromUtf8(QByteArray::fromPercentEncoding(first->waitFor("message"))), message);
    QCOMPARE(first->quit(), 0);
}

// The selection on the display is named by the id and the login name, with
// blanks and non-ASCII bytes made "_", so each user has an instance.
void TestSingleAppX11::usersHaveSeparateInstances()
{
    const QString id = QStringLiteral("Drücker Test");
    auto alice = startOwner(id, QStringLiteral("alice"));
    QVERIFY(alice);
    auto bob = startInstance(id, QStringLiteral("bob"));
    QVERIFY(bob);
    QCOMPARE(bob->ask("running", "running"), QByteArray("0"));
    QCOMPARE(bob->ask("send x", "sent"), QByteArray("0"));
    QCOMPARE(bob->ask("init", "initialized"), QByteArray(""));
    const xcb_window_t aliceOwner = ownerOf("_Dr__cker_Testalice");
    const xcb_window_t bobOwner = ownerOf("_Dr__cker_Testbob");
    QVERIFY(aliceOwner != XCB_WINDOW_NONE);
    QVERIFY(bobOwner != XCB_WINDOW_NONE);
    QVERIFY(aliceOwner != bobOwner);
    const xcb_atom_t listener = m_x->internAtom("_Dr__cker_Testalice_LISTENER", true);
    QCOMPARE(m_x->windowsWithProperty(m_x->rootChildren(), listener, listener),
             QList<xcb_window_t>{ aliceOwner });

    auto aliceAgain = startInstance(id, QStringLiteral("alice"));
    QVERIFY(aliceAgain);
    QCOMPARE(aliceAgain->ask("send for-alice", "sent"), QByteArray("1"));
    QCOMPARE(alice->waitFor("message"), QByteArray("for-alice"));
    QCOMPARE(bob->ask("running", "running"), QByteArray("0"));
    QVERIFY(!bob->hasAnswer("message"));
    QCOMPARE(bob->quit(), 0);
    QCOMPARE(alice->quit(), 0);
}

void TestSingleAppX11::sendWithoutInstanceFails()
{
    auto lone = startInstance(QStringLiteral("NobodyRunsThis"));
    QVERIFY(lone);
    QCOMPARE(lone->ask("running", "running"), QByteArray("0"));
    QCOMPARE(lone->ask("send Wake%20up!!!", "sent"), QByteArray("0"));
    QCOMPARE(lone->quit(), 0);
}

// Each new instance takes the selection; the one that quits passes it to
// the most recent remaining listener, which then gets the messages.
void TestSingleAppX11::ownerHandsOverWhenQuitting()
{
    const QString id = QStringLiteral("HandOverTest");
    auto a = startOwner(id);
    QVERIFY(a);
    auto b = startOwner(id);
    QVERIFY(b);
    auto c = startOwner(id);
    QVERIFY(c);
    auto sender = startInstance(id);
    QVERIFY(sender);

    QCOMPARE(sender->ask("send to-c", "sent"), QByteArray("1"));
    QCOMPARE(c->waitFor("message"), QByteArray("to-c"));
    QCOMPARE(c->quit(), 0);

    // The hand-over arrives asynchronously: send until the new owner answers.
    QTRY_VERIFY_WITH_TIMEOUT(sender->ask("running", "running") == "1"
                                 && b->ask("running", "running") == "0",
                             15000);
    QCOMPARE(sender->ask("send to-b", "sent"), QByteArray("1"));
    QCOMPARE(b->waitFor("message"), QByteArray("to-b"));
    QVERIFY(!a->hasAnswer("message"));
    QCOMPARE(b->quit(), 0);

    QTRY_VERIFY_WITH_TIMEOUT(a->ask("running", "running") == "0", 15000);
    QCOMPARE(sender->ask("send to-a", "sent"), QByteArray("1"));
    QCOMPARE(a->waitFor("message"), QByteArray("to-a"));
    QCOMPARE(a->quit(), 0);

    QCOMPARE(sender->ask("send nobody", "sent"), QByteArray("0"));
}

void TestSingleAppX11::loneOwnerSendsNothing()
{
    const QString id = QStringLiteral("LoneTest");
    // Another user's instance of the same program is not a successor.
    auto bystander = startOwner(id, QStringLiteral("bystander"));
    QVERIFY(bystander);
    auto owner = startOwner(id, QStringLiteral("owner"));
    QVERIFY(owner);
    QCOMPARE(owner->quit(), 0);

    const QByteArray selectionName = "_LoneTestowner";
    QCOMPARE(ownerOf(selectionName), xcb_window_t(XCB_WINDOW_NONE));
    const xcb_atom_t selection = m_x->internAtom(selectionName, true);
    QVERIFY(selection != XCB_ATOM_NONE);
    const xcb_atom_t type = m_x->internAtom("_QTSINGLEAPPLICATION", true);
    QVERIFY(m_x->windowsWithProperty(m_x->rootChildren(), selection, type).isEmpty());
    QCOMPARE(bystander->ask("running", "running"), QByteArray("0"));
    QVERIFY(!bystander->hasAnswer("message"));
    QCOMPARE(bystander->quit(), 0);
}

// The program itself, started while an instance of the same user runs.
void TestSingleAppX11::secondQueuewizStartExits()
{
    auto first = startOwner(QStringLiteral("AddPrinterWizard_SingleApplication"));
    QVERIFY(first);

    QProcess queuewiz;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), m_xvfb.display());
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    queuewiz.setProcessEnvironment(env);
    queuewiz.setProcessChannelMode(QProcess::ForwardedChannels);
    queuewiz.start(TestPaths::binaryDir() + QStringLiteral("/app/queuewiz"), QStringList());
    QVERIFY2(queuewiz.waitForFinished(30000), "the second start did not end");
    QCOMPARE(queuewiz.exitStatus(), QProcess::NormalExit);
    QCOMPARE(queuewiz.exitCode(), 0);
    QCOMPARE(QByteArray::fromPercentEncoding(first->waitFor("message")), QByteArray("Wake up!!!"));
    QCOMPARE(first->quit(), 0);
}

QTEST_GUILESS_MAIN(TestSingleAppX11)

#include "tst_singleapp_x11.moc"
