#include "loopbackprinter.h"

#include <QTcpSocket>
#include <QtTest>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

class TestLoopbackPrinter : public QObject
{
    Q_OBJECT

private slots:
    void eachConnectionIsOneJob_data()
    {
        QTest::addColumn<QList<QByteArray>>("sent");
        QTest::newRow("two jobs") << QList<QByteArray>{"first", "second"};
        QTest::newRow("empty job") << QList<QByteArray>{""};
        QTest::newRow("4 MB with zero bytes") << QList<QByteArray>{QByteArray(4 << 20, '\0') + "end", "after"};
    }

    // Jobs finished before anyone waits for them come in order.
    void eachConnectionIsOneJob()
    {
        QFETCH(QList<QByteArray>, sent);
        LoopbackPrinter printer;
        QVERIFY(printer.isListening());
        QCOMPARE(printer.deviceUri(), QStringLiteral("socket://127.0.0.1:%1").arg(printer.port()));
        for (int i = 0; i < sent.size(); ++i) {
            QTcpSocket socket;
            socket.connectToHost(QHostAddress::LocalHost, quint16(printer.port()));
            QVERIFY(socket.waitForConnected(5000));
            socket.write(sent.at(i));
            socket.disconnectFromHost();
            QTRY_COMPARE(printer.jobCount(), i + 1);
        }
        // Compared whole: a failure message of 4 MB helps no one.
        for (const QByteArray &data : sent)
            QVERIFY(printer.waitForJob(0) == data);
        QVERIFY(printer.waitForJob(0).isNull());
        QVERIFY(printer.jobs() == sent);
    }

    // The socket backend shuts down its sending side after the last byte and
    // waits for the printer to close; a printer that never closes stalls it.
    void closesAfterSenderHalfCloses()
    {
        LoopbackPrinter printer;
        const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
        QVERIFY(fd >= 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(quint16(printer.port()));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        QCOMPARE(::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        const QByteArray data("half-closed job");
        QCOMPARE(::send(fd, data.constData(), size_t(data.size()), 0), ssize_t(data.size()));
        QCOMPARE(::shutdown(fd, SHUT_WR), 0);
        QCOMPARE(printer.waitForJob(10000), data);
        char byte;
        QTRY_COMPARE(::recv(fd, &byte, 1, MSG_DONTWAIT), ssize_t(0));
        ::close(fd);
    }
};

QTEST_GUILESS_MAIN(TestLoopbackPrinter)
#include "tst_loopbackprinter.moc"
