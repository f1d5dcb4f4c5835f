#include "cupssandbox.h"
#include "ipplog.h"
#include "ipprequest.h"
#include "requests.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

namespace {

// "group name 0xtag value,value" for every attribute after charset and language.
QStringList describe(ipp_t *ipp)
{
    QStringList lines;
    ipp_attribute_t *attr = ippFirstAttribute(ipp);
    for (int skip = 0; skip < 2 && attr; ++skip)
        attr = ippNextAttribute(ipp);
    for (; attr; attr = ippNextAttribute(ipp)) {
        QStringList values;
        for (int i = 0; i < ippGetCount(attr); ++i) {
            const ipp_tag_t tag = ippGetValueTag(attr);
            values << (tag == IPP_TAG_BOOLEAN                          ? QString::number(ippGetBoolean(attr, i))
                       : tag == IPP_TAG_ENUM || tag == IPP_TAG_INTEGER ? QString::number(ippGetInteger(attr, i))
                                                                       : QString::fromUtf8(ippGetString(attr, i, nullptr)));
        }
        lines << QStringLiteral("%1 %2 0x%3 %4")
                     .arg(ippGetGroupTag(attr))
                     .arg(QString::fromUtf8(ippGetName(attr)))
                     .arg(ippGetValueTag(attr), 2, 16, QLatin1Char('0'))
                     .arg(values.join(QLatin1Char(',')));
    }
    return lines;
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestIPPRequest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void builtRequests_data();
    void builtRequests();
    void statusText_data();
    void statusText();
    void requestWithoutResourceOrSchedulerNeverLogs();
    void requestIsSentOnceAndLogged();
    void logsOpenOnlyOwnRegularFiles_data();
    void logsOpenOnlyOwnRegularFiles();
    void attributeDump_data();
    void attributeDump();

private:
    QByteArray requestLog() const;

    QTemporaryDir m_logs;
};

void TestIPPRequest::initTestCase()
{
    QString error;
    QVERIFY2(CupsSandbox::useShared(&error), qPrintable(error));
    QVERIFY(m_logs.isValid());
}

void TestIPPRequest::init()
{
    IPPLog::openAll(m_logs.path());
}

QByteArray TestIPPRequest::requestLog() const
{
    IPPLog::flush(IPPLog::Request);
    return readAll(m_logs.filePath(IPPLog::fileName(IPPLog::Request)));
}

void TestIPPRequest::builtRequests_data()
{
    QTest::addColumn<QSharedPointer<IPPRequest>>("request");
    QTest::addColumn<int>("operation");
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QStringList>("attributes");

    using P = QSharedPointer<IPPRequest>;
    const QString user = QStringLiteral("1 requesting-user-name 0x42 root");
    const QString uri = QStringLiteral("ipp://localhost/printers/q1");
    const QString uriAttr = QStringLiteral("1 printer-uri 0x45 ") + uri;
    QTest::newRow("PrintFile") << P(new Requests::PrintFile("q1")) << 0x0002 << "/printers/q1" << QStringList{user};
    QTest::newRow("CancelJob") << P(new Requests::CancelJob("ipp://h/jobs/7")) << 0x0008 << "/jobs/"
                               << QStringList{"1 job-uri 0x45 ipp://h/jobs/7", user};
    QTest::newRow("GetJobs") << P(new Requests::GetJobs) << 0x000A << "/"
                             << QStringList{QStringLiteral("1 printer-uri 0x45 ipp://%1/jobs/").arg(cupsServer())};
    QTest::newRow("GetPrinterAttributes") << P(new Requests::GetPrinterAttributes) << 0x000B << "/printers/"
                                          << QStringList();
    QTest::newRow("GetDefaultPrinter") << P(new Requests::GetDefaultPrinter) << 0x4001 << "/printers/"
                                       << QStringList();
    QTest::newRow("GetPrinters(0,0)") << P(new Requests::GetPrinters(0, 0)) << 0x4002 << "/printers/"
                                      << QStringList();
    QTest::newRow("GetPrinters(0,mask)") << P(new Requests::GetPrinters(0, 0x20)) << 0x4002 << "/printers/"
                                         << QStringList{"1 printer-type 0x23 0", "1 printer-type-mask 0x23 32"};
    QTest::newRow("GetPrinters(type,0)") << P(new Requests::GetPrinters(4, 0)) << 0x4002 << "/printers/"
                                         << QStringList{"1 printer-type 0x23 4", "1 printer-type-mask 0x23 0"};
    QTest::newRow("DeletePrinter") << P(new Requests::DeletePrinter(uri.toUtf8())) << 0x4004 << "/admin/"
                                   << QStringList{uriAttr};
    QTest::newRow("GetClasses") << P(new Requests::GetClasses) << 0x4005 << "/classes/" << QStringList();
    QTest::newRow("AddClass") << P(new Requests::AddClass) << 0x4006 << "/admin/" << QStringList();
    QTest::newRow("DeleteClass") << P(new Requests::DeleteClass("ipp://h/classes/c")) << 0x4007 << "/admin/"
                                 << QStringList{"1 printer-uri 0x45 ipp://h/classes/c"};
    QTest::newRow("SetDefaultPrinter") << P(new Requests::SetDefaultPrinter(uri.toUtf8())) << 0x400A << "/admin/"
                                       << QStringList{uriAttr};
    const QString ppdUri = QStringLiteral("1 printer-uri 0x45 ipp://localhost/printers/");
    QTest::newRow("GetPPDs()") << P(new Requests::GetPPDs) << 0x400C << "/" << QStringList{ppdUri};
    QTest::newRow("GetPPDs(make)") << P(new Requests::GetPPDs("ACME")) << 0x400C << "/"
                                   << QStringList{ppdUri, "1 ppd-make 0x41 ACME"};

    // The adders, in the order of the calls.
    P add(new Requests::AddPrinter);
    add->addURI("device-uri", "socket://127.0.0.1:9100");
    add->addName("ppd-name", nullptr);
    add->addText("printer-info", nullptr);
    add->addMimeType("document-format", nullptr);
    add->addInteger("printer-state", 3);
    add->addInteger("copies", 2, IPP_TAG_INTEGER);
    add->addBoolean("printer-is-accepting-jobs", 2);
    add->addBoolean("printer-is-shared", 0);
    add->addURIList("member-uris", {"ipp://h/printers/b", "ipp://h/printers/a"});
    add->addURIList("no-uris", {});
    add->addText("printer-location", "x", IPP_TAG_PRINTER);
    QTest::newRow("AddPrinter with adders")
        << add << 0x4003 << "/admin/"
        << QStringList{"1 device-uri 0x45 socket://127.0.0.1:9100", "1 ppd-name 0x42 ", "1 printer-info 0x41 ",
                       "1 document-format 0x49 ", "1 printer-state 0x23 3", "1 copies 0x21 2",
                       "1 printer-is-accepting-jobs 0x22 1", "1 printer-is-shared 0x22 0",
                       "1 member-uris 0x45 ipp://h/printers/b,ipp://h/printers/a", "4 printer-location 0x41 x"};
}

void TestIPPRequest::builtRequests()
{
    QFETCH(QSharedPointer<IPPRequest>, request);
    QFETCH(int, operation);
    QFETCH(QString, resource);
    QFETCH(QStringList, attributes);

    ipp_t *ipp = request->request();
    QCOMPARE(int(ippGetOperation(ipp)), operation);
    QCOMPARE(ippGetRequestId(ipp), 1);
    QCOMPARE(request->resource(), resource);
    ipp_attribute_t *charset = ippFirstAttribute(ipp);
    QCOMPARE(ippGetName(charset), "attributes-charset");
    QCOMPARE(int(ippGetValueTag(charset)), 0x47);
    ipp_attribute_t *language = ippNextAttribute(ipp);
    QCOMPARE(ippGetName(language), "attributes-natural-language");
    QCOMPARE(int(ippGetValueTag(language)), 0x48);
    QCOMPARE(describe(ipp), attributes);
}

void TestIPPRequest::statusText_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");

    QTest::newRow("0") << 0 << "OK";
    QTest::newRow("0x40C") << 0x40C << "IPP_URI_SCHEME - URI sheme";
    QTest::newRow("0x502") << 0x502 << "IPP_SERVICE_UNAVAILABLE - Serice unavailable";
    QTest::newRow("1284, device error") << 1284 << "Unknown code (1284=0x504)";
    QTest::newRow("0x40F") << 0x40F << "Unknown code (1039=0x40f)";
}

void TestIPPRequest::statusText()
{
    QFETCH(int, status);
    QFETCH(QString, text);
    QCOMPARE(IPPRequest::statusText(status), text);
}

void TestIPPRequest::requestWithoutResourceOrSchedulerNeverLogs()
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

void TestIPPRequest::requestIsSentOnceAndLogged()
{
    Requests::GetPrinterAttributes request;
    request.addURI("printer-uri", "ipp://localhost/printers/no_such_queue_here");
    QVERIFY(request.Execute()); // answered, if with an error status
    ipp_t *answer = request.response();
    QCOMPARE(int(ippGetStatusCode(answer)), int(IPP_STATUS_ERROR_NOT_FOUND));
    QVERIFY(!request.request());
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

void TestIPPRequest::logsOpenOnlyOwnRegularFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("opened");

    QTest::newRow("own old log") << "own" << true;
    QTest::newRow("symlink to a file") << "symlink" << false;
    QTest::newRow("dangling symlink") << "dangling" << false;
    QTest::newRow("second hard link") << "hardlink" << false;
    QTest::newRow("another user's file") << "foreign" << false;
}

void TestIPPRequest::logsOpenOnlyOwnRegularFiles()
{
    QFETCH(QString, kind);
    QFETCH(bool, opened);

    QTemporaryDir dir;
    const QByteArray log = QFile::encodeName(dir.filePath(QStringLiteral("ipp_request.log")));
    const QString victim = dir.filePath(QStringLiteral("victim"));
    QFile file(victim);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("keep me\n") == 8);
    file.close();
    if (kind == QLatin1String("own") || kind == QLatin1String("foreign"))
        QVERIFY(file.copy(QFile::decodeName(log)));
    if (kind == QLatin1String("symlink"))
        QVERIFY(file.link(QFile::decodeName(log)));
    if (kind == QLatin1String("dangling"))
        QCOMPARE(::symlink("created-through-link", log.constData()), 0);
    if (kind == QLatin1String("hardlink"))
        QCOMPARE(::link(QFile::encodeName(victim).constData(), log.constData()), 0);
    if (kind == QLatin1String("foreign") && ::chown(log.constData(), 65534, 65534) != 0)
        QSKIP("Only root can give a file to another user");

    IPPLog::openAll(dir.path());
    QCOMPARE(IPPLog::stream(IPPLog::Request) != nullptr, opened);
    QVERIFY(IPPLog::stream(IPPLog::Class)); // made afresh
    QCOMPARE(QFile::permissions(dir.filePath(QStringLiteral("ipp_class.log"))),
             QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);
    IPPLog::line(IPPLog::Request, "written");
    IPPLog::closeAll();
    QCOMPARE(readAll(victim), QByteArray("keep me\n"));
    QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("created-through-link"))));
    if (opened)
        QCOMPARE(readAll(QFile::decodeName(log)), QByteArray("written\r\n"));
}

void TestIPPRequest::attributeDump_data()
{
    QTest::addColumn<int>("attribute");
    QTest::addColumn<QString>("text");

    const QString head = QStringLiteral("\n*************\nProperty name: %1\r\nValues: %2\r\nValue tag: 0x%3\r\n");
    QTest::newRow("name, first value only") << 0 << head.arg("job-sheets-default", "2", "42") + "String: none\r\n";
    QTest::newRow("integer") << 1 << head.arg("copies-default", "1", "21") + "Integer: 7\r\n";
    QTest::newRow("enum") << 2 << head.arg("printer-state", "1", "23");
    QTest::newRow("keyword") << 3 << head.arg("media-default", "1", "44");
    QTest::newRow("octet string") << 4 << head.arg("printer-alert", "1", "30") + "String: code=other\r\n";
    QTest::newRow("group separator") << 5 << QStringLiteral("\n----------\nProperty with no name!\n\r\n");
}

void TestIPPRequest::attributeDump()
{
    QFETCH(int, attribute);
    QFETCH(QString, text);

    IppPtr ipp(ippNew());
    const char *sheets[] = {"none", "standard"};
    switch (attribute) {
    case 0: ippAddStrings(ipp.get(), IPP_TAG_PRINTER, IPP_TAG_NAME, "job-sheets-default", 2, nullptr, sheets); break;
    case 1: ippAddInteger(ipp.get(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, "copies-default", 7); break;
    case 2: ippAddInteger(ipp.get(), IPP_TAG_PRINTER, IPP_TAG_ENUM, "printer-state", 3); break;
    case 3: ippAddString(ipp.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "media-default", nullptr, "a4"); break;
    case 4: ippAddOctetString(ipp.get(), IPP_TAG_PRINTER, "printer-alert", "code=other", 10); break;
    case 5: ippAddSeparator(ipp.get()); break;
    }
    IPPLog::dumpAttribute(IPPLog::Printer, ippFirstAttribute(ipp.get()));
    IPPLog::flush(IPPLog::Printer);
    QCOMPARE(QString::fromUtf8(readAll(m_logs.filePath(IPPLog::fileName(IPPLog::Printer)))), text);
}

QTEST_GUILESS_MAIN(TestIPPRequest)
#include "tst_ipprequest.moc"
