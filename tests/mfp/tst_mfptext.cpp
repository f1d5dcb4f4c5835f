#include "mfp.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <cstring>

class TestMfpText : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    // A null value: the key is not found.
    void lookUp_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("value");
        auto row = [](const char *name, const QByteArray &content, const QByteArray &value, int size = 600) {
            QTest::newRow(name) << content << size << value;
        };
        row("anywhere in the line, rest of it", "VENDOR=Acme\n# set SNMP_COMMUNITY=our lan \n", "our lan ");
        row("last occurrence wins", "SNMP_COMMUNITY=public\nURL=x\nSNMP_COMMUNITY=private\n", "private");
        row("longer name is another key", "SNMP_COMMUNITY_V3=x\n", QByteArray());
        row("CRLF, no final line end", "URL=a\r\nSNMP_COMMUNITY=lan\r", "lan");
        row("empty value is found", "SNMP_COMMUNITY=\n", "");
        row("value cut to the buffer", "SNMP_COMMUNITY=community\n", "communi", 8);
        row("value cut at the line length", "SNMP_COMMUNITY=" + QByteArray(1000, 'v') + "\nURL=u\n",
            QByteArray(511 - 15, 'v'));
        row("key past 511 characters is not read", QByteArray(600, 'x') + "SNMP_COMMUNITY=tail\n", QByteArray());
        row("line after an overlong one", QByteArray(2000, 'x') + "\nSNMP_COMMUNITY=next\n", "next");
        row("line of exactly 511 characters", QByteArray(511 - 19, 'x') + "SNMP_COMMUNITY=abcd\nURL=u\n", "abcd");
    }

    void lookUp()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, size);
        QFETCH(QByteArray, value);

        QFile file(m_dir.filePath(QStringLiteral("OEM.ini")));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size());
        file.close();
        char buffer[610];
        memset(buffer, 'z', sizeof buffer);
        const QByteArray path = QFile::encodeName(file.fileName());
        QCOMPARE(textfile_process(path.constData(), "SNMP_COMMUNITY", buffer, size_t(size)), value.isNull() ? 0 : 1);
        QCOMPARE(QByteArray(buffer), value);
        QCOMPARE(QByteArray(buffer + size, 10), QByteArray(10, 'z'));
    }

    void missingFile()
    {
        char value[16] = "stale";
        errno = 0;
        QCOMPARE(textfile_process("/nonexistent/OEM.ini", "URL", value, sizeof value), 0);
        QCOMPARE(errno, ENOENT);
        QCOMPARE(value[0], '\0');
    }

    void helpers()
    {
        char text[] = "a \t\r\n\n";
        QCOMPARE(QByteArray(chomp(text)), QByteArray("a \t"));
        char buffer[8] = "#######";
        QCOMPARE(strzcpy(buffer, "abc", 0), buffer);
        QCOMPARE(QByteArray(buffer), QByteArray("#######"));
        QCOMPARE(QByteArray(strzcpy(buffer, "abcdefghij", sizeof buffer)), QByteArray("abcdefg"));
        QCOMPARE(QByteArray(strzcpy(buffer, nullptr, sizeof buffer)), QByteArray());
        QCOMPARE(file_exists(QFile::encodeName(m_dir.path()).constData()), 1);
        QCOMPARE(file_exists("/nonexistent/file"), 0);
        QCOMPARE(file_exists(nullptr), 0);
    }
};

QTEST_GUILESS_MAIN(TestMfpText)
#include "tst_mfptext.moc"
