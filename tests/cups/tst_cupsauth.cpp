#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "requests.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <signal.h>
#include <unistd.h>

namespace {

CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;

// The password dialog's stand-in: answers from a script and counts questions.
struct PasswordScript
{
    QStringList answers; // cancels when none is left
    int asked = 0;
} s_script;

bool scriptedAnswer(QString *password)
{
    ++s_script.asked;
    if (s_script.answers.isEmpty())
        return false;
    *password = s_script.answers.takeFirst();
    return true;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// Authentication against a scheduler that wants the password of a system
// user for changing queues. No password is right there (the test can't know
// root's), so every answer is refused.
class TestCupsAuth : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_sandbox.start(&error), qPrintable(error));
        m_sandbox.use();
        CUPSPrinter printer(m_queue);
        printer.setDeviceURI(QStringLiteral("file:/dev/null"));
        printer.setState(IPP_PSTATE_IDLE);
        printer.setAcceptingJobs(true);
        QVERIFY(manager.addPrinter(printer));
        IPPRequest::setPasswordAsker(&scriptedAnswer);
        QVERIFY2(requireAuthentication(), qPrintable(m_sandbox.errorLog()));
    }

    void init()
    {
        IPPLog::openAll(m_logs.path());
        s_script = PasswordScript();
        IPPRequest::forgetPassword();
    }

    void rootStartsAuthenticatedButIsAskedOnce()
    {
        Requests::GetDefaultPrinter request;
        QCOMPARE(IPPRequest::rootAuthenticated(), getuid() == 0);
        // Without a saved password even root is asked, and then no longer counts
        // as authenticated until an answer confirms the password.
        s_script.answers = QStringList{QStringLiteral("pw")};
        QCOMPARE(IPPRequest::passwordCallback("Password?"), "pw");
        QCOMPARE(s_script.asked, 1);
        QVERIFY(!IPPRequest::rootAuthenticated());
    }

    void refusedOrCancelledPromptFailsTheRequest_data()
    {
        QTest::addColumn<QStringList>("answers"); // each refused, then cancel
        QTest::newRow("cancelled") << QStringList();
        QTest::newRow("two refused") << QStringList{"not-the-password", "nor-this-one"};
    }

    void refusedOrCancelledPromptFailsTheRequest()
    {
        QFETCH(QStringList, answers);
        s_script.answers = answers;
        CUPSPrinter printer;
        QVERIFY(manager.findPrinter(m_queue, printer));
        printer.setLocation(QStringLiteral("Vault"));
        QVERIFY(!manager.addPrinter(printer));
        QCOMPARE(s_script.asked, answers.size() + 1);
        QVERIFY(!IPPRequest::hasSavedPassword());
        QVERIFY(requestLog().endsWith("Requesting failed!\n\r\n"));

        // Cancelled means forgotten: the next request asks again.
        QVERIFY(!manager.addPrinter(printer));
        QCOMPARE(s_script.asked, answers.size() + 2);
        QVERIFY(manager.findPrinter(m_queue, printer));
        QVERIFY(printer.Location().isEmpty());
        IPPLog::flushAll();
        for (const IPPLog::Kind kind : {IPPLog::Request, IPPLog::Printer, IPPLog::Driver, IPPLog::Job, IPPLog::Class}) {
            for (const QString &answer : std::as_const(answers))
                QVERIFY(!readAll(m_logs.filePath(IPPLog::fileName(kind))).contains(answer.toUtf8()));
        }
    }

    void savedPasswordIsOfferedOnceWithoutAsking()
    {
        // A typed password that an answered request confirmed ...
        s_script.answers = QStringList{QStringLiteral("typed-earlier")};
        QVERIFY(IPPRequest::passwordCallback("Password?"));
        QMap<QString, CUPSPrinter> printers;
        QVERIFY(manager.listPrinters(printers));
        QVERIFY(IPPRequest::rootAuthenticated());
        QCOMPARE(IPPRequest::passwordCallback("Password?"), "typed-earlier");
        QCOMPARE(s_script.asked, 1);

        // ... is offered once per request; refused, the user is asked (and
        // cancels here) instead of libcups offering it forever.
        QVERIFY(!manager.addPrinter(printers.value(m_queue)));
        QCOMPARE(s_script.asked, 2);
        QVERIFY(!IPPRequest::hasSavedPassword());
    }

private:
    // Makes the scheduler want a password for CUPS-Add-Modify-Printer.
    bool requireAuthentication()
    {
        const QString conf = m_sandbox.directory() + QStringLiteral("/etc/cupsd.conf");
        QByteArray text = readAll(conf);
        const QByteArray anyOperation("  <Limit All>");
        if (!text.contains(anyOperation))
            return false;
        text.replace(anyOperation, "  <Limit CUPS-Add-Modify-Printer>\n    AuthType Basic\n"
                                   "    Require user @SYSTEM\n    Order deny,allow\n  </Limit>\n"
                                   + anyOperation);
        QFile file(conf);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size())
            return false;
        file.close();
        const int pid = readAll(m_sandbox.directory() + QStringLiteral("/cupsd.pid")).trimmed().toInt();
        if (pid <= 0 || ::kill(pid, SIGHUP) != 0)
            return false;
        // The scheduler reloads, then answers again, under the new policy.
        for (int i = 0; i < 100; ++i) {
            QTest::qWait(100);
            Requests::AddPrinter probe;
            probe.addURI("printer-uri", CUPSManager::printerUri(m_queue).toUtf8().constData());
            s_script = PasswordScript();
            if (!probe.Execute() && s_script.asked > 0)
                return true;
        }
        return false;
    }

    QByteArray requestLog() const
    {
        IPPLog::flush(IPPLog::Request);
        return readAll(m_logs.filePath(IPPLog::fileName(IPPLog::Request)));
    }

    CupsSandbox m_sandbox;
    QTemporaryDir m_logs;
    const QString m_queue = QStringLiteral("guarded");
};

QTEST_GUILESS_MAIN(TestCupsAuth)
#include "tst_cupsauth.moc"
