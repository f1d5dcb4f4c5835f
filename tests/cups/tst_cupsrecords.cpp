#include "cupsclass.h"
#include "cupsjob.h"
#include "cupsptr.h"
#include "ipplog.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

// Builds an IPP message from lines "GROUP TAG NAME value;value", the tags in
// hex; "-" separates two groups of the same kind.
IppPtr message(const QStringList &lines)
{
    IppPtr ipp(ippNew());
    for (const QString &line : lines) {
        if (line == QLatin1String("-")) {
            ippAddSeparator(ipp.get());
            continue;
        }
        const QStringList parts = line.split(QLatin1Char(' '));
        const auto group = ipp_tag_t(parts.at(0).toInt(nullptr, 16));
        const auto tag = ipp_tag_t(parts.at(1).toInt(nullptr, 16));
        const QByteArray name = parts.at(2).toUtf8();
        const QStringList values = parts.mid(3).join(QLatin1Char(' ')).split(QLatin1Char(';'));
        const int first = values.first().toInt();
        if (tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM) {
            ipp_attribute_t *attr = ippAddInteger(ipp.get(), group, tag, name.constData(), first);
            for (int i = 1; i < values.size(); ++i)
                ippSetInteger(ipp.get(), &attr, i, values.at(i).toInt());
        } else if (tag == IPP_TAG_BOOLEAN) {
            ippAddBoolean(ipp.get(), group, name.constData(), first != 0);
        } else if (tag == IPP_TAG_RANGE) {
            ippAddRange(ipp.get(), group, name.constData(), first, values.last().toInt());
        } else {
            ipp_attribute_t *attr = ippAddString(ipp.get(), group, tag, name.constData(), nullptr,
                                                 values.first().toUtf8().constData());
            for (int i = 1; i < values.size(); ++i)
                ippSetString(ipp.get(), &attr, i, values.at(i).toUtf8().constData());
        }
    }
    return ipp;
}

template <typename Record>
void fill(Record &record, const QStringList &lines)
{
    const IppPtr ipp = message(lines);
    for (ipp_attribute_t *attr = ippFirstAttribute(ipp.get()); attr; attr = ippNextAttribute(ipp.get()))
        record.fillFrom(attr);
}

} // namespace

class TestCupsRecords : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void printerFilling_data();
    void printerFilling();
    void fillingTwiceAppendsLists();
    void classFilling();
    void stateText_data();
    void stateText();
    void dumps();
    void driverFillingAndVendorFilter_data();
    void driverFillingAndVendorFilter();
    void jobFilling();

private:
    QTemporaryDir m_logs;
};

void TestCupsRecords::initTestCase()
{
    IPPLog::openAll(m_logs.path());
}

void TestCupsRecords::printerFilling_data()
{
    QTest::addColumn<QStringList>("attributes");
    QTest::addColumn<QString>("expected"); // "Name|State|Accepting|Media|Copies|Sheets|Uri|URIs"

    QTest::newRow("printer group") << QStringList{"4 42 printer-name q1", "4 23 printer-state 5",
                                                  "4 22 printer-is-accepting-jobs 1"}
                                   << "q1|5|1||0..0|/||";
    QTest::newRow("other groups ignored") << QStringList{"1 42 printer-name q1", "2 23 printer-state 5"}
                                          << "|0|0||0..0|/||";
    QTest::newRow("lists appended") << QStringList{"4 44 media-supported a4;letter", "4 44 media-supported legal",
                                                   "4 33 copies-supported 1;99"}
                                    << "|0|0|a4,letter,legal|1..99|/||";
    QTest::newRow("one banner") << QStringList{"4 42 job-sheets-default standard"} << "|0|0||0..0|standard/||";
    QTest::newRow("two banners") << QStringList{"4 42 job-sheets-default standard;none"}
                                 << "|0|0||0..0|standard/none||";
    QTest::newRow("printer-uri") << QStringList{"4 45 printer-uri ipp://h/printers/q1"}
                                 << "|0|0||0..0|/|ipp://h/printers/q1|";
    QTest::newRow("printer-uri-supported")
        << QStringList{"4 45 printer-uri-supported ipp://h/printers/q1;ipps://h/printers/q1"}
        << "|0|0||0..0|/|ipp://h/printers/q1|ipp://h/printers/q1,ipps://h/printers/q1";
    QTest::newRow("unknown name") << QStringList{"4 41 printer-organization Acme", "4 42 member-names a"}
                                  << "|0|0||0..0|/||";
}

void TestCupsRecords::printerFilling()
{
    QFETCH(QStringList, attributes);
    QFETCH(QString, expected);

    CUPSPrinter p;
    fill(p, attributes);
    const QStringList actual{p.Name(), QString::number(p.State()), QString::number(p.AcceptingJobs()),
                             p.MediaSupported().join(QLatin1Char(',')),
                             QStringLiteral("%1..%2").arg(p.CopiesMin()).arg(p.CopiesMax()),
                             p.JobSheetsStart() + QLatin1Char('/') + p.JobSheetsEnd(), p.Uri(),
                             p.URIs().join(QLatin1Char(','))};
    QCOMPARE(actual.join(QLatin1Char('|')), expected);
}

void TestCupsRecords::fillingTwiceAppendsLists()
{
    const QStringList attributes{"4 42 printer-name q1", "4 23 orientation-requested-supported 3",
                                 "4 45 printer-uri-supported ipp://h/printers/q1"};
    CUPSPrinter printer;
    fill(printer, attributes);
    fill(printer, attributes);
    QCOMPARE(printer.Name(), QStringLiteral("q1"));
    QCOMPARE(printer.OrientationsSupported(), QList<int>({3, 3}));
    QCOMPARE(printer.URIs(), QStringList({"ipp://h/printers/q1", "ipp://h/printers/q1"}));
}

void TestCupsRecords::classFilling()
{
    CUPSClass cls;
    fill(cls, {"1 42 member-names stray", "4 42 printer-name team", "4 45 member-uris ipp://h/printers/b;ipp://h/printers/a",
               "4 42 member-names b;a", "4 42 member-names c", "4 41 printer-info Both"});
    QCOMPARE(cls.Name(), QStringLiteral("team"));
    QCOMPARE(cls.Info(), QStringLiteral("Both"));
    QCOMPARE(cls.MemberURIs(), QStringList({"ipp://h/printers/b", "ipp://h/printers/a"}));
    QCOMPARE(cls.MemberNames(), QStringList({"b", "a", "c"}));
}

void TestCupsRecords::stateText_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("accepting");
    QTest::addColumn<QString>("text");

    QTest::newRow("idle") << 3 << true << "idle, accepting jobs";
    QTest::newRow("processing") << 4 << true << "processing, accepting jobs";
    QTest::newRow("stopped") << 5 << false << "stopped, rejecting jobs";
    QTest::newRow("0") << 0 << true << "unknown, accepting jobs";
    QTest::newRow("6") << 6 << false << "unknown, rejecting jobs";
}

void TestCupsRecords::stateText()
{
    QFETCH(int, state);
    QFETCH(bool, accepting);
    QFETCH(QString, text);

    CUPSPrinter printer;
    printer.setState(state);
    printer.setAcceptingJobs(accepting);
    QCOMPARE(printer.stateText(), text);
}

void TestCupsRecords::dumps()
{
    CUPSClass cls(QStringLiteral("team"));
    cls.setDescription(QStringLiteral("class"));
    cls.setLocation(QStringLiteral("Hall"));
    cls.setInfo(QStringLiteral("Both lasers"));
    cls.setModelInfo(QStringLiteral("Local Printer Class"));
    cls.setLocalURI(QStringLiteral("ipp://localhost:631/classes/team"));
    cls.setUri(QStringLiteral("ipp://h/classes/team"));
    cls.setURIs({QStringLiteral("ipp://h/classes/team"), QStringLiteral("ipps://h/classes/team")});
    cls.setPrinterType(0x1004);
    cls.setMemberNames({QStringLiteral("b"), QStringLiteral("a")});

    const QString printerDump = QStringLiteral("\n\tName/Description/Location: <team/class/Hall>"
                                               "\n\tInfo/ModelInfo: <Both lasers/Local Printer Class>"
                                               "\n\tLocalURI: <ipp://localhost:631/classes/team>"
                                               "\n\tUri: <ipp://h/classes/team>"
                                               "\n\tURIs: <ipp://h/classes/team, ipps://h/classes/team>"
                                               "\n\tPrinterType: 0x00001004");
    QCOMPARE(cls.CUPSPrinter::dump(), printerDump);
    QCOMPARE(cls.dump(), printerDump + QStringLiteral("\n\tprinters: <b, a>"));
}

void TestCupsRecords::driverFillingAndVendorFilter_data()
{
    QTest::addColumn<QStringList>("attributes");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("kept");

    const QString acme = QStringLiteral("4 41 ppd-make Acme");
    const QString model = QStringLiteral("4 41 ppd-make-and-model Generic PCL (Acme compatible)");
    QTest::newRow("manufacturer, other case") << QStringList{acme} << "ACME" << true;
    QTest::newRow("model") << QStringList{"4 41 ppd-make Generic", model} << "acme" << true;
    QTest::newRow("neither") << QStringList{"4 41 ppd-make Globex"} << "ACME" << false;
    QTest::newRow("operation group ignored") << QStringList{"1 41 ppd-make Acme"} << "ACME" << false;
    QTest::newRow("empty filter") << QStringList{"4 41 ppd-make Globex"} << "" << true;
}

void TestCupsRecords::driverFillingAndVendorFilter()
{
    QFETCH(QStringList, attributes);
    QFETCH(QString, filter);
    QFETCH(bool, kept);

    CUPSDriver driver;
    fill(driver, attributes + QStringList{"4 42 ppd-name a.ppd", "4 48 ppd-natural-language de"});
    QCOMPARE(driver.matchesVendor(filter), kept);
    QVERIFY(driver.toString().endsWith(QLatin1String("DriverFile=<a.ppd> Language=<de>")));
}

void TestCupsRecords::jobFilling()
{
    // Job attributes count in any group.
    CUPSJob job;
    fill(job, {"1 21 job-id 17", "2 42 job-name report", "2 45 job-printer-uri ipp://h/printers/q1",
               "2 42 job-originating-user-name root", "1 45 job-uri ipp://h/jobs/17", "2 21 job-k-octets 12",
               "2 21 time-at-creation 1700000000", "2 23 job-state 9"});
    QCOMPARE(QStringList({QString::number(job.Id()), job.Name(), job.Printer(), job.User(), job.Uri(),
                          QString::number(job.KOctets()), QString::number(job.CreationTime()),
                          QString::number(job.State())}),
             QStringList({"17", "report", "ipp://h/printers/q1", "root", "ipp://h/jobs/17", "12", "1700000000", "9"}));
}

QTEST_GUILESS_MAIN(TestCupsRecords)
#include "tst_cupsrecords.moc"
