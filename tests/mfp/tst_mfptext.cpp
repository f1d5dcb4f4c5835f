#include "mfp.h"

#include <QLocalServer>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>
#include <cstring>

class TestMfpText : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QByteArray writeFile(const QByteArray &content)
    {
        const QString path = m_dir.filePath(QStringLiteral("OEM.ini"));
        QFile f(path);
        if (f.open(QIODevice::WriteOnly | QIODevice::Truncate))
            f.write(content);
        return QFile::encodeName(path);
    }

private slots:
    void lookUp_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QByteArray>("value");

        const QByteArray key = "SNMP_COMMUNITY";
        QTest::newRow("at the start") << QByteArray("VENDOR=Acme\nSNMP_COMMUNITY=public\n") << key << true
                                      << QByteArray("public");
        QTest::newRow("anywhere in the line, rest of it")
            << QByteArray("# set SNMP_COMMUNITY=our lan \n") << key << true << QByteArray("our lan ");
        QTest::newRow("key given with its =") << QByteArray("SNMP_COMMUNITY=public\n") << key + "=" << true
                                              << QByteArray("public");
        QTest::newRow("last occurrence wins")
            << QByteArray("SNMP_COMMUNITY=public\nURL=x\nSNMP_COMMUNITY=private\n") << key << true
            << QByteArray("private");
        QTest::newRow("longer name is another key") << QByteArray("SNMP_COMMUNITY_V3=x\n") << key << false
                                                    << QByteArray();
        QTest::newRow("CRLF and no final line end") << QByteArray("URL=a\r\nSNMP_COMMUNITY=lan\r") << key << true
                                                    << QByteArray("lan");
        QTest::newRow("empty value is found") << QByteArray("SNMP_COMMUNITY=\n") << key << true << QByteArray();
        QTest::newRow("value cut at the line length")
            << "SNMP_COMMUNITY=" + QByteArray(1000, 'v') + "\nVENDOR=Acme\n" << key << true
            << QByteArray(511 - 15, 'v');
        QTest::newRow("key past 511 characters is not read")
            << QByteArray(600, 'x') + "SNMP_COMMUNITY=tail\n" << key << false << QByteArray();
        QTest::newRow("line after an overlong one")
            << QByteArray(2000, 'x') + "\nSNMP_COMMUNITY=next\n" << key << true << QByteArray("next");
        QTest::newRow("line of exactly 511 characters")
            << QByteArray(511 - 19, 'x') + "SNMP_COMMUNITY=abcd\nURL=u\n" << key << true << QByteArray("abcd");
    }

    void lookUp()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, key);
        QFETCH(bool, found);
        QFETCH(QByteArray, value);

        const QByteArray path = writeFile(content);
        char buffer[600];
        memset(buffer, 'z', sizeof buffer);
        QCOMPARE(textfile_process(path.constData(), key.constData(), buffer, sizeof buffer), found ? 1 : 0);
        QCOMPARE(QByteArray(buffer), value);
    }

    void smallValueBuffer()
    {
        const QByteArray path = writeFile("SNMP_COMMUNITY=community-string\n");
        char buffer[12];
        memset(buffer, 'z', sizeof buffer);
        QCOMPARE(textfile_process(path.constData(), "SNMP_COMMUNITY", buffer, 8), 1);
        QCOMPARE(QByteArray(buffer), QByteArray("communi"));
        QCOMPARE(QByteArray(buffer + 8, 4), QByteArray("zzzz"));
    }

    void unusable_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<int>("error");

        QTest::newRow("missing file") << QByteArray("/nonexistent/OEM.ini") << QByteArray("URL") << ENOENT;
        QTest::newRow("directory") << QFile::encodeName(m_dir.path()) << QByteArray("URL") << EISDIR;
        QTest::newRow("empty key") << QByteArray("OEM.ini") << QByteArray("=") << EINVAL;
    }

    void unusable()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, key);
        QFETCH(int, error);

        char value[16] = "stale";
        errno = 0;
        QCOMPARE(textfile_process(path.constData(), key.constData(), value, sizeof value), 0);
        QCOMPARE(errno, error);
        QCOMPARE(value[0], '\0');
    }

    void chomp_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("LF") << QByteArray("a b\n") << QByteArray("a b");
        QTest::newRow("CRLF and blank lines") << QByteArray("a\r\n\n\r\n") << QByteArray("a");
        QTest::newRow("other trailing space stays") << QByteArray("a \t") << QByteArray("a \t");
    }

    void chomp()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, expected);
        QCOMPARE(QByteArray(::chomp(text.data())), expected);
    }

    void strzcpy_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<int>("size");
        QTest::addColumn<QByteArray>("expected");

        QTest::newRow("fits") << QByteArray("abc") << 8 << QByteArray("abc");
        QTest::newRow("exactly fills") << QByteArray("abcdefg") << 8 << QByteArray("abcdefg");
        QTest::newRow("cut") << QByteArray("abcdefghij") << 8 << QByteArray("abcdefg");
        QTest::newRow("size 0 writes nothing") << QByteArray("abc") << 0 << QByteArray("########");
        QTest::newRow("null source") << QByteArray() << 8 << QByteArray();
    }

    void strzcpy()
    {
        QFETCH(QByteArray, source);
        QFETCH(int, size);
        QFETCH(QByteArray, expected);

        char buffer[12];
        memset(buffer, '#', sizeof buffer);
        buffer[8] = '\0';
        QCOMPARE(::strzcpy(buffer, source.isNull() ? nullptr : source.constData(), size_t(size)), buffer);
        QCOMPARE(QByteArray(buffer), expected);
    }

    void fileExists()
    {
        const QByteArray file = writeFile("x");
        QLocalServer socket;
        QVERIFY(socket.listen(m_dir.filePath(QStringLiteral("sock"))));

        QCOMPARE(file_exists(file.constData()), 1);
        QCOMPARE(file_exists(QFile::encodeName(m_dir.path()).constData()), 1);
        QCOMPARE(file_exists(QFile::encodeName(socket.fullServerName()).constData()), 1);
        QCOMPARE(file_exists("/nonexistent/file"), 0);
        QCOMPARE(file_exists(""), 0);
        QCOMPARE(file_exists(nullptr), 0);
    }
};

QTEST_GUILESS_MAIN(TestMfpText)
#include "tst_mfptext.moc"
