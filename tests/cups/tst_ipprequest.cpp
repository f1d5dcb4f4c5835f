#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "requests.h"
#include "testsupport.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

class TestIPPRequest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QW_USE_SHARED_SCHEDULER(); }

    void init() { IPPLog::openAll(m_logs.path()); }

    void statusText_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << 0 << "OK";
        QTest::newRow("0x502") << 0x502 << "IPP_SERVICE_UNAVAILABLE - Serice unavailable";
        QTest::newRow("1284, device error") << 1284 << "Unknown code (1284=0x504)";
    }

    void statusText()
    {
        QFETCH(int, status);
        QFETCH(QString, text);
        QCOMPARE(IPPRequest::statusText(status), text);
    }

    void requestWithoutResourceOrSchedulerNeverLogs()
    {
        QTcpServer listener;
        QVERIFY(listener.listen(QHostAddress::LocalHost));
        cupsSetServer(QStringLiteral("127.0.0.1:%1").arg(listener.serverPort()).toUtf8().constData());
        IPPRequest request(IPP_OP_CUPS_GET_PRINTERS);
        QVERIFY(!request.Execute());
        QVERIFY(!request.Execute(""));
        QVERIFY(!listener.waitForNewConnection(300));
        QVERIFY(request.request()); // still unsent

        listener.close(); // nobody listens there now
        QVERIFY(!request.Execute("/"));
        QVERIFY(!request.response());
        QVERIFY(CupsSandbox::useShared());
        QVERIFY(requestLog().isEmpty());
    }

    void requestIsSentOnceAndLogged()
    {
        Requests::GetPrinterAttributes request;
        request.addURI("printer-uri", "ipp://localhost/printers/no_such_queue_here");
        QVERIFY(request.Execute()); // answered, if with an error status
        ipp_t *answer = request.response();
        QCOMPARE(int(ippGetStatusCode(answer)), int(IPP_STATUS_ERROR_NOT_FOUND));
        QVERIFY(!request.Execute());
        QCOMPARE(request.response(), answer);

        Requests::PrintFile print("no_such_queue_here");
        print.setFileName(m_logs.filePath(QStringLiteral("no-such-file.ps")));
        QVERIFY(!print.Execute());
        QCOMPARE(requestLog(), QByteArray("Requesting operation 0xb...\r\n"
                                          "Result status: IPP_NOT_FOUND - Not found\n\r\n"
                                          "Requesting operation 0x2...\r\n"
                                          "Requesting failed!\n\r\n"));
    }

    void logsOpenOnlyOwnRegularFiles_data()
    {
        QTest::addColumn<bool>("symlink");
        QTest::newRow("own old log") << false;
        QTest::newRow("symlink to a file") << true;
    }

    void logsOpenOnlyOwnRegularFiles()
    {
        QFETCH(bool, symlink);
        QTemporaryDir dir;
        const QString log = dir.filePath(QStringLiteral("ipp_request.log"));
        const QString victim = dir.filePath(QStringLiteral("victim"));
        QVERIFY(TestSupport::writeFile(victim, "keep me\n"));
        QVERIFY(symlink ? QFile::link(victim, log) : QFile::copy(victim, log));

        IPPLog::openAll(dir.path());
        QCOMPARE(IPPLog::stream(IPPLog::Request) == nullptr, symlink);
        QVERIFY(IPPLog::stream(IPPLog::Class)); // made afresh
        QCOMPARE(QFile::permissions(dir.filePath(QStringLiteral("ipp_class.log"))),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
        IPPLog::line(IPPLog::Request, "written");
        IPPLog::closeAll();
        QCOMPARE(TestSupport::readFile(victim), QByteArray("keep me\n"));
        QCOMPARE(TestSupport::readFile(log), symlink ? QByteArray("keep me\n") : QByteArray("written\r\n"));
    }

private:
    QByteArray requestLog() const
    {
        IPPLog::flush(IPPLog::Request);
        return TestSupport::readFile(m_logs.filePath(IPPLog::fileName(IPPLog::Request)));
    }

    QTemporaryDir m_logs;
};

QTEST_GUILESS_MAIN(TestIPPRequest)
#include "tst_ipprequest.moc"
