#include "cupsclass.h"
#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "requests.h"
#include "testsupport.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// "group name 0xtag values" for every attribute after charset and language.
QStringList describe(ipp_t *ipp)
{
    QStringList lines;
    char values[1024];
    ippFindAttribute(ipp, "attributes-natural-language", IPP_TAG_ZERO);
    for (ipp_attribute_t *attr; (attr = ippNextAttribute(ipp));) {
        ippAttributeString(attr, values, sizeof values);
        lines << QStringLiteral("%1 %2 0x%3 %4")
                     .arg(ippGetGroupTag(attr))
                     .arg(QString::fromUtf8(ippGetName(attr)))
                     .arg(ippGetValueTag(attr), 2, 16, QLatin1Char('0'))
                     .arg(QString::fromUtf8(values));
    }
    return lines;
}

// Fills record from attributes "GROUP TAG NAME value;value", the tags in hex.
void fill(CUPSClass &record, const QStringList &lines)
{
    const IppPtr ipp(ippNew());
    for (const QString &line : lines) {
        const QStringList parts = line.split(QLatin1Char(' '));
        const auto group = ipp_tag_t(parts.at(0).toInt(nullptr, 16));
        const auto tag = ipp_tag_t(parts.at(1).toInt(nullptr, 16));
        const QByteArray name = parts.at(2).toUtf8();
        const QList<QByteArray> values = parts.mid(3).join(QLatin1Char(' ')).toUtf8().split(';');
        if (tag == IPP_TAG_ENUM) {
            ippAddInteger(ipp.get(), group, tag, name.constData(), values.first().toInt());
        } else {
            ipp_attribute_t *attr =
                ippAddString(ipp.get(), group, tag, name.constData(), nullptr, values.first().constData());
            for (int i = 1; i < values.size(); ++i)
                ippSetString(ipp.get(), &attr, i, values.at(i).constData());
        }
    }
    for (ipp_attribute_t *attr = ippFirstAttribute(ipp.get()); attr; attr = ippNextAttribute(ipp.get()))
        record.fillFrom(attr);
}

} // namespace

class TestIPPRequest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QW_USE_SHARED_SCHEDULER(); }

    void init() { IPPLog::openAll(m_logs.path()); }

    void builtRequests_data()
    {
        QTest::addColumn<QSharedPointer<IPPRequest>>("request");
        QTest::addColumn<int>("operation");
        QTest::addColumn<QString>("resource");
        QTest::addColumn<QStringList>("attributes");
        using P = QSharedPointer<IPPRequest>;
        using L = QStringList;
        // Requests without attributes of their own are answered by the
        // scheduler in tst_cupsmanager and tst_cupsjobs.
        QTest::newRow("GetPrinters(0,mask)") << P(new Requests::GetPrinters(0, 0x20)) << 0x4002 << "/printers/"
                                             << L{"1 printer-type 0x23 0", "1 printer-type-mask 0x23 32"};
        QTest::newRow("GetPPDs(make)") << P(new Requests::GetPPDs("ACME")) << 0x400C << "/"
                                       << L{"1 printer-uri 0x45 ipp://localhost/printers/", "1 ppd-make 0x41 ACME"};

        P add(new Requests::AddPrinter);
        add->addURI("device-uri", "socket://127.0.0.1:9100");
        add->addName("ppd-name", nullptr);
        add->addMimeType("document-format", nullptr);
        add->addInteger("printer-state", 3);
        add->addInteger("copies", 2, IPP_TAG_INTEGER);
        add->addBoolean("printer-is-accepting-jobs", 2);
        add->addURIList("member-uris", {"ipp://h/printers/b", "ipp://h/printers/a"});
        add->addURIList("no-uris", {});
        add->addText("printer-location", "x", IPP_TAG_PRINTER);
        QTest::newRow("AddPrinter with adders")
            << add << 0x4003 << "/admin/"
            << L{"1 device-uri 0x45 socket://127.0.0.1:9100", "1 ppd-name 0x42 ", "1 document-format 0x49 ",
                 "1 printer-state 0x23 idle", "1 copies 0x21 2", "1 printer-is-accepting-jobs 0x22 true",
                 "1 member-uris 0x45 ipp://h/printers/b,ipp://h/printers/a", "4 printer-location 0x41 x"};
    }

    void builtRequests()
    {
        QFETCH(QSharedPointer<IPPRequest>, request);
        QFETCH(int, operation);
        QFETCH(QString, resource);
        QFETCH(QStringList, attributes);
        ipp_t *ipp = request->request();
        QCOMPARE(int(ippGetOperation(ipp)), operation);
        QCOMPARE(ippGetRequestId(ipp), 1);
        QCOMPARE(request->resource(), resource);
        QCOMPARE(ippGetName(ippFirstAttribute(ipp)), "attributes-charset");
        QCOMPARE(ippGetName(ippNextAttribute(ipp)), "attributes-natural-language");
        QCOMPARE(describe(ipp), attributes);
    }

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

    void recordFilling_data()
    {
        QTest::addColumn<QStringList>("attributes");
        QTest::addColumn<QString>("expected"); // "Name|State|Uri|URIs|MemberURIs|Members"
        using L = QStringList;
        // A printer's own attributes: tst_cupsmanager, from the scheduler.
        QTest::newRow("other groups ignored") << L{"1 42 printer-name q1", "2 23 printer-state 5"} << "|0||||";
        QTest::newRow("printer-uri-supported")
            << L{"4 45 printer-uri-supported ipp://h/printers/q1;ipps://h/printers/q1"}
            << "|0|ipp://h/printers/q1|ipp://h/printers/q1,ipps://h/printers/q1||";
        QTest::newRow("class members") << L{"1 42 member-names stray", "4 45 member-uris ipp://h/printers/b",
                                            "4 42 member-names b;a", "4 42 member-names c"}
                                       << "|0|||ipp://h/printers/b|b,a,c";
    }

    void recordFilling()
    {
        QFETCH(QStringList, attributes);
        QFETCH(QString, expected);
        CUPSClass r;
        fill(r, attributes);
        QCOMPARE(QStringList({r.Name(), QString::number(r.State()), r.Uri(), r.URIs().join(','),
                              r.MemberURIs().join(','), r.MemberNames().join(',')})
                     .join('|'),
                 expected);
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
