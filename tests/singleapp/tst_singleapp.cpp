// The single-instance application without an X display (the test runs
// offscreen, as it would under Wayland): the name rule, the interface and
// running alone.

#include "qtsingleapplication.h"
#include "testpaths.h"

#include <QMetaMethod>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

class TestSingleApp : public QObject
{
    Q_OBJECT

private slots:
    void selectionName_data();
    void selectionName();
    void metaObjectInterface();
    void withoutDisplayRunsAlone();
    void activationRaisesMainWidget();
    void programRunsAloneOffscreen();
};

void TestSingleApp::selectionName_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("program") << QStringLiteral("AddPrinterWizard_SingleApplication")
                             << QStringLiteral("alice")
                             << QByteArray("_AddPrinterWizard_SingleApplicationalice");
    QTest::newRow("leading underscore kept") << QStringLiteral("_app") << QStringLiteral("bob")
                                             << QByteArray("_appbob");
    QTest::newRow("nothing at all") << QString() << QString() << QByteArray("_");
    QTest::newRow("no login name") << QStringLiteral("app") << QString() << QByteArray("_app");
    QTest::newRow("blanks") << QStringLiteral("my app") << QStringLiteral("a b")
                            << QByteArray("_my_appa_b");
    // One "_" for each byte of the UTF-8 form.
    QTest::newRow("non-ascii") << QStringLiteral("Drücker€") << QStringLiteral("jö")
                               << QByteArray("_Dr__cker___j__");
    QTest::newRow("non-ascii first") << QStringLiteral("é") << QStringLiteral("x")
                                     << QByteArray("___x");
    QTest::newRow("control characters") << QStringLiteral("a\tb\nc") << QString(QChar(0))
                                        << QByteArray("_a_b_c_");
    QTest::newRow("punctuation kept") << QStringLiteral("!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~")
                                      << QStringLiteral("\x7f")
                                      << QByteArray("_!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~_");
}

void TestSingleApp::selectionName()
{
    QFETCH(QString, id);
    QFETCH(QString, user);
    QFETCH(QByteArray, expected);
    QCOMPARE(QtSingleApplication::selectionName(id, user), expected);
}

// Other programs and string connections rely on these slots and the signal.
void TestSingleApp::metaObjectInterface()
{
    const QMetaObject &meta = QtSingleApplication::staticMetaObject;
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods << QByteArray(method.methodType() == QMetaMethod::Signal ? "signal " : "slot ")
                       + method.methodSignature();
    }
    const QList<QByteArray> expected{ "signal messageReceived(QString)", "slot sendMessage(QString)",
                                      "slot sendMessage(QString,int)", "slot activateMainWidget()" };
    QCOMPARE(methods, expected);
}

void TestSingleApp::withoutDisplayRunsAlone()
{
    // Without X nothing is wrong, so nothing may be reported either.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    auto *app = qobject_cast<QtSingleApplication *>(qApp);
    QVERIFY(app);
    QVERIFY(!app->isRunning());
    QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!")));
    QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!"), 5000));
    app->initialize(true);
    app->initialize(true);
    QVERIFY(!app->isRunning());
    QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!")));
}

void TestSingleApp::activationRaisesMainWidget()
{
    auto *app = qobject_cast<QtSingleApplication *>(qApp);
    QVERIFY(app);
    app->initialize(true);
    // No main widget: a message changes nothing.
    emit app->messageReceived(QStringLiteral("Wake up!!!"));

    QWidget mainWidget;
    QWidget other;
    app->setMainWidget(&mainWidget);
    mainWidget.show();
    other.show();
    mainWidget.showMinimized();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));

    QSignalSpy received(app, &QtSingleApplication::messageReceived);
    emit app->messageReceived(QStringLiteral("Wake up!!!"));
    QCOMPARE(received.count(), 1);
    QVERIFY(QTest::qWaitForWindowActive(&mainWidget));
    QVERIFY(!mainWidget.isMinimized());
    app->setMainWidget(nullptr);
}

void TestSingleApp::programRunsAloneOffscreen()
{
    QProcess queuewiz;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    queuewiz.setProcessEnvironment(env);
    queuewiz.setProcessChannelMode(QProcess::ForwardedOutputChannel);
    queuewiz.start(TestPaths::binaryDir() + QStringLiteral("/app/queuewiz"), QStringList());
    QVERIFY(queuewiz.waitForStarted(10000));
    // A program that shows its window keeps running; one that ends must end
    // well. Either way it did not take itself for a second instance.
    if (queuewiz.waitForFinished(5000)) {
        QCOMPARE(queuewiz.exitStatus(), QProcess::NormalExit);
        QCOMPARE(queuewiz.exitCode(), 0);
    } else {
        QCOMPARE(queuewiz.state(), QProcess::Running);
        queuewiz.kill();
        queuewiz.waitForFinished(5000);
    }
    const QByteArray errors = queuewiz.readAllStandardError();
    QVERIFY2(!errors.contains("xcb") && !errors.contains("X11"), errors.constData());
}

int main(int argc, char **argv)
{
    QtSingleApplication app(QStringLiteral("QueuewizOffscreenTest"), argc, argv);
    TestSingleApp test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleapp.moc"
