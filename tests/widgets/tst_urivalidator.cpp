#include "urivalidator.h"

#include <QtTest>

class TestUriValidator : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void validate_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<bool>("ipv6");
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("acceptable");
        QTest::addColumn<QString>("output");
        auto row = [](const char *name, int scheme, bool ipv6, const QString &in, bool ok, const QString &out) {
            QTest::newRow(name) << scheme << ipv6 << in << ok << out;
        };
        const bool v6 = true, v4 = false, ok = true, bad = false;

        row("host:port, prefix added", 1, v4, "printer:631", ok, "ipp://printer:631");
        row("port 65535", 1, v4, "ipp://printer:65535", ok, "ipp://printer:65535");
        row("port 65536", 1, v4, "ipp://printer:65536", bad, "ipp://printer:65536");
        row("port overflowing", 1, v4, "ipp://p:99999999999999999999", bad, "ipp://p:99999999999999999999");
        row("empty port", 1, v4, "ipp://printer:", ok, "ipp://printer:");
        row("nothing typed", 1, v4, "", bad, "ipp://");
        row("partial prefix is host", 1, v4, "ip", ok, "ipp://ip");
        row("prefix case sensitive", 1, v4, "IPP://host", bad, "ipp://IPP://host");
        row("trailing dot", 2, v4, "socket://host.example.", ok, "socket://host.example.");
        row("hyphen at label end", 2, v4, "socket://host-.example", bad, "socket://host-.example");
        row("empty label", 2, v4, "socket://a..b", bad, "socket://a..b");
        row("path refused", 1, v4, "ipp://host/printers/x", bad, "ipp://host/printers/x");
        row("letters of any script", 2, v4, "drucker-köln", ok, "socket://drucker-köln");
        row("dotted quad is a name", 2, v4, "300.1.1.1:9100", ok, "socket://300.1.1.1:9100");
        row("v6 compressed", 1, v6, "fe80::1", ok, "ipp://[fe80::1]");
        row("v6 bracketed, port", 1, v6, "ipp://[fe80::1]:631", ok, "ipp://[fe80::1]:631");
        row("v6 bracketed, port 65536", 1, v6, "[fe80::1]:65536", bad, "ipp://[fe80::1]:65536");
        row("v6 full form", 2, v6, "1:2:3:4:5:6:7:abcd", ok, "socket://[1:2:3:4:5:6:7:abcd]");
        row("v6 seven groups", 1, v6, "1:2:3:4:5:6:7", bad, "ipp://1:2:3:4:5:6:7");
        row("v6 eight groups and ::", 1, v6, "1:2:3:4:5:6:7::8", bad, "ipp://1:2:3:4:5:6:7::8");
        row("v6 seven groups and ::", 1, v6, "1:2:3:4:5:6::7", ok, "ipp://[1:2:3:4:5:6::7]");
        row("v6 unspecified", 1, v6, "::", ok, "ipp://[::]");
        row("v6 two ::", 1, v6, "fe80::1::2", bad, "ipp://fe80::1::2");
        row("v6 five digits", 1, v6, "12345::1", bad, "ipp://12345::1");
        row("v6 embedded IPv4", 1, v6, "::ffff:192.168.1.1", ok, "ipp://[::ffff:192.168.1.1]");
        row("v6 embedded IPv4, port", 1, v6, "[::ffff:10.0.0.1]:631", ok, "ipp://[::ffff:10.0.0.1]:631");
        row("v6 embedded octet 300", 1, v6, "::ffff:300.1.1.1", bad, "ipp://::ffff:300.1.1.1");
        row("v6 embedded, groups full", 1, v6, "::1:2:3:4:5:6:1.2.3.4", bad, "ipp://::1:2:3:4:5:6:1.2.3.4");
        row("no v6: compressed", 1, v4, "fe80::1", bad, "ipp://fe80::1");
        row("no v6: bracketed, port", 1, v4, "[fe80::1]:631", bad, "ipp://[fe80::1]:631");
        row("no v6: full form", 1, v4, "1:2:3:4:5:6:7:8", bad, "ipp://1:2:3:4:5:6:7:8");
        row("no v6: two groups are host:port", 1, v4, "1:2", ok, "ipp://1:2");
        row("lpd host/queue", 3, v4, "host/queue_1", ok, "lpd://host/queue_1");
        row("lpd port refused", 3, v4, "lpd://host:515/queue", bad, "lpd://host:515/queue");
        row("lpd no queue", 3, v4, "lpd://host/", bad, "lpd://host/");
        row("lpd three pieces", 3, v4, "lpd://host/a/b", bad, "lpd://host/a/b");
        row("lpd double slash", 3, v4, "lpd://host//queue", ok, "lpd://host//queue");
        row("lpd blank in queue", 3, v4, "lpd://host/my queue", bad, "lpd://host/my queue");
        row("lpd v6", 3, v6, "fe80::1/q", ok, "lpd://[fe80::1]/q");
        row("lpd v6 with port", 3, v6, "lpd://[fe80::1]:515/q", bad, "lpd://[fe80::1]:515/q");
        row("smb workgroup", 4, v4, "smb://WORKGROUP/server/share", ok, "smb://WORKGROUP/server/share");
        row("smb user", 4, v4, "user:pw@server/share", ok, "smb://user:pw@server/share");
        row("smb password as is", 4, v4, "u:p w/x@WG/server/share", ok, "smb://u:p w/x@WG/server/share");
        row("smb blank in user", 4, v4, "smb://a b:pw@server/share", bad, "smb://a b:pw@server/share");
        row("smb blank in workgroup", 4, v4, "smb://a b/server/share", bad, "smb://a b/server/share");
        row("smb blank in share", 4, v4, "smb://server/my share", bad, "smb://server/my share");
        row("smb empty share", 4, v4, "smb://server/", bad, "smb://server/");
        row("smb port refused", 4, v4, "smb://server:139/share", bad, "smb://server:139/share");
        row("smb v6, rebuilt", 4, v6, "u:p@WG/fe80::1/share", ok, "smb://u:p@WG/[fe80::1]/share");
        row("file absolute", 5, v4, "/dev/null", ok, "file:/dev/null");
        row("file relative", 5, v4, "file:tmp/x", bad, "file:tmp/x");
        row("file empty", 5, v4, "file:", bad, "file:");
        row("no scheme", 0, v6, "ipp://host", bad, "ipp://host");
        row("scheme out of range", 9, v4, "x", bad, "x");

        // Long input is judged, not given up on.
        // The repair may shorten the text; the cursor follows it.
        row("slashes before an IPv6 queue", 3, v6, "//////::/6", ok, "lpd://[::]/6");
        const QString host = QStringLiteral("a.").repeated(5000) + QStringLiteral("b");
        row("long host name", 2, v6, host, ok, "socket://" + host);
        row("long host name, bad end", 2, v6, host + "!", bad, "socket://" + host + "!");
        row("long run of colons", 1, v6, QString(4000, ':'), bad, "ipp://" + QString(4000, ':'));
    }

    void validate()
    {
        QFETCH(int, scheme);
        QFETCH(bool, ipv6);
        QFETCH(QString, input);
        QFETCH(bool, acceptable);
        QFETCH(QString, output);

        if (scheme < 1 || scheme > 5)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Unexpected scheme %1").arg(scheme)));
        UriValidator validator(scheme, ipv6);
        // Typing at the end: the cursor stays at the end of the repaired text.
        int pos = static_cast<int>(input.size());
        QCOMPARE(validator.validate(input, pos), acceptable ? QValidator::Acceptable : QValidator::Invalid);
        QCOMPARE(input, output);
        QCOMPARE(pos, static_cast<int>(output.size()));
    }
};

QTEST_GUILESS_MAIN(TestUriValidator)
#include "tst_urivalidator.moc"
