#include "formattedlistitem.h"
#include "listviewex.h"
#include "urivalidator.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

// Two IPP items renamed in column 0; column 1 is never renamed.
struct Fixture
{
    QWidget window;
    ListViewEx *view = new ListViewEx(&window);
    QLineEdit *elsewhere = new QLineEdit(&window);
    UriValidator *validator = new UriValidator(UriValidator::IppScheme, true, view);
    FormattedListItem *first = new FormattedListItem(view);
    FormattedListItem *second = new FormattedListItem(view);
    QSignalSpy renaming{view, &ListViewEx::itemRenaming};
    QSignalSpy canceled{view, &ListViewEx::renameCanceled};

    Fixture()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(view);
        layout->addWidget(elsewhere);
        view->setColumnCount(2);
        for (FormattedListItem *item : {first, second}) {
            item->setValidator(0, validator);
            item->setRenameEnabled(0, true);
        }
        QTest::ignoreMessage(QtWarningMsg, "Validator is not set");
        first->setText(1, QStringLiteral("notes"));
        window.show();
        window.activateWindow();
    }

    QLineEdit *editor() const
    {
        QList<QLineEdit *> open;
        for (QLineEdit *e : view->findChildren<QLineEdit *>())
            if (!e->isHidden())
                open << e;
        return open.size() == 1 ? open.first() : nullptr;
    }
};

class TestListViewEx : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*"))); }

    void isAcceptable()
    {
        Fixture f;
        QVERIFY(f.first->isAcceptable(0, QStringLiteral("ipp://host:631")));
        QVERIFY(!f.first->isAcceptable(0, QStringLiteral("ipp://")));
        // Columns without validator take anything.
        for (int column : {1, 7, -1})
            QVERIFY(f.first->isAcceptable(column, QStringLiteral("ipp://")));
    }

    // Every keystroke is heard with the whole text; how the rename ends
    // decides what is stored.
    void renameFlow_data()
    {
        QTest::addColumn<bool>("toEnd");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("endKey");
        QTest::addColumn<QString>("stored");

        QTest::newRow("Enter after the prefix") << true << "host" << int(Qt::Key_Return) << "ipp://host";
        QTest::newRow("Enter over the selected prefix") << false << "host" << int(Qt::Key_Enter) << "ipp://host";
        QTest::newRow("Enter keeps invalid text") << true << ":x" << int(Qt::Key_Return) << "ipp://:x";
        QTest::newRow("Escape") << true << "host" << int(Qt::Key_Escape) << "ipp://";
        QTest::newRow("focus leaves the editor") << true << "h" << 0 << "ipp://h";
    }

    void renameFlow()
    {
        QFETCH(bool, toEnd);
        QFETCH(QString, typed);
        QFETCH(int, endKey);
        QFETCH(QString, stored);

        Fixture f;
        QVERIFY(QTest::qWaitForWindowActive(&f.window));
        f.first->startRename(0);
        QLineEdit *editor = f.editor();
        QVERIFY(editor);
        QCOMPARE(f.first->editor(), editor);
        QCOMPARE(editor->selectedText(), QStringLiteral("ipp://"));

        if (toEnd)
            QTest::keyClick(editor, Qt::Key_End);
        QTest::keyClicks(editor, typed);
        QCOMPARE(f.renaming.size(), typed.size());
        const QString head = toEnd ? QStringLiteral("ipp://") : QString();
        for (int i = 0; i < typed.size(); ++i)
            QCOMPARE(f.renaming.at(i), (QVariantList{QVariant::fromValue<ListViewItemEx *>(f.first), 0,
                                                     head + typed.left(i + 1)}));
        // What is being typed is judged, not what is stored.
        QCOMPARE(f.first->isAcceptable(0), f.first->isAcceptable(0, head + typed));

        if (endKey)
            QTest::keyClick(editor, Qt::Key(endKey));
        else
            f.elsewhere->setFocus();
        QTRY_VERIFY(!f.view->isRenaming());
        QCOMPARE(f.first->text(0), stored);
        const bool escaped = endKey == Qt::Key_Escape;
        QCOMPARE(f.canceled.size(), escaped ? 1 : 0);
        if (escaped)
            QCOMPARE(f.canceled.at(0), (QVariantList{QVariant::fromValue<ListViewItemEx *>(f.first), 0}));
        QVERIFY(!f.first->editor() && f.first->renameColumn() == -1 && !f.view->renamingItem());
        QCOMPARE(f.renaming.size(), typed.size());
    }

    void otherColumnsAreNotRenamed()
    {
        Fixture f;
        f.first->startRename(1);
        QVERIFY(!f.view->isRenaming() && !f.editor() && !f.first->editor());
        // Nor is an open rename disturbed.
        f.second->startRename(0);
        f.first->startRename(1);
        QCOMPARE(f.view->renamingItem(), f.second);
        QVERIFY(f.renaming.isEmpty() && f.canceled.isEmpty());
    }

    // A second rename keeps what was typed in the first; F2 goes the same way.
    void secondRenameStoresFirst()
    {
        Fixture f;
        f.first->startRename(0);
        QTest::keyClicks(f.editor(), QStringLiteral("one"));
        f.view->setCurrentItem(f.second);
        QTest::keyClick(f.view, Qt::Key_F2);
        QCOMPARE(f.first->text(0), QStringLiteral("ipp://one"));
        QCOMPARE(f.view->renamingItem(), f.second);
        QTest::keyClicks(f.editor(), QStringLiteral("two"));
        QCOMPARE(f.renaming.last().at(0).value<ListViewItemEx *>(), f.second);
        QCOMPARE(f.renaming.last().at(2).toString(), QStringLiteral("two"));
        QVERIFY(f.canceled.isEmpty());
    }

    void removedWhileRenaming()
    {
        Fixture f;
        f.first->startRename(0);
        delete f.first;
        QVERIFY(!f.view->renamingItem());
        f.second->startRename(0);
        QCOMPARE(f.view->renamingItem(), f.second);
    }
};

QTEST_MAIN(TestListViewEx)
#include "tst_listviewex.moc"
