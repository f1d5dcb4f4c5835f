#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "printercreator.h"
#include "testsupport.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;

// The password dialog's stand-in: answers from a script and records what it
// was shown.
struct PasswordScript
{
    QStringList answers; // cancels when none is left
    int asked = 0;
    QString prompt;
    QString user;
} s_script;

bool scriptedAnswer(const QString &prompt, QString *user, QString *password)
{
    ++s_script.asked;
    s_script.prompt = prompt;
    s_script.user = *user;
    if (s_script.answers.isEmpty())
        return false;
    *password = s_script.answers.takeFirst();
    return true;
}

} // namespace

// Schedulers with the access policy of a stock Debian system: administration
// for members of the system group only.
class TestCupsAuth : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (getuid() != 0)
            QSKIP("Acting as other accounts needs root.");
        QVERIFY(m_work.isValid());
        // The unprivileged account reaches and writes this directory.
        QCOMPARE(::chmod(QFile::encodeName(m_work.path()).constData(), 01777), 0);
        QVERIFY(QDir().mkpath(m_work.filePath("bin")));
        const QString helper = QCoreApplication::applicationDirPath() + "/tst_cupsauth_commit";
        QVERIFY(QFile::copy(helper, m_work.filePath("tst_cupsauth_commit")));

        m_sandbox.setStockPolicy(QStringLiteral("nogroup"));
        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
        IPPRequest::setPasswordAsker(&scriptedAnswer);
        IPPLog::openAll(m_logs.path());
    }

    void init()
    {
        s_script = PasswordScript();
        IPPRequest::forgetPassword();
    }

    void commitStepAsUser_data()
    {
        QTest::addColumn<QString>("account"); // user:group; nogroup is the system group
        QTest::addColumn<QByteArray>("lpadmin"); // a stand-in's commands; empty: the system's
        QTest::addColumn<bool>("terminal"); // started in the background of a terminal
        QTest::addColumn<QByteArray>("output");
        const QByteArray done("created 1 OK\npaper 1\ndefault 1\n");
        QTest::newRow("member") << "nobody:nogroup" << QByteArray() << false << done;
        QTest::newRow("lpadmin sleeping 20 s") << "nobody:nogroup" << QByteArray("sleep 20") << false << done;
        QTest::newRow("lpadmin reading the terminal")
            << "nobody:nogroup" << QByteArray("read answer </dev/tty\nsleep 20") << true << done;
        QTest::newRow("not a member") << "daemon:daemon" << QByteArray() << false
                                      << QByteArray("password asked\npassword asked\n"
                                                    "created 0 Authentication cancelled\n");
    }

    // An account in the system group adds a queue over the local socket
    // with no password; another is asked for an administrator's. A stand-in
    // lpadmin that never sets the paper neither holds the commit step up
    // nor is ended with it.
    void commitStepAsUser()
    {
        QFETCH(QString, account);
        QFETCH(QByteArray, lpadmin);
        QFETCH(bool, terminal);
        QFETCH(QByteArray, output);
        const QString queue = QStringLiteral("member%1").arg(QTest::currentDataTag()).remove(' ');
        const QString record = m_work.filePath(queue + ".done");
        QFile::remove(m_work.filePath("bin/lpadmin"));
        if (!lpadmin.isEmpty()) {
            QVERIFY(TestSupport::writeFile(m_work.filePath("bin/lpadmin"),
                                           "#!/bin/sh\n" + lpadmin + "\necho finished > '" + record.toUtf8() + "'\n",
                                           true));
        }

        QProcess commit;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("CUPS_SERVER", m_sandbox.socketPath());
        env.insert("CUPS_SERVERROOT", m_work.path());
        env.insert("HOME", m_work.path());
        env.insert("QUEUEWIZ_LOG_DIR", m_work.path());
        env.insert("PATH", m_work.filePath("bin") + ':' + env.value("PATH"));
        commit.setProcessEnvironment(env);
        commit.setWorkingDirectory(m_work.path());
        const QStringList command{"setpriv", "--reuid=" + account.section(':', 0, 0),
                                  "--regid=" + account.section(':', 1), "--clear-groups", "--",
                                  m_work.filePath("tst_cupsauth_commit"), queue, "acme-laser1610.ppd", "Legal"};
        // With job control, as "queuewiz &" typed in a terminal: reading the
        // terminal would stop the whole process group.
        if (terminal)
            commit.start("script", {"-qec", "set -m; " + command.join(' ') + " & wait", "/dev/null"});
        else
            commit.start(command.first(), command.mid(1));
        QVERIFY(commit.waitForFinished(60000));
        const QByteArray printed = commit.readAll().replace('\r', "");
        QVERIFY2(printed.contains(output), printed.constData());
        QVERIFY(!QFile::exists(record));
        if (!output.contains("created 1"))
            return;

        QVERIFY(PrinterCreator(manager).isPaperDefault(queue, "Legal"));
        QCOMPARE(manager.defaultPrinterName(), queue);
        if (!lpadmin.isEmpty())
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(record), 30000);
    }

    void refusedOrCancelled_data()
    {
        QTest::addColumn<QStringList>("answers"); // each refused, then cancel
        QTest::addColumn<int>("asked");
        QTest::addColumn<QString>("reason");
        QTest::newRow("cancelled") << QStringList() << 1 << "Authentication cancelled";
        QTest::newRow("refused three times") << QStringList{"wrong-1", "wrong-2", "wrong-3", "wrong-4"} << 3
                                             << QString::fromUtf8(httpStatus(HTTP_STATUS_UNAUTHORIZED));
    }

    // Over TCP the scheduler wants a password even from root; the user
    // learns why the request failed, and no password reaches a log.
    void refusedOrCancelled()
    {
        QFETCH(QStringList, answers);
        QFETCH(int, asked);
        QFETCH(QString, reason);
        s_script.answers = answers;
        CUPSPrinter printer(QStringLiteral("guarded"));
        printer.setDeviceURI(QStringLiteral("file:/dev/null"));
        QVERIFY(!manager.addPrinter(printer));
        QCOMPARE(s_script.asked, asked);
        QCOMPARE(manager.lastStatusText(), reason);
        QCOMPARE(s_script.user, QString::fromLocal8Bit(cupsUser()));
        QVERIFY2(s_script.prompt.contains(s_script.user), qPrintable(s_script.prompt));
        QVERIFY(!IPPRequest::hasSavedPassword());

        IPPLog::flushAll();
        for (const IPPLog::Kind kind : {IPPLog::Request, IPPLog::Printer, IPPLog::Driver, IPPLog::Job, IPPLog::Class}) {
            for (const QString &answer : std::as_const(answers))
                QVERIFY(!TestSupport::readFile(m_logs.filePath(IPPLog::fileName(kind))).contains(answer.toUtf8()));
        }
    }

private:
    QTemporaryDir m_work{QStringLiteral("/tmp/qw-auth-XXXXXX")};
    QTemporaryDir m_logs;
    CupsSandbox m_sandbox;
};

QTEST_GUILESS_MAIN(TestCupsAuth)
#include "tst_cupsauth.moc"
