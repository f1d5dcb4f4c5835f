#include "mimesourcefactory_ppdwidgets.h"
#include "nestedsubgroup.h"
#include "ppdtestfiles.h"
#include "ppdtreenumericalitem.h"
#include "ppdtreeoptionitem.h"
#include "ppdtreeview.h"

#include <QtTest>

#include <memory>

using PPDTree::BaseItem;
using PPDTree::OptionItem;

namespace {

QString fixture()
{
    return PPDTestFiles::fixturePpd(QStringLiteral("tree-fixture.ppd"));
}

// A tree view over an open PPD; the view goes first, the PPD last.
struct Tree
{
    explicit Tree(const QString &path, bool nest = false)
        : ppd(PPDTestFiles::open(path))
    {
        if (nest)
            subgroup = std::make_unique<NestedSubgroup>(ppd.get(), "Quality", 3, "Colour Tuning");
        view = std::make_unique<PPDTreeView>();
        view->setPPD(ppd.get());
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
        for (QTreeWidgetItemIterator it(view.get()); *it; ++it) {
            int depth = 0;
            for (QTreeWidgetItem *up = (*it)->parent(); up; up = up->parent())
                ++depth;
            lines << QString(depth * 2, QLatin1Char(' ')) + (*it)->text(0);
        }
        return lines;
    }

    PpdFilePtr ppd;
    std::unique_ptr<NestedSubgroup> subgroup;
    std::unique_ptr<PPDTreeView> view;
};

} // namespace

class TestPPDTree : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        MimeSourceFactory_ppdwidgets::registerFactory();
        QVERIFY(PPDTestFiles::open(fixture()));
    }

    void structure_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("nest");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("groups last first, options in PPD order")
            << PPDTestFiles::samplePpd(QStringLiteral("acme-mfp4200.ppd")) << false
            << QStringList{"Acme MFP 4200 Series", "  General", "    Media Size: <US Letter>",
                           "    Paper Source: <Automatic>", "    Media Type: <Plain Paper>",
                           "    Two-Sided Printing: <Off>", "    Resolution: <600 dpi>", "    Toner Save: <Off>",
                           "    Toner Darkness: <0 (Printer Setting)>", "  Installable Options",
                           "    Duplex Unit: <Not Installed>", "    Lower Tray (Tray 2): <Not Installed>",
                           "    Printer Memory: <64 MB>"};
        QTest::newRow("Latin-1 texts")
            << PPDTestFiles::samplePpd(QStringLiteral("acme-laser1610-de.ppd")) << false
            << QStringList{"Acme Laser 1610 Series", "  Druckqualität", "    Auflösung: <600 dpi>",
                           "    Druckdichte: <3 (Normal)>", "    Tonersparmodus: <Aus>", "  Allgemein",
                           "    Papiergröße: <A4>", "    Papierzufuhr: <Automatisch>", "    Medientyp: <Normalpapier>",
                           "    Beidseitiger Druck: <Aus>"};
        // Subgroups are built after the options, each to the top.
        QTest::newRow("subgroup, bad defaults") << fixture() << true
            << QStringList{"Tree Fixture", "  JCL", "    Gamma Correction: <1.8>", "  Installable Options",
                           "    Stapler: <Not Installed>", "    Printer Memory: <64 MB>", "  extra",
                           "    Hole Punch: <None>", "    Scale: <2.5>", "  Extra", "    Mirror Image: <Mirrored>",
                           "    Three-Way Switch: <Left>", "    Economy Mode: <Undefined>",
                           "    Glossy Finish: <On>", "  Print Quality", "    Colour Tuning",
                           "      Saturation: <Normal>", "      Brightness: <Normal>", "    Quality: <Normal>",
                           "    Finisher Mode: <Undefined>", "    Tint: <None>"};
    }

    void structure()
    {
        QFETCH(QString, path);
        QFETCH(bool, nest);
        QFETCH(QStringList, lines);
        Tree tree(path, nest);
        QVERIFY(!nest || tree.subgroup->isValid());
        QCOMPARE(tree.render(), lines);
        QCOMPARE(tree.view->topLevelItem(0), tree.view->rootItem());
    }

    void pageRegionNeverShown_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"acme-laser1610.ppd", "acme-laser1610-de.ppd", "acme-colorlaser2550.ppd",
                                 "acme-mfp4200.ppd", "globex-pagewriter40.ppd"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void pageRegionNeverShown()
    {
        QFETCH(QString, name);
        Tree tree(PPDTestFiles::samplePpd(name));
        QVERIFY(ppdFindOption(tree.ppd.get(), "PageRegion"));
        QVERIFY(tree.item(QStringLiteral("PageSize")));
        QVERIFY(!tree.item(QStringLiteral("PageRegion")));
        int options = 0;
        for (int i = 0; i < tree.ppd->num_groups; ++i)
            options += tree.ppd->groups[i].num_options;
        QCOMPARE(tree.view->findItems(QStringLiteral("*: <*>"), Qt::MatchWildcard | Qt::MatchRecursive).size(),
                 options - 1);
    }

    void pictures_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("picture");
        QTest::newRow("Quality shares the page size picture") << "Quality" << "pagesize.png";
        QTest::newRow("unknown keyword") << "Finish" << "list.png";
        QTest::newRow("Saturation") << "Saturation" << "saturation.png";
        QTest::newRow("boolean \"True\"") << "Glossy" << "bool_on.png";
        QTest::newRow("boolean \"true\" is not \"True\"") << "Mirror" << "bool_off.png";
        QTest::newRow("boolean, other choice") << "Switch" << "bool_off.png";
        QTest::newRow("boolean without choice") << "Economy" << "";
        QTest::newRow("group Extra") << "group:Extra" << "printer_extra.png";
        QTest::newRow("group extra") << "group:extra" << "printer_general.png";
        QTest::newRow("group JCL") << "group:JCL" << "printer_jcl.png";
        QTest::newRow("group Installable Options") << "group:Installable Options" << "printer_install.png";
        QTest::newRow("root") << "group:Tree Fixture" << "printer.png";
    }

    void pictures()
    {
        QFETCH(QString, item);
        QFETCH(QString, picture);
        Tree tree(fixture());
        BaseItem *found = tree.item(item);
        QVERIFY(found);
        QCOMPARE(found->pictureName(), picture);
        QCOMPARE(found->picture().width(), picture.isEmpty() ? 0 : 16);
    }

    void keywordPictures_data()
    {
        QTest::addColumn<QByteArray>("keyword");
        QTest::addColumn<QByteArray>("fallback");
        QTest::addColumn<QString>("picture");
        QTest::newRow("lower case") << QByteArray("pagesize") << QByteArray("list.png") << "pagesize.png";
        QTest::newRow("upper case") << QByteArray("MEDIATYPE") << QByteArray("list.png") << "pagesize.png";
        QTest::newRow("GSResolution") << QByteArray("GSResolution") << QByteArray("list.png") << "gsresol.png";
        QTest::newRow("Dithering") << QByteArray("Dithering") << QByteArray("list.png") << "dither.png";
        QTest::newRow("prefixed") << QByteArray("StpBrightness") << QByteArray("list.png") << "list.png";
        QTest::newRow("fallback") << QByteArray("Unknown") << QByteArray("numeric.png") << "numeric.png";
    }

    void keywordPictures()
    {
        QFETCH(QByteArray, keyword);
        QFETCH(QByteArray, fallback);
        QFETCH(QString, picture);
        QCOMPARE(OptionItem::keywordPictureName(keyword.constData(), fallback.constData()), picture);
    }

    void conflictGoesUpAndClearsDown()
    {
        Tree tree(fixture(), true);
        BaseItem *saturation = tree.item(QStringLiteral("Saturation"));
        saturation->setConflict(true);
        for (const char *name : {"Saturation", "group:Colour Tuning", "group:Print Quality", "group:Tree Fixture"})
            QVERIFY2(tree.item(QString::fromLatin1(name))->isConflict(), name);
        for (const char *name : {"Brightness", "Quality", "group:JCL"})
            QVERIFY2(!tree.item(QString::fromLatin1(name))->isConflict(), name);

        tree.item(QStringLiteral("Gamma"))->setConflict(true);
        tree.view->rootItem()->setConflict(false);
        for (QTreeWidgetItemIterator it(tree.view.get()); *it; ++it)
            QVERIFY2(!static_cast<BaseItem *>(*it)->isConflict(), qPrintable((*it)->text(0)));
    }

    void labelRuns_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<bool>("conflict");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QList<QColor>>("colours");

        const QColor text(1, 2, 3);  // the palette's
        const QColor white(Qt::white);
        const QColor red(Qt::red);
        const QStringList quality{"Quality: <", "Normal", ">"};
        QTest::newRow("option") << "Quality" << false << false << quality
                                << QList<QColor>{text, QColor(Qt::darkGreen), text};
        QTest::newRow("conflict") << "Quality" << true << false << quality << QList<QColor>{text, red, text};
        QTest::newRow("conflict, selected") << "Quality" << true << true << quality
                                            << QList<QColor>{white, red, white};
        QTest::newRow("group, selected") << "group:Extra" << false << true << QStringList{"Extra"}
                                         << QList<QColor>{white};
        QTest::newRow("group, conflict") << "group:Extra" << true << false << QStringList{"Extra"}
                                         << QList<QColor>{red};
    }

    void labelRuns()
    {
        QFETCH(QString, item);
        QFETCH(bool, conflict);
        QFETCH(bool, selected);
        QFETCH(QStringList, texts);
        QFETCH(QList<QColor>, colours);
        Tree tree(fixture());
        BaseItem *found = tree.item(item);
        found->setConflict(conflict);
        QPalette palette;
        palette.setColor(QPalette::Text, QColor(1, 2, 3));
        QStringList runTexts;
        QList<QColor> runColours;
        for (const PPDTree::LabelRun &run : found->labelRuns(palette, selected)) {
            runTexts << run.text;
            runColours << run.colour;
        }
        QCOMPARE(runTexts, texts);
        QCOMPARE(runColours, colours);
    }

    void numericalItem_data()
    {
        QTest::addColumn<QByteArray>("keyword");
        QTest::addColumn<int>("realValue");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("picture");
        QTest::newRow("2.5 as an integer") << QByteArray("Scale") << 0 << "Scale: <2>" << "numeric.png";
        QTest::newRow("2.5 as a real") << QByteArray("Scale") << 1 << "Scale: <2.500>" << "numeric.png";
        QTest::newRow("keyword picture") << QByteArray("Gamma") << 0 << "Gamma Correction: <1>" << "gamma.png";
        QTest::newRow("nothing marked") << QByteArray("Finish") << 1 << "Finisher Mode: <0.000>" << "numeric.png";
    }

    void numericalItem()
    {
        QFETCH(QByteArray, keyword);
        QFETCH(int, realValue);
        QFETCH(QString, label);
        QFETCH(QString, picture);
        PpdFilePtr ppd = PPDTestFiles::open(fixture());
        PPDTreeView view;
        auto *root = new BaseItem(ppd.get(), &view);
        auto *item = new PPDTree::NumericalItem(ppd.get(), ppdFindOption(ppd.get(), keyword.constData()), root);
        item->setRealValue(realValue);
        QCOMPARE(item->numerical(), 1);
        QCOMPARE(item->text(0), label);
        QCOMPARE(item->pictureName(), picture);
        // The painted value always has three decimals.
        QCOMPARE(item->labelRuns(QPalette(), false).value(1).text, QString::asprintf("%.3f", item->value()));
        // Numerical items stay out of the dictionary, and so of constraints.
        QHash<QString, BaseItem *> dictionary;
        root->registerIn(dictionary);
        QVERIFY(dictionary.isEmpty());
    }

    void rebuildAndClear()
    {
        Tree tree(fixture());
        const QStringList first = tree.render();
        QSignalSpy selection(tree.view.get(), qOverload<QTreeWidgetItem *>(&PPDTreeView::selectionChanged));
        tree.view->setCurrentItem(tree.item(QStringLiteral("Quality")));
        QCOMPARE(selection.count(), 1);

        tree.view->setPPD(tree.ppd.get());
        QCOMPARE(tree.render(), first);
        // Whoever showed the old item is told that it is gone.
        QVERIFY(selection.count() > 1);
        QCOMPARE(selection.last().at(0).value<QTreeWidgetItem *>(), nullptr);

        tree.view->setPPD(nullptr);
        QCOMPARE(tree.view->topLevelItemCount(), 0);
        QVERIFY(!tree.view->findOption(QStringLiteral("Quality")));
        QVERIFY(tree.view->conflictMessage().isEmpty());
    }
};

QTEST_MAIN(TestPPDTree)
#include "tst_ppdtree.moc"
