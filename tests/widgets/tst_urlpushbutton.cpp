#include "browserlauncher.h"
#include "testsupport.h"
#include "urlpushbutton.h"

#include <QTemporaryDir>
#include <QtTest>

class TestUrlPushButton : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString path(const QString &name) const { return m_dir.filePath(name); }

    // A browser that writes its name and arguments, one a line, to "out".
    QString fakeBrowser(const QString &name) const
    {
        TestSupport::writeFile(path(name),
                               QStringLiteral("#!/bin/sh\nprintf '%s\\n' \"$0\" \"$@\" > '%1.tmp' && mv '%1.tmp' '%1'\n")
                                   .arg(path("out")).toLocal8Bit(), true);
        return path(name);
    }

private slots:
    void init() { TestSupport::failOnWarnings(); }
    void cleanup() { BrowserLauncher::setCandidates({}); }

    // The first browser that exists is started with the address as one
    // word, whatever the shell would read in either.
    void buttonOpensItsAddress_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("blank") << "file:///opt/help page.htm";
        QTest::newRow("shell characters") << "file:///opt/it's $(id) `id` $HOME;|&<>*\\.htm";
    }

    void buttonOpensItsAddress()
    {
        QFETCH(QString, address);
        QFile::remove(path("out"));
        BrowserLauncher::setCandidates({path("missing"), fakeBrowser("first $x'"), fakeBrowser("second")});
        URLPushButton button(nullptr, "HelpButton");
        QCOMPARE(button.objectName(), QStringLiteral("HelpButton"));
        QVERIFY(button.setProperty("url", address));
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_VERIFY(QFile::exists(path("out")));
        QCOMPARE(QString::fromLocal8Bit(TestSupport::readFile(path("out"))), path("first $x'") + "\n" + address + "\n");
    }

    void noBrowserTellsTheAddress()
    {
        BrowserLauncher::setCandidates({path("none")});
        QString seen;
        TestSupport::answerMessageBox(QString(), &seen);
        BrowserLauncher::launch(QStringLiteral("http://127.0.0.1/help.htm"), nullptr);
        QCOMPARE(seen, QStringLiteral("Warning|Web browser not found.\nUse that address:\nhttp://127.0.0.1/help.htm"));
    }
};

QTEST_MAIN(TestUrlPushButton)
#include "tst_urlpushbutton.moc"
