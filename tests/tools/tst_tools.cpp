#include "cupssandbox.h"
#include "dnssdservice.h"
#include "loopbackprinter.h"
#include "networkprinter.h"
#include "networkprinterlist.h"
#include "snmpdevice.h"
#include "testpaths.h"
#include "testqueue.h"
#include "testsheet.h"
#include "testsupport.h"

#include <QTemporaryDir>
#include <QtTest>

// The companion programs: network discovery and the test page.
class TestTools : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    static QString engine(const QString &name)
    {
        return TestPaths::sourceDir() + "/tests/tools/engines/" + name;
    }

    struct Run
    {
        int status;
        QStringList lines;
        QString errors;
        QString out;
    };

    static Run run(const QString &avahi, const QString &snmp, const QStringList &args = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("NETDISCOVERY_AVAHI_BROWSE", avahi);
        env.insert("NETDISCOVERY_SNMP_BACKEND", snmp);
        const TestSupport::Run r = TestSupport::run(TestPaths::binaryDir() + "/tools/netdiscovery/netdiscovery", args, env);
        QStringList lines = r.out.split('\n', Qt::SkipEmptyParts);
        lines.removeIf([](const QString &l) { return l.startsWith('#'); });
        return { r.status, lines, r.err, r.out };
    }

    static TestSupport::Run printertest(const QStringList &args)
    {
        return TestSupport::run(TestPaths::binaryDir() + "/tools/printertest/printertest", args);
    }

private slots:
    void initTestCase() { QW_USE_SHARED_SCHEDULER(); }

    // A line of either engine: "d" DNS-SD (avahi-browse -p), "s" SNMP (the
    // scheduler's backend); the fields are those the list merges.
    void engineLine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("fields");

        QTest::newRow("resolved")
            << "d=;eth0;IPv4;Acme\\032Laser\\0321610;_ipp._tcp;local;acme.local;192.0.2.7;631;\"txtvers=1\" "
               "\"ty=Acme Laser 1610\""
            << true << "Acme Laser 1610|_ipp._tcp|192.0.2.7|631|Acme Laser 1610";
        QTest::newRow("no ty") << "d=;eth0;IPv6;Office;_printer._tcp;local;o.local;2001:db8::5;515;"
                               << true << "Office|_printer._tcp|2001:db8::5|515|";
        QTest::newRow("escaped dot and semicolon")
            << "d=;eth0;IPv4;a\\.b\\059c;_pdl-datastream._tcp;local;h.local;192.0.2.8;9100;\"ty=x;y\""
            << true << "a.b;c|_pdl-datastream._tcp|192.0.2.8|9100|x;y";
        QTest::newRow("UTF-8 in escapes") << "d=;e;IPv4;Caf\\195\\169;_ipp._tcp;local;h;192.0.2.9;631;"
                                          << true << "Café|_ipp._tcp|192.0.2.9|631|";
        QTest::newRow("quote in ty") << "d=;e;IPv4;n;_ipp._tcp;local;h;192.0.2.9;631;\"ty=The \\\"Big\\\" One\""
                                     << true << "n|_ipp._tcp|192.0.2.9|631|The \"Big\" One";
        QTest::newRow("not resolved") << "d+;eth0;IPv4;Acme;_ipp._tcp;local" << false << "";
        QTest::newRow("no address") << "d=;eth0;IPv4;Acme;_ipp._tcp;local;h;;631;" << false << "";
        QTest::newRow("garbage") << "d=;;;" << false << "";
        QTest::newRow("socket") << "snetwork socket://192.0.2.10 \"Acme Laser\" \"Acme Laser 192.0.2.10\" "
                                   "\"MFG:Acme;MDL:Laser;\" \"\""
                                << true << "socket|192.0.2.10|Acme Laser|MFG:Acme;MDL:Laser;";
        QTest::newRow("lpd, IPv6") << "snetwork lpd://[2001:db8::7]/queue \"X\" \"X\" \"\" \"\"" << true
                                   << "lpd|2001:db8::7|X|";
        QTest::newRow("not network") << "sdirect usb://Acme/Laser \"A\" \"B\" \"\" \"\"" << false << "";
        QTest::newRow("no host") << "snetwork socket:// \"A\"" << false << "";
    }

    void engineLine()
    {
        QFETCH(QString, line);
        QFETCH(bool, ok);
        QFETCH(QString, fields);
        DnsSdService s;
        SnmpDevice d;
        const bool dnsSd = line.startsWith('d');
        QCOMPARE(dnsSd ? DnsSdService::parse(line.mid(1), &s) : SnmpDevice::parse(line.mid(1), &d), ok);
        if (ok && dnsSd)
            QCOMPARE(QStringList({ s.name, s.type, s.address, QString::number(s.port), s.productName }).join('|'),
                     fields);
        else if (ok)
            QCOMPARE(QStringList({ d.scheme, d.address, d.makeAndModel, d.deviceId }).join('|'), fields);
    }

    void merge_data()
    {
        QTest::addColumn<QStringList>("input");
        QTest::addColumn<QStringList>("output");

        const QString ipp = "=;e;IPv4;Acme\\032One;_ipp._tcp;local;h;192.0.2.20;8631;\"ty=Acme One\" \"rp=ipp/one\"";
        const QString raw = "=;e;IPv4;Acme\\032One;_pdl-datastream._tcp;local;h;192.0.2.20;9100;";
        const QString lpd = "=;e;IPv4;Acme\\032One;_printer._tcp;local;h;192.0.2.20;515;";
        const QString one = "ip: 192.0.2.20 slp: 1,1,1,1 snmp: 0,0,0 dsc: \"Acme One\" uri: ipp://192.0.2.20:8631/ipp/one";
        QTest::newRow("three services, one line, the IPP one's URI")
            << QStringList{ "d" + raw, "d" + lpd, "d" + ipp } << QStringList{ one };
        QTest::newRow("service name until ty arrives")
            << QStringList{ "d" + raw }
            << QStringList{ "ip: 192.0.2.20 slp: 1,0,0,1 snmp: 0,0,0 dsc: \"Acme One\" uri: socket://192.0.2.20:9100" };
        QTest::newRow("_printer._tcp on port 0 is no LPD")
            << QStringList{ "d" + QString(ipp).replace("_ipp.", "_ipps."), "d" + QString(lpd).replace(";515;", ";0;") }
            << QStringList{ "ip: 192.0.2.20 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"Acme One\" uri: ipps://192.0.2.20:8631/ipp/one" };
        QTest::newRow("LPD queue and port; IPP without rp")
            << QStringList{ "d=;e;IPv4;L;_printer._tcp;local;h;192.0.2.21;1515;\"rp=/my queue\"",
                            "d=;e;IPv4;I;_ipp._tcp;local;h;192.0.2.21;631;" }
            << QStringList{ "ip: 192.0.2.21 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"I\" uri: ipp://192.0.2.21:631/ipp/print",
                            "ip: 192.0.2.21 slp: 1,0,1,0 snmp: 0,0,0 dsc: \"L\" uri: lpd://192.0.2.21:1515/my%20queue" };
        QTest::newRow("a server's queues of one model: by instance name")
            << QStringList{ "d=;e;IPv4;Front\\032@\\032srv;_ipp._tcp;local;h;192.0.2.22;631;\"ty=M\" \"rp=printers/front\"",
                            "d=;e;IPv4;Back\\032@\\032srv;_ipp._tcp;local;h;192.0.2.22;631;\"ty=M\" \"rp=printers/back\"" }
            << QStringList{ "ip: 192.0.2.22 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"Back @ srv\" uri: ipp://192.0.2.22:631/printers/back",
                            "ip: 192.0.2.22 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"Front @ srv\" uri: ipp://192.0.2.22:631/printers/front" };
        QTest::newRow("SNMP only: no URI")
            << QStringList{ "snetwork socket://192.0.2.30 \"Globex Jet\" \"x\" \"MFG:G;\" \"\"" }
            << QStringList{ "ip: 192.0.2.30 slp: 0,0,0,0 snmp: 1,1,1 dsc: \"Globex Jet\"" };
        QTest::newRow("SNMP first, then DNS-SD: one printer, the record's URI")
            << QStringList{ "snetwork socket://192.0.2.20 \"Model\" \"x\" \"\" \"\"", "d" + ipp }
            << QStringList{ QString(one).replace("1,1,1,1 snmp: 0,0,0", "1,1,0,0 snmp: 1,1,0") };
        QTest::newRow("numeric order, IPv4 before IPv6")
            << QStringList{ "d=;e;IPv6;b;_ipp._tcp;local;h;2001:db8::1;631;",
                            "d=;e;IPv4;c;_ipp._tcp;local;h;192.0.2.100;631;",
                            "d=;e;IPv4;a;_ipp._tcp;local;h;127.0.0.1;60000;" }
            << QStringList{ "ip: 127.0.0.1 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"a\" uri: ipp://127.0.0.1:60000/ipp/print",
                            "ip: 192.0.2.100 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"c\" uri: ipp://192.0.2.100:631/ipp/print",
                            "ip: 2001:db8::1 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"b\" uri: ipp://[2001:db8::1]:631/ipp/print" };
        QTest::newRow("IPv6 spellings are one address")
            << QStringList{ "d=;e;IPv6;b;_ipp._tcp;local;h;2001:DB8:0::1;631;\"rp=\\\"x\\\"\"",
                            "d=;e;IPv6;b;_printer._tcp;local;h;2001:db8::1;515;" }
            << QStringList{ "ip: 2001:db8::1 slp: 1,1,1,0 snmp: 0,0,0 dsc: \"b\" uri: ipp://[2001:db8::1]:631/%22x%22" };
        QTest::newRow("link-local left out")
            << QStringList{ "d=;e;IPv6;b;_ipp._tcp;local;h;fe80::1;631;", "d=;e;IPv4;b;_ipp._tcp;local;h;169.254.1.1;631;" }
            << QStringList{};
        QTest::newRow("other service types only mark the answer")
            << QStringList{ "d=;e;IPv4;s;_scanner._tcp;local;h;192.0.2.5;80;" }
            << QStringList{ "ip: 192.0.2.5 slp: 1,0,0,0 snmp: 0,0,0 dsc: \"s\"" };
    }

    void merge()
    {
        QFETCH(QStringList, input);
        QFETCH(QStringList, output);
        NetworkPrinterList list;
        for (const QString &in : input) {
            if (in.startsWith('d')) {
                DnsSdService s;
                QVERIFY(DnsSdService::parse(in.mid(1), &s));
                list.add(s);
            } else {
                SnmpDevice d;
                QVERIFY(SnmpDevice::parse(in.mid(1), &d));
                list.add(d);
            }
        }
        QCOMPARE(list.lines(), output);
    }

    void description_data()
    {
        QTest::addColumn<QString>("in");
        QTest::addColumn<QString>("out");

        QTest::newRow("quotes") << "The \"Big\" One" << "The 'Big' One";
        QTest::newRow("line breaks") << "two\nlines\r\tand tab" << "two lines and tab";
        QTest::newRow("95 bytes kept") << QString(100, 'x') << QString(95, 'x');
        // 47 two-byte characters are 94 bytes; the 48th would split.
        QTest::newRow("cut on a character") << QString(60, QChar(0xe9)) << QString(47, QChar(0xe9));
        QTest::newRow("surrogate pair not split")
            << QString("x") + QString::fromUtf8("\xf0\x9f\x96\xa8").repeated(30)
            << QString("x") + QString::fromUtf8("\xf0\x9f\x96\xa8").repeated(23);
    }

    void description()
    {
        QFETCH(QString, in);
        QFETCH(QString, out);
        QCOMPARE(NetworkPrinter::cleanDescription(in), out);
    }

    // The real program against stand-in engines.
    void program()
    {
        const QString avahi = engine("avahi-browse");
        const QString snmp = engine("snmp");
        Run r = run(avahi, snmp, { "-c", "secret" });
        QCOMPARE(r.status, 0);
        QCOMPARE(r.lines, (QStringList{ "ip: 192.0.2.20 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"Acme 'One'\" uri: ipp://192.0.2.20:631/ipp/print",
                                        "ip: 192.0.2.30 slp: 0,0,0,0 snmp: 1,1,0 dsc: \"Globex Jet\"",
                                        "ip: 2001:db8::20 slp: 1,0,0,1 snmp: 0,0,0 dsc: \"Acme One\" uri: socket://[2001:db8::20]:9100" }));
        QCOMPARE(r.errors, QString());

        // Without the community the stand-in answers nothing.
        QCOMPARE(run(avahi, snmp).lines.size(), 2);
    }

    void unavailableEngines()
    {
        Run r = run(engine("daemon-down"), m_dir.filePath("no-such-backend"));
        QCOMPARE(r.status, 0);
        QVERIFY(r.lines.isEmpty());
        QVERIFY2(r.errors.contains("DNS-SD: Failed to create client object: Daemon not running"), qPrintable(r.errors));
        QVERIFY2(r.errors.contains("SNMP: " + m_dir.filePath("no-such-backend") + " not found"), qPrintable(r.errors));
        // One line per reason, not one per service type; the wizard reads it too.
        QCOMPARE(r.errors.count("DNS-SD"), 1);
        QVERIFY2(r.out.contains("\n# unavailable: DNS-SD: Failed to create client object: Daemon not running\n"),
                 qPrintable(r.out));

        r = run(m_dir.filePath("no-such-avahi"), "none");
        QVERIFY2(r.errors.contains("could not be started"), qPrintable(r.errors));
    }

    // An engine that never ends is stopped at the deadline; what it said
    // before that still counts.
    void timeBound()
    {
        const QString slow = engine("slow");
        Run r = run(slow, slow, { "-t", "1" });
        QCOMPARE(r.status, 0);
        QCOMPARE(r.lines, QStringList{ "ip: 192.0.2.40 slp: 1,1,0,0 snmp: 0,0,0 dsc: \"Slow\" uri: ipp://192.0.2.40:631/ipp/print" });
        QVERIFY2(r.errors.contains("no complete answer within 1000 ms"), qPrintable(r.errors));
    }

    void badOptions_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("status");
        QTest::newRow("-t 0") << QStringList{ "-t", "0" } << 2;
        QTest::newRow("unknown") << QStringList{ "-z" } << 2;
        QTest::newRow("-h") << QStringList{ "-h" } << 0;
    }

    void badOptions()
    {
        QFETCH(QStringList, args);
        QFETCH(int, status);
        QCOMPARE(run("none", "none", args).status, status);
    }

    void pageSize_data()
    {
        QTest::addColumn<QString>("media");
        QTest::addColumn<int>("size");
        QTest::newRow("letter") << "na_letter_8.5x11in" << int(QPageSize::Letter);
        QTest::newRow("PPD name") << "Letter" << int(QPageSize::Letter);
        QTest::newRow("unknown keeps the fallback") << "om_small-photo_100x150mm" << int(QPageSize::B5);
    }

    void pageSize()
    {
        QFETCH(QString, media);
        QFETCH(int, size);
        QCOMPARE(int(TestSheet::pageSizeForMedia(media, QPageSize(QPageSize::B5)).id()), size);
    }

    void sheetIsOnePdfPage()
    {
        QTemporaryDir dir;
        TestSheet sheet;
        sheet.queue = "Office";
        sheet.deviceUri = "socket://127.0.0.1:9100";
        sheet.pageSize = QPageSize(QPageSize::Letter);
        const QString pdf = dir.filePath("t.pdf");
        QVERIFY(sheet.writePdf(pdf));
        const QByteArray data = TestSupport::readFile(pdf);
        QVERIFY(data.startsWith("%PDF-"));
        QCOMPARE(data.count("/Type /Page\n") + data.count("/Type /Page\r") + data.count("/Type /Page "), 1);
        // Letter is 612 x 792 points.
        QVERIFY(QRegularExpression("MediaBox \\[0 0 612(\\.0*)? 792(\\.0*)?\\]").match(QString::fromLatin1(data)).hasMatch());
        QVERIFY(!sheet.writePdf(dir.filePath("missing/dir/t.pdf")));
    }

    // Success is exit status 1, the sense the wizard reads.
    void printsToQueue()
    {
        LoopbackPrinter printer;
        const TestQueue queue("printertest_ok", printer.deviceUri(), "acme-laser1610.ppd");
        QVERIFY2(queue.isMade(), qPrintable(queue.error()));
        const TestSupport::Run r = printertest({ queue.name() });
        QCOMPARE(r.status, 1);
        QVERIFY2(QRegularExpression("^printertest: job \\d+ sent to printertest_ok\n$").match(r.out).hasMatch(),
                 qPrintable(r.out));
        const QByteArray job = printer.waitForJob(60000);
        QVERIFY(!job.isNull());
        QVERIFY(job.startsWith("%!PS"));
    }

    void failures_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown queue") << QStringList{ "no_such_queue" } << "there is no printer 'no_such_queue'";
        QTest::newRow("no argument") << QStringList{} << "usage: printertest QUEUE";
        QTest::newRow("queue rejecting jobs") << QStringList{ "printertest_rejecting" } << "did not take the test page";
    }

    void failures()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        const TestQueue rejecting("printertest_rejecting", "socket://127.0.0.1:9", "acme-laser1610.ppd", false);
        QVERIFY2(rejecting.isMade() && CupsSandbox::run({ "cupsreject", rejecting.name() }) == 0,
                 qPrintable(rejecting.error()));
        const TestSupport::Run r = printertest(args);
        QCOMPARE(r.status, 0);
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
    }
};

QTEST_MAIN(TestTools)
#include "tst_tools.moc"
