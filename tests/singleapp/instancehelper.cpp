// One instance of a single-instance program, driven line by line on
// standard input so that a test can play several instances on one display.
//
//   instancehelper [--id ID] [--user NAME]     (percent-encoded UTF-8)
//
// Commands and answers:
//   running        -> "running 0|1"
//   send TEXT      -> "sent 0|1"
//   init           -> "initialized"
//   show           -> "windows MAIN COVER" (MAIN is the main widget, COVER
//                     a second window mapped above it)
//   quit, or end of input: leaves the event loop; "bye" once the
//                     application object is gone.
// A received message is reported as "message TEXT".

#include "qtsingleapplication.h"

#include <QSocketNotifier>
#include <QWidget>

#include <cstdio>
#include <memory>
#include <optional>
#include <unistd.h>

class InstanceApp : public QtSingleApplication
{
    Q_OBJECT

public:
    InstanceApp(const QString &id, const std::optional<QString> &user, int &argc, char **argv)
        : QtSingleApplication(id, argc, argv)
        , m_input(STDIN_FILENO, QSocketNotifier::Read)
    {
        if (user)
            setLoginName(*user);
        connect(&m_input, &QSocketNotifier::activated, this, &InstanceApp::onInput);
        connect(this, &QtSingleApplication::messageReceived, this, &InstanceApp::onMessage);
    }

    static void answer(const QByteArray &line)
    {
        fputs((line + '\n').constData(), stdout);
        fflush(stdout);
    }

private:
    void onInput()
    {
        char chunk[4096];
        const ssize_t n = ::read(STDIN_FILENO, chunk, sizeof chunk);
        if (n <= 0) {
            m_input.setEnabled(false);
            quit();
            return;
        }
        m_pending.append(chunk, n);
        qsizetype end;
        while ((end = m_pending.indexOf('\n')) >= 0) {
            const QByteArray line = m_pending.left(end);
            m_pending.remove(0, end + 1);
            run(line);
        }
    }

    void run(const QByteArray &line)
    {
        const qsizetype blank = line.indexOf(' ');
        const QByteArray command = blank < 0 ? line : line.left(blank);
        const QByteArray argument = blank < 0 ? QByteArray() : line.mid(blank + 1);
        if (command == "running") {
            answer(QByteArray("running ") + (isRunning() ? "1" : "0"));
        } else if (command == "send") {
            const bool sent = sendMessage(QString::fromUtf8(QByteArray::fromPercentEncoding(argument)));
            answer(QByteArray("sent ") + (sent ? "1" : "0"));
        } else if (command == "init") {
            initialize(true);
            answer("initialized");
        } else if (command == "show") {
            m_main = std::make_unique<QWidget>();
            m_cover = std::make_unique<QWidget>();
            m_main->setWindowTitle(QStringLiteral("main"));
            m_cover->setWindowTitle(QStringLiteral("cover"));
            m_main->setGeometry(10, 10, 200, 150);
            m_cover->setGeometry(10, 10, 200, 150);
            setMainWidget(m_main.get());
            m_main->show();
            m_cover->show();
            answer("windows " + QByteArray::number(m_main->winId()) + ' '
                   + QByteArray::number(m_cover->winId()));
        } else if (command == "quit") {
            quit();
        }
    }

    void onMessage(const QString &message)
    {
        answer("message " + message.toUtf8().toPercentEncoding());
    }

    QSocketNotifier m_input;
    QByteArray m_pending;
    std::unique_ptr<QWidget> m_main;
    std::unique_ptr<QWidget> m_cover;
};

int main(int argc, char **argv)
{
    QString id = QStringLiteral("QueuewizTestInstance");
    std::optional<QString> user;
    for (int i = 1; i + 1 < argc; ++i) {
        const QString value = QString::fromUtf8(QByteArray::fromPercentEncoding(argv[i + 1]));
        if (qstrcmp(argv[i], "--id") == 0)
            id = value;
        else if (qstrcmp(argv[i], "--user") == 0)
            user = value;
    }
    int status;
    {
        InstanceApp app(id, user, argc, argv);
        app.setQuitOnLastWindowClosed(false);
        status = app.exec();
    }
    InstanceApp::answer("bye");
    return status;
}

#include "instancehelper.moc"
