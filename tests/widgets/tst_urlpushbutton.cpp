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

    // The first browser that exists is started; the address reaches the
    // shell unquoted, so a blank splits it.
    void buttonOpensItsAddress()
    {
        BrowserLauncher::setCandidates({path("missing"), fakeBrowser("first"), fakeBrowser("second")});
        URLPushButton button(nullptr, "HelpButton");
        QCOMPARE(button.objectName(), QStringLiteral("HelpButton"));
        QVERIFY(button.setProperty("url", QStringLiteral("file:///opt/help page.htm")));
        button.show();
        QVERIFY(QTest::qWaitForWindowExposed(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QTRY_VERIFY(QFile::exists(path("out")));
        QCOMPARE(QString::fromLocal8Bit(TestSupport::readFile(path("out"))), path("first") + "\nfile:///opt/help\npage.htm\n");
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
