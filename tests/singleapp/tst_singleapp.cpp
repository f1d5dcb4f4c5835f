// The single-instance application without an X display (offscreen, as under
// Wayland): the selection name rule and running alone.

#include "qtsingleapplication.h"

#include <QRegularExpression>
#include <QTest>

class TestSingleApp : public QObject
{
    Q_OBJECT

private slots:
    void selectionName_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("program") << "AddPrinterWizard_SingleApplication" << "alice"
                                 << QByteArray("_AddPrinterWizard_SingleApplicationalice");
        QTest::newRow("nothing at all") << QString() << QString() << QByteArray("_");
        // One "_" for each byte of the UTF-8 form.
        QTest::newRow("non-ascii, blanks, controls") << "Drücker€ app\t" << "jö b" << QByteArray("_Dr__cker____app_j___b");
        QTest::newRow("punctuation kept") << "!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~" << "\x7f"
                                          << QByteArray("_!\"#$%&'()*+,-./:;<=>?@[\\]^`{|}~_");
    }

    void selectionName()
    {
        QFETCH(QString, id);
        QFETCH(QString, user);
        QFETCH(QByteArray, expected);
        QCOMPARE(QtSingleApplication::selectionName(id, user), expected);
    }

    void withoutDisplayRunsAlone()
    {
        // Without X nothing is wrong, so nothing may be reported either.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        auto *app = qobject_cast<QtSingleApplication *>(qApp);
        QVERIFY(app);
        QVERIFY(!app->isRunning());
        QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!"), 5000));
        app->initialize(true);
        QVERIFY(!app->isRunning());
        QVERIFY(!app->sendMessage(QStringLiteral("Wake up!!!")));
    }
};

int main(int argc, char **argv)
{
    QtSingleApplication app(QStringLiteral("QueuewizOffscreenTest"), argc, argv);
    TestSingleApp test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleapp.moc"
