#include "cupsmanager.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "passworddialog.h"
#include "requests.h"

#include <QApplication>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <signal.h>
#include <unistd.h>

namespace {

CUPSManager &manager = CUPSManager::m_CUPSManagerInstance;

// The password dialog's stand-in: answers from a script and counts questions.
struct PasswordScript
{
    QStringList answers; // a null entry cancels
    int asked = 0;
} s_script;

bool scriptedAnswer(QString *password)
{
    ++s_script.asked;
    const QString answer = s_script.answers.isEmpty() ? QString() : s_script.answers.takeFirst();
    if (!answer.isNull())
        *password = answer;
    return !answer.isNull();
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

// Authentication against a scheduler that wants the password of a system
// user for changing queues and rejecting jobs. No password is right there
// (the test can't know root's), so every answer is refused.
class TestCupsAuth : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void rootStartsAuthenticatedButIsAskedOnce();
    void refusedOrCancelledPromptFailsTheRequest_data();
    void refusedOrCancelledPromptFailsTheRequest();
    void savedPasswordIsOfferedOnceWithoutAsking();
    void disableWhoseRejectIsRefusedNeverPauses();
    void dialog_data();
    void dialog();

private:
    bool requireAuthentication();
    QByteArray requestLog() const;

    CupsSandbox m_sandbox;
    QTemporaryDir m_logs;
    const QString m_queue = QStringLiteral("guarded");
};

void TestCupsAuth::initTestCase()
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

void TestCupsAuth::init()
{
    IPPLog::openAll(m_logs.path());
    s_script = PasswordScript();
    IPPRequest::setPasswordAsker(&scriptedAnswer);
    IPPRequest::forgetPassword();
}

bool TestCupsAuth::requireAuthentication()
{
    const QString conf = m_sandbox.directory() + QStringLiteral("/etc/cupsd.conf");
    QByteArray text = readAll(conf);
    const QByteArray anyOperation("  <Limit All>");
    if (!text.contains(anyOperation))
        return false;
    text.replace(anyOperation, "  <Limit CUPS-Add-Modify-Printer CUPS-Reject-Jobs>\n    AuthType Basic\n"
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

QByteArray TestCupsAuth::requestLog() const
{
    IPPLog::flush(IPPLog::Request);
    return readAll(m_logs.filePath(IPPLog::fileName(IPPLog::Request)));
}

void TestCupsAuth::rootStartsAuthenticatedButIsAskedOnce()
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

void TestCupsAuth::refusedOrCancelledPromptFailsTheRequest_data()
{
    QTest::addColumn<QStringList>("answers"); // each refused, then cancel
    QTest::newRow("cancelled") << QStringList();
    QTest::newRow("two refused") << QStringList{"not-the-password", "nor-this-one"};
}

void TestCupsAuth::refusedOrCancelledPromptFailsTheRequest()
{
    QFETCH(QStringList, answers);
    const int questions = int(answers.size()) + 1;
    s_script.answers = answers;
    CUPSPrinter printer;
    QVERIFY(manager.findPrinter(m_queue, printer));
    printer.setLocation(QStringLiteral("Vault"));
    QVERIFY(!manager.addPrinter(printer));
    QCOMPARE(s_script.asked, questions);
    QVERIFY(!IPPRequest::hasSavedPassword());
    QVERIFY(requestLog().endsWith("Requesting failed!\n\r\n"));

    // Cancelled means forgotten: the next request asks again.
    QVERIFY(!manager.addPrinter(printer));
    QCOMPARE(s_script.asked, questions + 1);
    QVERIFY(manager.findPrinter(m_queue, printer));
    QVERIFY(printer.Location().isEmpty());
    IPPLog::flushAll();
    for (const IPPLog::Kind kind : {IPPLog::Request, IPPLog::Printer, IPPLog::Driver, IPPLog::Job, IPPLog::Class}) {
        const QByteArray log = readAll(m_logs.filePath(IPPLog::fileName(kind)));
        for (const QString &answer : std::as_const(answers))
            QVERIFY(!log.contains(answer.toUtf8()));
    }
}

void TestCupsAuth::savedPasswordIsOfferedOnceWithoutAsking()
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

void TestCupsAuth::disableWhoseRejectIsRefusedNeverPauses()
{
    QVERIFY(!manager.disablePrinter(m_queue));
    QCOMPARE(s_script.asked, 1);
    QCOMPARE(requestLog().count("Requesting operation 0x4009..."), 1);
    QVERIFY(!requestLog().contains("Requesting operation 0x10..."));
    QCOMPARE(manager.LastStatus, 0);
    CUPSPrinter printer;
    QVERIFY(manager.findPrinter(m_queue, printer));
    QCOMPARE(printer.stateText(), QStringLiteral("idle, accepting jobs"));
}

void TestCupsAuth::dialog_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");

    QTest::newRow("Enter") << "s3cret" << int(Qt::Key_Return);
    QTest::newRow("Enter on nothing") << "" << int(Qt::Key_Return);
    QTest::newRow("Escape") << "s3cret" << int(Qt::Key_Escape);
}

void TestCupsAuth::dialog()
{
    QFETCH(QString, typed);
    QFETCH(int, key);

    // The real dialog behind the callback, answered with key events.
    IPPRequest::setPasswordAsker(nullptr);
    QString title;
    QString label;
    bool hidden = false;
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        title = dialog->windowTitle();
        label = dialog->findChild<QLabel *>()->text();
        auto *edit = dialog->findChild<QLineEdit *>();
        hidden = edit->echoMode() == QLineEdit::Password && edit->text().isEmpty();
        QTest::keyClicks(edit, typed);
        QTest::keyClick(edit, Qt::Key(key));
    });
    const QByteArray answer(IPPRequest::passwordCallback("Password for root on localhost?"));
    QCOMPARE(title, QStringLiteral("Authorization"));
    QCOMPARE(label, QStringLiteral("Please, enter the root password:"));
    QVERIFY(hidden);
    const bool confirmed = key == Qt::Key_Return;
    QCOMPARE(IPPRequest::hasSavedPassword(), confirmed);
    QCOMPARE(QString::fromLatin1(answer), confirmed ? typed : QString());
}

QTEST_MAIN(TestCupsAuth)
#include "tst_cupsauth.moc"
