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
        row("nothing typed", 1, v4, "", bad, "ipp://");
        row("path refused", 1, v4, "ipp://host/printers/x", bad, "ipp://host/printers/x");
        row("hyphen at label end", 2, v4, "socket://host-.example", bad, "socket://host-.example");
        row("letters of any script", 2, v4, "drucker-köln", ok, "socket://drucker-köln");
        row("v6 compressed", 1, v6, "fe80::1", ok, "ipp://[fe80::1]");
        row("v6 bracketed, port 65536", 1, v6, "[fe80::1]:65536", bad, "ipp://[fe80::1]:65536");
        row("v6 full form", 2, v6, "1:2:3:4:5:6:7:abcd", ok, "socket://[1:2:3:4:5:6:7:abcd]");
        row("v6 two ::", 1, v6, "fe80::1::2", bad, "ipp://fe80::1::2");
        row("v6 embedded IPv4, port", 1, v6, "[::ffff:10.0.0.1]:631", ok, "ipp://[::ffff:10.0.0.1]:631");
        row("v6 embedded octet 300", 1, v6, "::ffff:300.1.1.1", bad, "ipp://::ffff:300.1.1.1");
        row("no v6: compressed", 1, v4, "fe80::1", bad, "ipp://fe80::1");
        row("no v6: two groups are host:port", 1, v4, "1:2", ok, "ipp://1:2");
        row("lpd host/queue", 3, v4, "host/queue_1", ok, "lpd://host/queue_1");
        row("lpd port refused", 3, v4, "lpd://host:515/queue", bad, "lpd://host:515/queue");
        row("lpd no queue", 3, v4, "lpd://host/", bad, "lpd://host/");
        row("lpd v6", 3, v6, "fe80::1/q", ok, "lpd://[fe80::1]/q");
        row("smb workgroup", 4, v4, "smb://WORKGROUP/server/share", ok, "smb://WORKGROUP/server/share");
        row("smb password as is", 4, v4, "u:p w/x@WG/server/share", ok, "smb://u:p w/x@WG/server/share");
        row("smb blank in share", 4, v4, "smb://server/my share", bad, "smb://server/my share");
        row("smb port refused", 4, v4, "smb://server:139/share", bad, "smb://server:139/share");
        row("smb v6, rebuilt", 4, v6, "u:p@WG/fe80::1/share", ok, "smb://u:p@WG/[fe80::1]/share");
        row("file absolute", 5, v4, "/dev/null", ok, "file:/dev/null");
        row("file relative", 5, v4, "file:tmp/x", bad, "file:tmp/x");
        row("scheme out of range", 9, v4, "x", bad, "x");
        // The repair may shorten the text; the cursor follows it.
        row("slashes before an IPv6 queue", 3, v6, "//////::/6", ok, "lpd://[::]/6");
        // Long input is judged, not given up on.
        const QString host = QStringLiteral("a.").repeated(5000) + QStringLiteral("b");
        row("long host name", 2, v6, host, ok, "socket://" + host);
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
