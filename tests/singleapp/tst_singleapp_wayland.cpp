// The wizard itself in a Wayland session: a headless compositor of the
// test's own, alone or with an X server beside it as XWayland gives one.
// No scheduler answers, so the window must not wait for one either.

#include "testpaths.h"
#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString Socket = QStringLiteral("wayland-qwtest");

struct Run
{
    QProcess process;
    QByteArray output;

    // Everything it said on standard error so far.
    QByteArray said()
    {
        output += process.readAllStandardError();
        return output;
    }
    bool says(const QByteArray &text)
    {
        return QTest::qWaitFor([&] { return said().contains(text) || process.state() == QProcess::NotRunning; },
                               30000)
            && said().contains(text);
    }
    bool ended(int exitCode)
    {
        return (!running() || process.waitForFinished(20000)) && process.exitStatus() == QProcess::NormalExit
            && process.exitCode() == exitCode;
    }
    bool running() const { return process.state() != QProcess::NotRunning; }
};
using Wizard = std::unique_ptr<Run>;

} // namespace

class TestSingleAppWayland : public QObject
{
    Q_OBJECT

    QTemporaryDir m_runtime;
    QProcess m_weston;
    QProcess m_xvfb;
    QString m_display;

    // platform: what the user forced through QT_QPA_PLATFORM, if anything;
    // session "nobody:DIR:SOCKET" runs it as nobody in that Wayland session.
    Wizard launch(const QString &session, const QByteArray &token = QByteArray(), const QString &platform = QString())
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        const QStringList nobody = session.split(':');
        env.insert("XDG_RUNTIME_DIR", nobody.size() == 3 ? nobody.at(1) : m_runtime.path());
        env.insert("WAYLAND_DISPLAY", nobody.size() == 3 ? nobody.at(2) : Socket);
        env.remove("QT_QPA_PLATFORM");
        if (!platform.isEmpty())
            env.insert("QT_QPA_PLATFORM", platform);
        env.remove("DISPLAY");
        env.insert("XDG_SESSION_TYPE", "wayland");
        if (session != "wayland")
            env.insert("DISPLAY", m_display);
        env.insert("XDG_ACTIVATION_TOKEN", QString::fromLatin1(token));
        env.insert("CUPS_SERVER", "127.0.0.1:9");
        env.insert("QUEUEWIZ_LOG_DIR", m_runtime.path());
        env.insert("QT_LOGGING_RULES", "queuewiz.instance.debug=true");
        auto wizard = std::make_unique<Run>();
        wizard->process.setProcessEnvironment(env);
        const QString program = TestPaths::binaryDir() + "/app/queuewiz";
        if (nobody.size() == 3) {
            env.insert("HOME", nobody.at(1));
            env.insert("QUEUEWIZ_LOG_DIR", nobody.at(1));
            env.insert("WAYLAND_DEBUG", "client");
            wizard->process.setProcessEnvironment(env);
            wizard->process.start("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups", "--", program});
        } else {
            wizard->process.start(program, QStringList());
        }
        return wizard;
    }

    static void close(QProcess &wizard)
    {
        wizard.terminate();
        if (!wizard.waitForFinished(10000))
            wizard.kill();
        wizard.waitForFinished(5000);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(QFile::setPermissions(m_runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_RUNTIME_DIR", m_runtime.path());
        m_weston.setProcessEnvironment(env);
        m_weston.setStandardOutputFile(QProcess::nullDevice());
        m_weston.setStandardErrorFile(m_runtime.filePath("weston.log"));
        m_weston.start("weston", {"--backend=headless-backend.so", "--socket=" + Socket, "--idle-time=0",
                                  "--width=1024", "--height=768"});
        QVERIFY2(m_weston.waitForStarted(10000), qPrintable(m_weston.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(m_runtime.filePath(Socket)), 30000);

        m_xvfb.setStandardErrorFile(QProcess::nullDevice());
        m_xvfb.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "1024x768x24"});
        QVERIFY2(m_xvfb.waitForStarted(10000), qPrintable(m_xvfb.errorString()));
        QTRY_VERIFY_WITH_TIMEOUT(m_xvfb.canReadLine(), 30000);
        m_display = QLatin1Char(':') + QString::fromLatin1(m_xvfb.readLine().trimmed());
    }

    void cleanupTestCase()
    {
        close(m_weston);
        close(m_xvfb);
    }

    // The second start hands the launcher's token to the running wizard and
    // ends; the wizard stays the only one.
    void secondStartWakesTheWizard_data()
    {
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("firstPlatform");
        QTest::addColumn<QString>("secondPlatform");
        QTest::addColumn<bool>("tokenPassed");
        QTest::newRow("no X server") << "wayland" << "" << "" << true;
        QTest::newRow("X server beside") << "xwayland" << "" << "" << true;
        // Over X the message goes as it always did, without a token.
        QTest::newRow("both on X") << "xwayland" << "xcb" << "xcb" << false;
        QTest::newRow("first on X, second on Wayland") << "xwayland" << "xcb" << "" << true;
    }

    void secondStartWakesTheWizard()
    {
        QFETCH(QString, session);
        QFETCH(QString, firstPlatform);
        QFETCH(QString, secondPlatform);
        QFETCH(bool, tokenPassed);
        Wizard first = launch(session, QByteArray(), firstPlatform);
        const QByteArray platform = firstPlatform.isEmpty() ? "wayland" : firstPlatform.toLatin1();
        QVERIFY2(first->says("instance on " + platform + ", listening"), first->said().constData());
        const QByteArray token = "launcher/" + QByteArray(QTest::currentDataTag()).replace(' ', '_');
        Wizard second = launch(session, token, secondPlatform);
        QVERIFY2(second->ended(0), second->said().constData());
        if (tokenPassed)
            QVERIFY2(first->says("token \"" + token + '"'), first->said().constData());
        else
            QVERIFY(!first->said().contains("token"));
        QVERIFY(first->running());
        close(first->process);
    }

    // A compositor that knows xdg-activation (sway) is shown the token that
    // the second start brought. Sway won't run as root: both run as nobody.
    void tokenActivatesTheWizard()
    {
        if (geteuid() != 0)
            QSKIP("acting as nobody needs root");
        QTemporaryDir home;
        QVERIFY(TestSupport::writeFile(home.filePath("sway.conf"), "output HEADLESS-1 resolution 1024x768\n"));
        QVERIFY(::chown(qPrintable(home.path()), 65534, 65534) == 0 && ::chmod(qPrintable(home.path()), 0700) == 0);
        QProcess sway;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"WLR_BACKENDS=headless", "WLR_LIBINPUT_NO_DEVICES=1", "WLR_RENDERER=pixman"})
            env.insert(QString::fromLatin1(name).section('=', 0, 0), QString::fromLatin1(name).section('=', 1));
        env.insert("XDG_RUNTIME_DIR", home.path());
        env.insert("HOME", home.path());
        sway.setProcessEnvironment(env);
        sway.setStandardOutputFile(QProcess::nullDevice());
        sway.setStandardErrorFile(QProcess::nullDevice());
        sway.start("setpriv", {"--reuid=65534", "--regid=65534", "--clear-groups", "--", "sway", "-c",
                               home.filePath("sway.conf")});
        QString socket;
        QTRY_VERIFY_WITH_TIMEOUT(!(socket = QDir(home.path()).entryList({"wayland-?"}, QDir::System).value(0)).isEmpty(),
                                 30000);
        const QString session = "nobody:" + home.path() + ':' + socket;
        Wizard first = launch(session);
        QVERIFY2(first->says("listening"), first->said().constData());
        Wizard second = launch(session, "launcher-sway-token");
        QVERIFY2(second->ended(0), second->said().constData());
        QVERIFY2(first->says("xdg_activation_v1@"), first->said().right(2000).constData());
        QVERIFY(first->says(".activate(\"launcher-sway-token\", wl_surface@"));
        close(first->process);
        close(sway);
    }

    // What a wizard killed hard leaves behind does not stand in the way of
    // the next start, which becomes the wizard.
    void killedWizardIsReplaced()
    {
        Wizard first = launch("wayland");
        QVERIFY(first->says("listening"));
        first->process.kill();
        QVERIFY(first->process.waitForFinished(10000));
        Wizard next = launch("wayland");
        QVERIFY2(next->says("listening"), next->said().constData());
        Wizard again = launch("wayland");
        QVERIFY(again->ended(0));
        QVERIFY(next->says("message from the session"));
        close(next->process);
    }

    // Two starts at the same moment: one wizard, and the other start ends.
    void simultaneousStarts()
    {
        Wizard one = launch("wayland");
        Wizard two = launch("wayland");
        QTRY_VERIFY_WITH_TIMEOUT(!one->running() || !two->running(), 30000);
        Run &gone = one->running() ? *two : *one;
        Run &kept = one->running() ? *one : *two;
        QVERIFY2(gone.ended(0), gone.said().constData());
        QVERIFY2(kept.says("listening"), kept.said().constData());
        QVERIFY(!kept.process.waitForFinished(1000));
        close(kept.process);
    }
};

QTEST_GUILESS_MAIN(TestSingleAppWayland)
#include "tst_singleapp_wayland.moc"
