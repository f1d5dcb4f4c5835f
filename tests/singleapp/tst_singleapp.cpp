// The single-instance application without an X display: the selection name
// rule, running alone offscreen, and what the channel of a Wayland session
// refuses, played by scripted instances that share a runtime directory.

#include "instanceprocess.h"
#include "qtsingleapplication.h"
#include "sessionchannel.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using Instance = std::unique_ptr<InstanceProcess>;

namespace {

const QString Id = QStringLiteral("SessionTest");

// A client of the channel that writes what it is told to, and no more.
int rawClient(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) {
        ::close(fd);
        return -1;
    }
    return fd;
}

} // namespace

class TestSingleApp : public QObject
{
    Q_OBJECT

    QTemporaryDir m_runtime;

    Instance start(bool owner)
    {
        auto instance = std::make_unique<InstanceProcess>(InstanceProcess::sessionEnvironment(m_runtime.path()), Id);
        if (!instance->start() || (owner && instance->ask("init").isNull()))
            return nullptr;
        return instance;
    }

    QByteArray socketPath() const
    {
        return QFile::encodeName(m_runtime.filePath(QString::fromLatin1(SessionChannel::socketName(Id, "wayland-test"))));
    }

private slots:
    void initTestCase() { QVERIFY(QFile::setPermissions(m_runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)); }

    void selectionName_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("program") << "AddPrinterWizard_SingleApplication" << "alice"
                                 << QByteArray("_AddPrinterWizard_SingleApplicationalice");
        QTest::newRow("nothing at all") << QString() << QString() << QByteArray("_");
        // One "_" for each byte of the UTF-8 form.
        QTest::newRow("non-ascii, blanks, controls") << "Drücker€ app\t" << "jö b" << QByteArray("_Dr__cker____app_j___b");
        QTest::newRow("punctuation kept") << "!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~" << "\x7f"
                                          << QByteArray("_!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~_");
    }

    void selectionName()
    {
        QFETCH(QString, id);
        QFETCH(QString, user);
        QFETCH(QByteArray, expected);
        QCOMPARE(QtSingleApplication::selectionName(id, user), expected);
    }

    void withoutDisplayRunsAlone()
    {
        // Without X nothing is wrong, so nothing may be reported either.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        auto *app = qobject_cast<QtSingleApplication *>(qApp);
        QVERIFY(app);
        QVERIFY(!app->isRunning());
        QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!"), 5000));
        app->initialize(true);
        QVERIFY(!app->isRunning());
        QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!")));
    }

    void frames_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("valid");
        QTest::newRow("message and token") << QByteArray("Wake up!!!\0abc-1/2:3", 20) << true;
        QTest::newRow("no token") << QByteArray("Grüße\0", 8) << true;
        QTest::newRow("no separator") << QByteArray("Wake up!!!") << false;
        QTest::newRow("two separators") << QByteArray("a\0b\0c", 5) << false;
        QTest::newRow("blank in token") << QByteArray("a\0b c", 5) << false;
        QTest::newRow("not UTF-8") << QByteArray("\xff\xfe\0", 3) << false;
        QTest::newRow("too long") << QByteArray(SessionChannel::MaxFrameBytes, 'x') + '\0' << false;
    }

    void frames()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, valid);
        QString message;
        QByteArray token;
        QCOMPARE(SessionChannel::parseFrame(bytes, &message, &token), valid);
        if (valid)
            QCOMPARE(SessionChannel::frame(message, token), bytes);
    }

    // Garbage, an endless frame, a client that says nothing and another
    // user's client are dropped; the instance keeps listening meanwhile.
    void badClientsAreIgnored()
    {
        Instance first = start(true);
        QVERIFY(first);
        const int silent = rawClient(socketPath());
        const int garbage = rawClient(socketPath());
        const int endless = rawClient(socketPath());
        QVERIFY(silent >= 0 && garbage >= 0 && endless >= 0);
        QVERIFY(::write(garbage, "\xff\xfe\0x y", 6) == 6);
        ::shutdown(garbage, SHUT_WR);
        const QByteArray block(4096, 'z');
        qint64 written = 0;
        while (written <= SessionChannel::MaxFrameBytes) {
            const ssize_t n = ::send(endless, block.constData(), size_t(block.size()), MSG_NOSIGNAL);
            if (n <= 0)
                break;
            written += n;
        }
        QVERIFY(written > SessionChannel::MaxFrameBytes);

        // Only a fence of our own keeps another user out here.
        QVERIFY(QFile::setPermissions(m_runtime.path(), QFileDevice::Permissions(0x7711)));
        QVERIFY(QFile::setPermissions(QFile::decodeName(socketPath()), QFileDevice::Permissions(0x7777)));
        QProcess other;
        other.start(QStringLiteral("setpriv"), {"--reuid=65534", "--regid=65534", "--clear-groups", "--", "socat",
                                                "-d", "-d", "-", "UNIX-CONNECT:" + QFile::decodeName(socketPath())});
        other.write(QByteArray("from another user\0", 18));
        other.closeWriteChannel();
        // The instance may hang up before all is written: only getting in counts.
        QVERIFY(other.waitForFinished(10000));
        QVERIFY(other.readAllStandardError().contains("successfully connected"));
        QVERIFY(QFile::setPermissions(m_runtime.path(), QFileDevice::Permissions(0x7700)));

        Instance second = start(false);
        QCOMPARE(second->ask("send real"), QByteArray("1"));
        QCOMPARE(first->waitFor("message"), QByteArray("real"));
        QTRY_VERIFY(::send(endless, "z", 1, MSG_NOSIGNAL) < 0);
        char byte;
        QTRY_VERIFY(::recv(silent, &byte, 1, MSG_DONTWAIT) == 0);
        QVERIFY(first->waitFor("message", 500).isNull());
        ::close(silent);
        ::close(garbage);
        ::close(endless);
    }
};

int main(int argc, char **argv)
{
    // The session of whoever runs the test is not this test's.
    qunsetenv("WAYLAND_DISPLAY");
    QtSingleApplication app(QStringLiteral("QueuewizOffscreenTest"), argc, argv);
    TestSingleApp test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleapp.moc"
