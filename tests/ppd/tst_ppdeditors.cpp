#include "messageboxanswerer.h"
#include "mimesourcefactory_ppdwidgets.h"
#include "nestedsubgroup.h"
#include "ppdbooleanview.h"
#include "ppddialogbase.h"
#include "ppdnumericview.h"
#include "ppdoptionview.h"
#include "ppdtestfiles.h"
#include "ppdtreeoptionitem.h"
#include "ppdtreeview.h"

#include <QListWidget>
#include <QRadioButton>
#include <QStackedWidget>
#include <QtTest>

#include <memory>

namespace {

// The dialog form over the fixture PPD, shown, with the options of "Colour
// Tuning" in a subgroup.
struct Editors
{
    Editors()
        : ppd(PPDTestFiles::open(PPDTestFiles::fixturePpd(QStringLiteral("tree-fixture.ppd"))))
        , subgroup(ppd.get(), "Quality", 3, "Colour Tuning")
        , form(std::make_unique<PPDDialogBase>())
        , tree(form->findChild<PPDTreeView *>(QStringLiteral("ppdTreeView")))
        , view(form->findChild<PPDOptionView *>(QStringLiteral("ppdOptionView")))
        , stack(view->findChild<QStackedWidget *>())
        , booleanView(view->findChild<PPDBooleanView *>())
        , list(view->findChild<QListWidget *>())
    {
        tree->setPPD(ppd.get());
        form->resize(800, 600);
        form->show();
    }
    PPDTree::BaseItem *item(const QString &text) const
    {
        return static_cast<PPDTree::BaseItem *>(
            tree->findItems(text, Qt::MatchStartsWith | Qt::MatchRecursive).value(0));
    }
    void click(const QString &text) const { click(item(text)); }
    void click(QTreeWidgetItem *item) const
    {
        tree->scrollToItem(item);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
    }
    void clickButton(int id) const
    {
        auto *button = booleanView->findChild<QRadioButton *>(id == 0 ? "button1" : "button2");
        // On the indicator: the button is wider than its text.
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    void clickRow(int row) const
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    }
    QByteArray marked(const QByteArray &keyword) const
    {
        ppd_choice_t *choice = ppdFindMarkedChoice(ppd.get(), keyword.constData());
        return choice ? QByteArray(choice->choice) : QByteArray();
    }

    PpdFilePtr ppd;
    NestedSubgroup subgroup;
    std::unique_ptr<PPDDialogBase> form;
    PPDTreeView *tree;
    PPDOptionView *view;
    QStackedWidget *stack;
    PPDBooleanView *booleanView;
    QListWidget *list;
};

} // namespace

class TestPPDEditors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        MimeSourceFactory_ppdwidgets::registerFactory();
        Editors editors;
        QVERIFY(editors.ppd && editors.subgroup.isValid());
        QCOMPARE(editors.view->currentPage(), int(PPDOptionView::EmptyPage));
    }

    void noEditor_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("title");
        QTest::newRow("root") << "Tree Fixture" << "No option selected";
        QTest::newRow("group") << "Extra" << "No option selected";
        QTest::newRow("subgroup") << "Colour Tuning" << "No option selected";
        QTest::newRow("pick many") << "Hole Punch" << "Hole Punch";
    }

    void noEditor()
    {
        QFETCH(QString, item);
        QFETCH(QString, title);
        Editors editors;
        editors.click(QStringLiteral("Quality"));
        QCOMPARE(editors.view->currentPage(), int(PPDOptionView::ListPage));
        editors.click(item);
        QCOMPARE(editors.view->title(), title);
        QCOMPARE(editors.view->currentPage(), int(PPDOptionView::EmptyPage));
    }

    void booleanEditor_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("selected");
        QTest::newRow("first choice current") << "Mirror Image" << QStringList{"Mirrored", "Normal"} << 0;
        QTest::newRow("second choice current") << "Glossy Finish" << QStringList{"Off", "On"} << 1;
        QTest::newRow("no current choice") << "Economy Mode" << QStringList{"On", "Off"} << 1;
        // Only two choices fit: the buttons keep what the last option showed.
        QTest::newRow("three choices") << "Three-Way Switch" << QStringList{"Mirrored", "Normal"} << 0;
    }

    void booleanEditor()
    {
        QFETCH(QString, item);
        QFETCH(QStringList, buttons);
        QFETCH(int, selected);
        Editors editors;
        editors.click(QStringLiteral("Mirror Image"));
        editors.click(item);
        QCOMPARE(editors.view->title(), item);
        QCOMPARE(editors.view->currentPage(), int(PPDOptionView::BooleanPage));
        QCOMPARE(QStringList({editors.booleanView->buttonText(0), editors.booleanView->buttonText(1)}), buttons);
        QCOMPARE(editors.booleanView->selectedButton(), selected);
    }

    void pickOneList_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QStringList>("choices");
        QTest::addColumn<int>("current");
        QTest::newRow("current choice") << "Quality" << QStringList{"Draft", "Normal", "Best"} << 1;
        QTest::newRow("undefined") << "Finisher Mode" << QStringList{"Off", "Staple"} << -1;
    }

    void pickOneList()
    {
        QFETCH(QString, item);
        QFETCH(QStringList, choices);
        QFETCH(int, current);
        Editors editors;
        editors.click(QStringLiteral("Saturation"));
        QSignalSpy changed(editors.view, &PPDOptionView::optionChanged);
        editors.click(item);
        QCOMPARE(editors.view->currentPage(), int(PPDOptionView::ListPage));
        QStringList shown;
        for (int i = 0; i < editors.list->count(); ++i)
            shown << editors.list->item(i)->text();
        QCOMPARE(shown, choices);
        QCOMPARE(editors.list->currentRow(), current);
        QCOMPARE(changed.count(), 0);
    }

    void installableOptions_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("boolean, read-only") << "Stapler" << false << false;
        QTest::newRow("boolean, allowed") << "Stapler" << true << true;
        QTest::newRow("list, read-only") << "Memory" << false << false;
        QTest::newRow("list, allowed") << "Memory" << true << true;
        QTest::newRow("other group, boolean") << "Glossy" << false << true;
        QTest::newRow("other group, list") << "Quality" << false << true;
    }

    void installableOptions()
    {
        QFETCH(QString, keyword);
        QFETCH(bool, allowed);
        QFETCH(bool, enabled);
        Editors editors;
        editors.view->setInstallableOptionsEditable(allowed);
        const QByteArray before = editors.marked(keyword.toLatin1());
        editors.click(editors.tree->findOption(keyword));
        QCOMPARE(editors.stack->isEnabled(), enabled);

        // Pick the choice that is not the current one.
        if (editors.view->currentPage() == PPDOptionView::BooleanPage)
            editors.clickButton(1 - editors.booleanView->selectedButton());
        else
            editors.clickRow((editors.list->currentRow() + 1) % editors.list->count());
        QCOMPARE(editors.marked(keyword.toLatin1()) != before, enabled);
        if (enabled)
            QVERIFY(editors.tree->findOption(keyword)->text(0).endsWith(
                QString::fromUtf8(ppdFindMarkedChoice(editors.ppd.get(), keyword.toLatin1().constData())->text) + '>'));
    }

    void conflictsWarnAndGoRed()
    {
        Editors editors;
        MessageBoxAnswerer answerer;
        editors.click(QStringLiteral("Saturation"));
        editors.clickRow(2);
        editors.click(QStringLiteral("Brightness"));
        editors.clickRow(1);
        QCOMPARE(answerer.count(), 1);
        const MessageBoxAnswerer::Box box = answerer.boxes().constFirst();
        QCOMPARE(box.title, QStringLiteral("Driver configuration"));
        QCOMPARE(box.buttons, QStringList{"OK"});
        QCOMPARE(box.text, QStringLiteral("You selected options that are in conflict. Try to resolve the\n"
                                          "problem before continuing:\n\n  Saturation = High\n  Brightness = Bright"));
        QVERIFY(editors.tree->hasConflicts());
        for (const char *text : {"Saturation", "Brightness", "Colour Tuning", "Print Quality", "Tree Fixture"})
            QVERIFY2(editors.item(QString::fromLatin1(text))->isConflict(), text);
        QVERIFY(!editors.item(QStringLiteral("Quality"))->isConflict());

        // Resolving the conflict clears the marks and says nothing.
        editors.clickRow(0);
        QVERIFY(!editors.tree->hasConflicts());
        QCOMPARE(answerer.count(), 1);
        QVERIFY(!editors.tree->rootItem()->isConflict());
    }

    void reloadChecksConstraints()
    {
        Editors editors;
        MessageBoxAnswerer answerer;
        QVERIFY(PPDTestFiles::mark(editors.ppd.get(), "Finish", "Staple"));
        editors.tree->reload();
        QCOMPARE(answerer.count(), 1);
        QCOMPARE(editors.item(QStringLiteral("Finisher Mode"))->text(0), QStringLiteral("Finisher Mode: <Staple>"));
        QVERIFY(editors.item(QStringLiteral("Stapler"))->isConflict());
    }

    void numericRange_data()
    {
        QTest::addColumn<int>("factor");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("pageStep");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("1 to 10") << 1 << 1.0 << 10.0 << 1 << QStringList{"1", "10"};
        QTest::newRow("0 to 100") << 1 << 0.0 << 100.0 << 5 << QStringList{"0", "100"};
        QTest::newRow("fractions cut") << 1 << 0.9 << 41.7 << 2 << QStringList{"0", "41"};
        QTest::newRow("real") << 1000 << 0.5 << 2.5 << 100 << QStringList{"0.500", "2.500"};
    }

    void numericRange()
    {
        QFETCH(int, factor);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(int, pageStep);
        QFETCH(QStringList, labels);
        PPDNumericView view;
        view.setScaleFactor(factor);
        view.setRange(minimum, maximum);
        auto *slider = view.findChild<QSlider *>();
        QCOMPARE(slider->minimum(), int(minimum * factor));
        QCOMPARE(slider->maximum(), int(maximum * factor));
        QCOMPARE(slider->pageStep(), pageStep);
        QCOMPARE(QStringList({view.findChild<QLabel *>("labelMin")->text(), view.findChild<QLabel *>("labelMax")->text()}),
                 labels);
    }

    void numericText_data()
    {
        QTest::addColumn<int>("factor");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QList<double>>("emitted");
        QTest::newRow("letters refused") << 1 << "abc" << "5" << QList<double>{};
        QTest::newRow("number taken") << 1 << "42" << "42" << QList<double>{4, 42};
        // Only the keystroke that spoils the number is dropped.
        QTest::newRow("point refused for integers") << 1 << "2.5" << "25" << QList<double>{2, 25};
        QTest::newRow("real taken") << 1000 << "1.25" << "1.25" << QList<double>{1, 1, 1.2, 1.25};
        QTest::newRow("comma refused") << 1000 << "2," << "2" << QList<double>{2};
    }

    void numericText()
    {
        QFETCH(int, factor);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QList<double>, emitted);
        PPDNumericView view;
        view.setScaleFactor(factor);
        view.setRange(0.0, 100.0);
        view.setValue(5.0);
        auto *edit = view.findChild<QLineEdit *>();
        QCOMPARE(edit->text(), factor == 1 ? QStringLiteral("5") : QStringLiteral("5.000"));

        QSignalSpy values(&view, &PPDNumericView::valueChanged);
        edit->selectAll();
        QTest::keyClicks(edit, typed);
        QCOMPARE(edit->text(), shown);
        QList<double> got;
        for (const QList<QVariant> &args : values)
            got << args.at(0).toDouble();
        QCOMPARE(got, emitted);
        QCOMPARE(view.findChild<QSlider *>()->value(), int(shown.toDouble() * factor));
    }
};

QTEST_MAIN(TestPPDEditors)
#include "tst_ppdeditors.moc"
