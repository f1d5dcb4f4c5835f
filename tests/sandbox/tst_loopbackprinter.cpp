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
    void eachConnectionIsOneJob_data();
    void eachConnectionIsOneJob();
    void jobsFinishedBeforeWaitingComeInOrder();
    void waitingWithoutJobTimesOut();
    void closesAfterSenderHalfCloses();
};

namespace {

// Sends data as one connection; the bytes flow while the caller runs the
// event loop (the printer lives in the same thread).
void sendJob(quint16 port, const QByteArray &data)
{
    auto *socket = new QTcpSocket;
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    socket->connectToHost(QHostAddress::LocalHost, port);
    QVERIFY(socket->waitForConnected(5000));
    socket->write(data);
    socket->disconnectFromHost();
}

} // namespace

void TestLoopbackPrinter::eachConnectionIsOneJob_data()
{
    QTest::addColumn<QList<QByteArray>>("sent");
    QTest::newRow("one job") << QList<QByteArray>{"%!PS-Adobe-3.0\nshowpage\n"};
    QTest::newRow("two jobs") << QList<QByteArray>{"first", "second"};
    QTest::newRow("empty job") << QList<QByteArray>{""};
    QTest::newRow("4 MB with zero bytes")
        << QList<QByteArray>{QByteArray(4 << 20, '\0') + "end", "after"};
}

void TestLoopbackPrinter::eachConnectionIsOneJob()
{
    QFETCH(QList<QByteArray>, sent);
    LoopbackPrinter printer;
    QVERIFY(printer.isListening());
    QVERIFY(printer.deviceUri().endsWith(QStringLiteral(":%1").arg(printer.port())));

    for (const QByteArray &data : sent) {
        sendJob(printer.port(), data);
        const QByteArray received = printer.waitForJob(10000);
        QVERIFY(!received.isNull());
        QCOMPARE(received.size(), data.size());
        QVERIFY(received == data);
    }
    QCOMPARE(printer.jobCount(), sent.size());
    QCOMPARE(printer.jobs(), sent);
}

void TestLoopbackPrinter::jobsFinishedBeforeWaitingComeInOrder()
{
    LoopbackPrinter printer;
    sendJob(printer.port(), "one");
    QTRY_COMPARE(printer.jobCount(), 1);
    sendJob(printer.port(), "two");
    QTRY_COMPARE(printer.jobCount(), 2);

    QCOMPARE(printer.waitForJob(0), QByteArray("one"));
    QCOMPARE(printer.waitForJob(0), QByteArray("two"));
    QVERIFY(printer.waitForJob(0).isNull());
}

void TestLoopbackPrinter::waitingWithoutJobTimesOut()
{
    LoopbackPrinter printer;
    QElapsedTimer clock;
    clock.start();
    QVERIFY(printer.waitForJob(200).isNull());
    QVERIFY(clock.elapsed() >= 150);
    QCOMPARE(printer.jobCount(), 0);
}

// The socket backend shuts down its sending side after the last byte and
// waits for the printer to close; a printer that never closes stalls it.
void TestLoopbackPrinter::closesAfterSenderHalfCloses()
{
    LoopbackPrinter printer;
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    QVERIFY(fd >= 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(printer.port());
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    QCOMPARE(::connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    const QByteArray data("half-closed job");
    QCOMPARE(::send(fd, data.constData(), data.size(), 0), ssize_t(data.size()));
    QCOMPARE(::shutdown(fd, SHUT_WR), 0);

    QCOMPARE(printer.waitForJob(10000), data);
    char byte;
    QTRY_COMPARE(::recv(fd, &byte, 1, MSG_DONTWAIT), ssize_t(0));
    ::close(fd);
}

QTEST_GUILESS_MAIN(TestLoopbackPrinter)
#include "tst_loopbackprinter.moc"
