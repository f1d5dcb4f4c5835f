#include "mimesourcefactory_ppdwidgets.h"
#include "ppdbooleanview.h"
#include "ppddialogbase.h"
#include "ppdfileptr.h"
#include "ppdnumericview.h"
#include "ppdoptionview.h"
#include "ppdpicturetable.h"
#include "ppdtreebaseitem.h"
#include "ppdtreeview.h"
#include "testpaths.h"

#include <QDir>
#include <QListWidget>
#include <QRadioButton>
#include <QStackedWidget>
#include <QtTest>

using PPDTree::BaseItem;

namespace {

// The fixture with options of every kind.
const QString Fixture = TestPaths::sourceDir() + QStringLiteral("/tests/ppd/data/tree-fixture.ppd");

// The dialog form, shown, over a PPD.
struct Tree
{
    explicit Tree(const QString &path = Fixture)
        : ppd(ppdOpenFile(QFile::encodeName(path).constData()))
        , view(form.findChild<PPDTreeView *>(QStringLiteral("ppdTreeView")))
        , editor(form.findChild<PPDOptionView *>(QStringLiteral("ppdOptionView")))
        , list(editor->findChild<QListWidget *>())
    {
        if (ppd)
            ppdMarkDefaults(ppd.get()); // as the dialog does
        view->setPPD(ppd.get());
        form.resize(800, 600);
        form.show();
    }
    // An option by keyword, or a group (or the root) by "group:TEXT".
    BaseItem *item(const QString &name) const
    {
        if (!name.startsWith(QLatin1String("group:")))
            return view->findOption(name);
        const auto found = view->findItems(name.mid(6), Qt::MatchExactly | Qt::MatchRecursive);
        return found.size() == 1 ? static_cast<BaseItem *>(found.first()) : nullptr;
    }
    QStringList render() const
    {
        QStringList lines;
        for (QTreeWidgetItemIterator it(view); *it; ++it) {
            int depth = 0;
            for (QTreeWidgetItem *up = (*it)->parent(); up; up = up->parent())
                ++depth;
            lines << QString(depth * 2, QLatin1Char(' ')) + (*it)->text(0);
        }
        return lines;
    }
    void click(const QString &name) const
    {
        view->scrollToItem(item(name));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualItemRect(item(name)).center());
    }
    QByteArray marked(const QString &keyword) const
    {
        ppd_choice_t *choice = ppdFindMarkedChoice(ppd.get(), keyword.toLatin1().constData());
        return choice ? QByteArray(choice->text) : QByteArray();
    }

    PpdFilePtr ppd;
    PPDDialogBase form;
    PPDTreeView *view;
    PPDOptionView *editor;
    QListWidget *list;
};

} // namespace

// The option tree, its pictures and the editor beside it.
class TestPPDTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { MimeSourceFactory_ppdwidgets::registerFactory(); }

    // The table embeds every drawing of ppd/pictures, pixel for pixel.
    void pictureTable()
    {
        const QDir dir(TestPaths::sourceDir() + QStringLiteral("/ppd/pictures"));
        QStringList names;
        for (const PPDPictureRow *row = ppdPictureTable; row->width != 0; ++row) {
            names << QString::fromLatin1(row->name);
            const QImage image = MimeSourceFactory_ppdwidgets::instance()->data(names.last());
            // Qt reads a "@2x" file as a picture of pixel ratio 2; the table keeps pixels.
            QImage drawn(dir.filePath(names.last()));
            drawn.setDevicePixelRatio(1.0);
            QCOMPARE(image.convertToFormat(QImage::Format_ARGB32), drawn.convertToFormat(QImage::Format_ARGB32));
        }
        names.sort();
        QCOMPARE(names, dir.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name));
    }

    void pictureLookup_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::newRow("not square") << "duplex.png" << QSize(16, 14);
        QTest::newRow("capital letters") << "PAGESIZE.PNG" << QSize();
    }

    void pictureLookup()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        const QImage first = MimeSourceFactory_ppdwidgets::instance()->data(name);
        QCOMPARE(first.isNull() ? QSize() : first.size(), size);
        // Decoded once: later copies share the data, and so the cache key.
        QCOMPARE(MimeSourceFactory_ppdwidgets::instance()->data(name).cacheKey(), first.cacheKey());
        const QPixmap pixmap = pixmapFromMimeSource(name);
        QCOMPARE(pixmap.isNull() ? QSize() : pixmap.size(), size);
    }

    void structure_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("lines");

        // Both samples have a PageRegion option that must not show.
        QTest::newRow("groups last first, options in PPD order")
            << TestPaths::samplePpd(QStringLiteral("acme-mfp4200.ppd"))
            << QStringList{"Acme MFP 4200 Series", "  General", "    Media Size: <US Letter>",
                           "    Paper Source: <Automatic>", "    Media Type: <Plain Paper>",
                           "    Two-Sided Printing: <Off>", "    Resolution: <600 dpi>", "    Toner Save: <Off>",
                           "    Toner Darkness: <0 (Printer Setting)>", "  Installable Options",
                           "    Duplex Unit: <Not Installed>", "    Lower Tray (Tray 2): <Not Installed>",
                           "    Printer Memory: <64 MB>"};
        QTest::newRow("Latin-1 texts")
            << TestPaths::samplePpd(QStringLiteral("acme-laser1610-de.ppd"))
            << QStringList{"Acme Laser 1610 Series", "  Druckqualität", "    Auflösung: <600 dpi>",
                           "    Druckdichte: <3 (Normal)>", "    Tonersparmodus: <Aus>", "  Allgemein",
                           "    Papiergröße: <A4>", "    Papierzufuhr: <Automatisch>", "    Medientyp: <Normalpapier>",
                           "    Beidseitiger Druck: <Aus>"};
        QTest::newRow("bad defaults")
            << Fixture
            << QStringList{"Tree Fixture", "  JCL", "    Gamma Correction: <1.8>", "  Installable Options",
                           "    Stapler: <Not Installed>", "    Printer Memory: <64 MB>", "  extra",
                           "    Hole Punch: <None>", "    Scale: <2.5>", "  Extra", "    Mirror Image: <Mirrored>",
                           "    Three-Way Switch: <Left>", "    Economy Mode: <Undefined>",
                           "    Glossy Finish: <On>", "  Print Quality", "    Quality: <Normal>",
                           "    Finisher Mode: <Undefined>", "    Tint: <None>", "    Saturation: <Normal>",
                           "    Brightness: <Normal>"};
    }

    void structure()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, lines);
        Tree tree(path);
        QCOMPARE(tree.render(), lines);
    }

    void conflictGoesUpAndClearsDown()
    {
        Tree tree;
        tree.item(QStringLiteral("Saturation"))->setConflict(true);
        for (const char *name : {"Saturation", "group:Print Quality", "group:Tree Fixture"})
            QVERIFY2(tree.item(QString::fromLatin1(name))->isConflict(), name);
        for (const char *name : {"Brightness", "Quality", "group:JCL"})
            QVERIFY2(!tree.item(QString::fromLatin1(name))->isConflict(), name);
        // Painted red, and white on the selection but for the value.
        QPalette palette;
        QList<QColor> colours;
        for (const PPDTree::LabelRun &run : tree.item(QStringLiteral("Saturation"))->labelRuns(palette, true))
            colours << run.colour;
        QCOMPARE(colours, QList<QColor>({Qt::white, Qt::red, Qt::white}));
        QCOMPARE(tree.item(QStringLiteral("group:Print Quality"))->labelRuns(palette, false).value(0).colour,
                 QColor(Qt::red));

        tree.item(QStringLiteral("Gamma"))->setConflict(true);
        tree.view->rootItem()->setConflict(false);
        for (QTreeWidgetItemIterator it(tree.view); *it; ++it)
            QVERIFY2(!static_cast<BaseItem *>(*it)->isConflict(), qPrintable((*it)->text(0)));
        QCOMPARE(tree.item(QStringLiteral("Quality"))->labelRuns(palette, false).value(1).colour,
                 QColor(Qt::darkGreen));
        // The same marks stay readable on a dark scheme.
        palette.setColor(QPalette::Base, Qt::black);
        QVERIFY(tree.item(QStringLiteral("Quality"))->labelRuns(palette, false).value(1).colour.lightness() >= 128);

        // A check that changes no flag repaints no row: a repaint of every
        // row on every change makes a big tree freeze.
        QSignalSpy repaints(tree.view->model(), &QAbstractItemModel::dataChanged);
        tree.view->checkConstraints();
        QCOMPARE(repaints.count(), 0);
    }

    void rebuildAndClear()
    {
        Tree tree;
        const QStringList first = tree.render();
        QSignalSpy selection(tree.view, qOverload<QTreeWidgetItem *>(&PPDTreeView::selectionChanged));
        tree.view->setCurrentItem(tree.item(QStringLiteral("Quality")));
        tree.view->setPPD(tree.ppd.get());
        QCOMPARE(tree.render(), first);
        // Whoever showed the old item is told that it is gone.
        QCOMPARE(selection.last().at(0).value<QTreeWidgetItem *>(), nullptr);
        tree.view->setPPD(nullptr);
        QCOMPARE(tree.view->topLevelItemCount(), 0);
        QVERIFY(!tree.view->findOption(QStringLiteral("Quality")));
    }

    // The picture of each item, and the editor that shows when it is clicked.
    void itemShown_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("picture");
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("choices");
        QTest::addColumn<int>("current");
        using L = QStringList;
        const int empty = PPDOptionView::EmptyPage;
        const int boolean = PPDOptionView::BooleanPage;
        const int list = PPDOptionView::ListPage;
        const QString none = QStringLiteral("No option selected");

        QTest::newRow("root") << "group:Tree Fixture" << "printer.png" << empty << none << L() << -1;
        QTest::newRow("group Extra") << "group:Extra" << "printer_extra.png" << empty << none << L() << -1;
        QTest::newRow("group extra") << "group:extra" << "printer_general.png" << empty << none << L() << -1;
        QTest::newRow("Installable Options")
            << "group:Installable Options" << "printer_install.png" << empty << none << L() << -1;
        QTest::newRow("pick many") << "Punch" << "list.png" << empty << "Hole Punch" << L() << -1;
        QTest::newRow("boolean \"true\" is not \"True\"")
            << "Mirror" << "bool_off.png" << boolean << "Mirror Image" << L{"Mirrored", "Normal"} << 0;
        QTest::newRow("boolean \"True\"")
            << "Glossy" << "bool_on.png" << boolean << "Glossy Finish" << L{"Off", "On"} << 1;
        QTest::newRow("boolean, no current choice")
            << "Economy" << "" << boolean << "Economy Mode" << L{"On", "Off"} << 1;
        // Only two choices fit: the buttons keep what the option before showed.
        QTest::newRow("boolean, three choices")
            << "Switch" << "bool_off.png" << boolean << "Three-Way Switch" << L{"Mirrored", "Normal"} << 0;
        QTest::newRow("Quality shares the page size picture")
            << "Quality" << "pagesize.png" << list << "Quality" << L{"Draft", "Normal", "Best"} << 1;
        QTest::newRow("pick one, undefined")
            << "Finish" << "list.png" << list << "Finisher Mode" << L{"Off", "Staple"} << -1;
    }

    void itemShown()
    {
        QFETCH(QString, item);
        QFETCH(QString, picture);
        QFETCH(int, page);
        QFETCH(QString, title);
        QFETCH(QStringList, choices);
        QFETCH(int, current);
        Tree tree;
        QVERIFY(tree.item(item));
        QCOMPARE(tree.item(item)->pictureName(), picture);
        QCOMPARE(tree.item(item)->picture().width(), picture.isEmpty() ? 0 : 16);

        tree.click(QStringLiteral("Mirror"));
        QSignalSpy changed(tree.editor, &PPDOptionView::optionChanged);
        tree.click(item);
        QCOMPARE(tree.editor->title(), title);
        QCOMPARE(tree.editor->currentPage(), page);
        auto *booleanView = tree.editor->findChild<PPDBooleanView *>();
        QStringList shown;
        int selected = tree.list->currentRow();
        if (page == PPDOptionView::BooleanPage) {
            shown << booleanView->buttonText(0) << booleanView->buttonText(1);
            selected = booleanView->selectedButton();
        }
        for (int i = 0; page == PPDOptionView::ListPage && i < tree.list->count(); ++i)
            shown << tree.list->item(i)->text();
        QCOMPARE(shown, choices);
        QCOMPARE(page == PPDOptionView::EmptyPage ? -1 : selected, current);
        QCOMPARE(changed.count(), 0); // showing is not choosing
    }

    void installableOptions_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("boolean, read-only") << "Stapler" << false << false;
        QTest::newRow("boolean, allowed") << "Stapler" << true << true;
        QTest::newRow("list, read-only") << "Memory" << false << false;
        QTest::newRow("other group") << "Quality" << false << true;
    }

    void installableOptions()
    {
        QFETCH(QString, keyword);
        QFETCH(bool, allowed);
        QFETCH(bool, enabled);
        Tree tree;
        tree.editor->setInstallableOptionsEditable(allowed);
        const QByteArray before = tree.marked(keyword);
        tree.click(keyword);
        QCOMPARE(tree.editor->findChild<QStackedWidget *>()->isEnabled(), enabled);

        // Pick the choice that is not the current one.
        if (tree.editor->currentPage() == PPDOptionView::BooleanPage) {
            auto *booleanView = tree.editor->findChild<PPDBooleanView *>();
            const char *other = booleanView->selectedButton() ? "button1" : "button2";
            auto *button = booleanView->findChild<QRadioButton *>(other);
            // On the indicator: the button is wider than its text.
            QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
        } else {
            QListWidgetItem *next = tree.list->item((tree.list->currentRow() + 1) % tree.list->count());
            QTest::mouseClick(tree.list->viewport(), Qt::LeftButton, {}, tree.list->visualItemRect(next).center());
        }
        QCOMPARE(tree.marked(keyword) != before, enabled);
        QVERIFY(tree.item(keyword)->text(0).endsWith(QString::fromUtf8(tree.marked(keyword)) + '>'));
    }

    void numericEditor_data()
    {
        QTest::addColumn<int>("factor");
        QTest::addColumn<double>("minimum"); // and the value at first
        QTest::addColumn<double>("maximum");
        QTest::addColumn<int>("pageStep");
        QTest::addColumn<QStringList>("labels");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QList<double>>("emitted");
        using L = QStringList;
        using D = QList<double>;
        QTest::newRow("1 to 10, letters refused") << 1 << 1.0 << 10.0 << 1 << L{"1", "10"} << "abc" << "1" << D{};
        QTest::newRow("0 to 100, number taken") << 1 << 0.0 << 100.0 << 5 << L{"0", "100"} << "42" << "42" << D{4, 42};
        // Only the keystroke that spoils the number is dropped.
        QTest::newRow("fractions cut, point refused")
            << 1 << 0.9 << 41.7 << 2 << L{"0", "41"} << "2.5" << "25" << D{2, 25};
        QTest::newRow("real") << 1000 << 0.5 << 2.5 << 100 << L{"0.500", "2.500"} << "1.25" << "1.25"
                              << D{1, 1, 1.2, 1.25};
    }

    void numericEditor()
    {
        QFETCH(int, factor);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        QFETCH(int, pageStep);
        QFETCH(QStringList, labels);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QList<double>, emitted);
        PPDNumericView view;
        view.setScaleFactor(factor);
        view.setRange(minimum, maximum);
        view.setValue(minimum);
        auto *slider = view.findChild<QSlider *>();
        QCOMPARE(QList<int>({slider->minimum(), slider->maximum(), slider->pageStep()}),
                 QList<int>({int(minimum * factor), int(maximum * factor), pageStep}));
        QCOMPARE(QStringList({view.findChild<QLabel *>("labelMin")->text(),
                              view.findChild<QLabel *>("labelMax")->text()}),
                 labels);

        QSignalSpy values(&view, &PPDNumericView::valueChanged);
        auto *edit = view.findChild<QLineEdit *>();
        edit->selectAll();
        QTest::keyClicks(edit, typed);
        QCOMPARE(edit->text(), shown);
        QList<double> got;
        for (const QList<QVariant> &args : values)
            got << args.at(0).toDouble();
        QCOMPARE(got, emitted);
        QCOMPARE(slider->value(), int(shown.toDouble() * factor));
    }
};

QTEST_MAIN(TestPPDTree)
#include "tst_ppdtree.moc"
