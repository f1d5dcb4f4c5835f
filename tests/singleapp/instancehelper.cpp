// One instance of a single-instance program, driven by lines on standard
// input so that a test can play several instances on one display:
//   instancehelper --id ID [--user NAME]     (percent-encoded UTF-8)
// Each command is answered on a line that starts with its name: "running"
// -> "running 0|1", "send TEXT" -> "send 0|1", "init" -> "init", "show" ->
// "show MAIN COVER" (window ids; COVER is mapped above MAIN). "quit" or the
// end of input ends it. A received message is reported as "message TEXT".

#include "qtsingleapplication.h"

#include <QSocketNotifier>
#include <QWidget>

#include <cstdio>
#include <unistd.h>

namespace {

// Acts as another user where the test says so.
class InstanceApp : public QtSingleApplication
{
public:
    using QtSingleApplication::QtSingleApplication;
    using QtSingleApplication::setLoginName;
};

void answer(const QByteArray &line)
{
    fputs((line + '\n').constData(), stdout);
    fflush(stdout);
}

QString decode(const QByteArray &text)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text));
}

} // namespace

int main(int argc, char **argv)
{
    QString id, user;
    for (int i = 1; i + 1 < argc; i += 2)
        (qstrcmp(argv[i], "--user") == 0 ? user : id) = decode(argv[i + 1]);
    InstanceApp app(id, argc, argv);
    if (!user.isNull())
        app.setLoginName(user);
    app.setQuitOnLastWindowClosed(false);
    QObject::connect(&app, &QtSingleApplication::messageReceived,
                     [](const QString &message) { answer("message " + message.toUtf8().toPercentEncoding()); });

    QWidget mainWindow, cover;
    auto run = [&](const QList<QByteArray> &words) {
        const QByteArray &command = words.first();
        if (command == "running") {
            answer(command + (app.isRunning() ? " 1" : " 0"));
        } else if (command == "send") {
            answer(command + (app.sendMessage(decode(words.value(1))) ? " 1" : " 0"));
        } else if (command == "init") {
            app.initialize(true);
            answer(command);
        } else if (command == "show") {
            for (QWidget *window : {&mainWindow, &cover}) {
                window->setGeometry(10, 10, 200, 150);
                window->show();
            }
            app.setMainWidget(&mainWindow);
            answer(command + ' ' + QByteArray::number(mainWindow.winId()) + ' ' + QByteArray::number(cover.winId()));
        } else if (command == "quit") {
            app.quit();
        }
    };

    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QByteArray pending;
    QObject::connect(&input, &QSocketNotifier::activated, [&] {
        char chunk[4096];
        const ssize_t n = ::read(STDIN_FILENO, chunk, sizeof chunk);
        if (n <= 0) {
            input.setEnabled(false);
            app.quit();
        }
        pending.append(chunk, qMax<ssize_t>(n, 0));
        for (qsizetype end; (end = pending.indexOf('\n')) >= 0; pending.remove(0, end + 1))
            run(pending.left(end).split(' '));
    });
    return app.exec();
}
