#include "mimesourcefactory_ppdwidgets.h"
#include "ppdpicturetable.h"
#include "testpaths.h"

#include <QtTest>

class TestPPDPictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        MimeSourceFactory_ppdwidgets::registerFactory();
        m_factory = MimeSourceFactory_ppdwidgets::instance();
        QVERIFY(m_factory);
    }

    // The table holds every drawing of ppd/pictures, in its order, decoded
    // to the very pixels of the PNG.
    void table()
    {
        const QStringList order{
            "bool_off.png",        "bool_on.png",         "brightness.png",  "color_opt.png",
            "contrast.png",        "cyan.png",            "dither.png",      "duplex.png",
            "gamma.png",           "gsresol.png",         "imagetype.png",   "inputslot.png",
            "list.png",            "magenta.png",         "numeric.png",     "pagesize.png",
            "printer_adjust.png",  "printer_extra.png",   "printer_general.png", "printer_install.png",
            "printer_jcl.png",     "printer.png",         "resol.png",       "saturation.png",
            "yellow.png"};
        QStringList names;
        for (const PPDPictureRow *row = ppdPictureTable; row->width != 0; ++row) {
            const QString name = QString::fromLatin1(row->name);
            names << name;
            QVERIFY(row->depth == 32 && row->alpha && row->numColors == 0);
            const QImage source(TestPaths::sourceDir() + QStringLiteral("/ppd/pictures/") + name);
            QCOMPARE(m_factory->data(name).convertToFormat(QImage::Format_ARGB32),
                     source.convertToFormat(QImage::Format_ARGB32));
        }
        QCOMPARE(names, order);
        QCOMPARE(m_factory->data(QStringLiteral("duplex.png")).size(), QSize(16, 14));
        QCOMPARE(m_factory->data(QStringLiteral("imagetype.png")).size(), QSize(18, 18));
    }

    void decodedOnce()
    {
        const QImage first = m_factory->data(QStringLiteral("list.png"));
        QVERIFY(!first.isNull());
        // Copies of one decoded image share their data, and so their key.
        QCOMPARE(m_factory->data(QStringLiteral("list.png")).cacheKey(), first.cacheKey());
        QCOMPARE(pixmapFromMimeSource(QStringLiteral("list.png")).size(), QSize(16, 16));
    }

    void unknownNamesAreEmpty_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("capital letters") << "PAGESIZE.PNG";
        QTest::newRow("no extension") << "pagesize";
        QTest::newRow("empty") << "";
        QTest::newRow("null") << QString();
    }

    void unknownNamesAreEmpty()
    {
        QFETCH(QString, name);
        QVERIFY(m_factory->data(name).isNull());
        QVERIFY(m_factory->data(name).isNull());
        QVERIFY(pixmapFromMimeSource(name).isNull());
    }

    void adjustPictureIsThere()
    {
        const QImage image = m_factory->data(QStringLiteral("printer_adjust.png"));
        QCOMPARE(image.size(), QSize(16, 16));
        QVERIFY(image.pixel(8, 8) != image.pixel(0, 0));
    }

private:
    MimeSourceFactory_ppdwidgets *m_factory = nullptr;
};

QTEST_MAIN(TestPPDPictures)
#include "tst_ppdpictures.moc"
