#include "queuewizuiloader.h"
#include "testpaths.h"
#include "wizardpagetitle.h"
#include "wizardpagetitleuiloader.h"

#include <QDialog>
#include <QDomDocument>
#include <QImage>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const char WizardForm[] = R"(<ui version="4.0"><class>W</class>
<widget class="QWizard" name="W">%1</widget>
<customwidgets><customwidget><class>WizardPageTitle</class><extends>QFrame</extends>
<header>wizardpagetitle.h</header></customwidget></customwidgets></ui>)";

const char TitledPage[] = R"(<widget class="QWizardPage" name="page%1">
<layout class="QVBoxLayout" name="layout%1"><item>
<widget class="WizardPageTitle" name="T%1"><property name="title"><string>Title %1</string></property></widget>
</item></layout></widget>)";

QByteArray wizardForm(int titledPages)
{
    QString pages;
    for (int i = 1; i <= titledPages; ++i)
        pages += QString::fromLatin1(TitledPage).arg(i);
    return QString::fromLatin1(WizardForm).arg(pages).toUtf8();
}

QByteArray topLevelForm(const char *cls)
{
    return QStringLiteral("<ui version=\"4.0\"><class>F</class><widget class=\"%1\" name=\"F\"/></ui>")
        .arg(QLatin1String(cls))
        .toUtf8();
}

QString sourceForm(const char *name)
{
    return TestPaths::sourceDir() + QStringLiteral("/ui/") + QLatin1String(name);
}

// The program's wizard form without one of its widgets.
QByteArray formWithout(const QString &objectName)
{
    QFile file(sourceForm("AddPrinterWizardBase.ui"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    QDomDocument doc;
    doc.setContent(&file);
    const QDomNodeList widgets = doc.elementsByTagName(QStringLiteral("widget"));
    for (int i = 0; i < widgets.count(); ++i) {
        QDomElement w = widgets.at(i).toElement();
        if (w.attribute(QStringLiteral("name")) == objectName) {
            QDomNode item = w.parentNode();
            if (item.nodeName() == QLatin1String("item"))
                item.parentNode().removeChild(item);
            else
                item.removeChild(w);
            break;
        }
    }
    return doc.toByteArray();
}

} // namespace

class TestUiLoader : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            return QString();
        file.write(content);
        return file.fileName();
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not).*")));
    }

    void loadAs_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("created");
        QTest::addColumn<QString>("warning");

        QTest::newRow("no class attribute") << QByteArray("<ui version=\"4.0\"><widget name=\"x\"/></ui>")
                                            << "AddPrinterWizard" << "" << "can't find 'class' attribute";
        QTest::newRow("no widget at all") << QByteArray("<ui version=\"4.0\"/>") << "AddPrinterWizard" << ""
                                          << "can't find 'class' attribute";
        QTest::newRow("not a form") << QByteArray("<ui") << "AddPrinterWizard" << "" << "";
        QTest::newRow("QWizard form as the wizard") << topLevelForm("QWizard") << "AddPrinterWizard"
                                                    << "AddPrinterWizard" << "";
        QTest::newRow("the wizard's own class") << topLevelForm("AddPrinterWizard") << "AddPrinterWizard"
                                                << "AddPrinterWizard" << "";
        // A dialog has no pages: QWizard between them makes the difference.
        QTest::newRow("QDialog form refused") << topLevelForm("QDialog") << "AddPrinterWizard" << ""
                                              << "wrong className class <AddPrinterWizard> is NOT inherits <QDialog>";
        QTest::newRow("QFrame form as a title") << topLevelForm("QFrame") << "WizardPageTitle"
                                                << "WizardPageTitle" << "";
        QTest::newRow("title refused for a wizard form") << topLevelForm("QWizard") << "WizardPageTitle" << ""
                                                         << "wrong className class <WizardPageTitle> is NOT inherits <QWizard>";
        QTest::newRow("empty class name loads as is") << topLevelForm("QDialog") << "" << "QDialog" << "";
    }

    void loadAs()
    {
        QFETCH(QByteArray, form);
        QFETCH(QString, className);
        QFETCH(QString, created);
        QFETCH(QString, warning);

        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        const qsizetype widgetsBefore = QApplication::allWidgets().count();
        QueuewizUiLoader loader(sourceForm("wizardpagetitle.ui"));
        std::unique_ptr<QWidget> w(loader.loadAs(write("form.ui", form), className));
        QCOMPARE(w ? QString::fromLatin1(w->metaObject()->className()) : QString(), created);
        if (!w)
            QCOMPARE(QApplication::allWidgets().count(), widgetsBefore);

        // The device form, from the start of an already open device.
        QBuffer buffer(&form);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        if (!warning.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        std::unique_ptr<QWidget> again(loader.loadAs(&buffer, className));
        QCOMPARE(again ? QString::fromLatin1(again->metaObject()->className()) : QString(), created);
    }

    void setupChecks_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QStringList>("warnings");

        QTest::newRow("missing child") << formWithout("NameEdit")
                                       << QStringList{ "Invalid UI description", "setupUi failed" };
        QTest::newRow("dialog form") << topLevelForm("QDialog")
                                     << QStringList{ "wrong className class <AddPrinterWizard> is NOT inherits <QDialog>" };
    }

    // Refused forms leave no widget behind.
    void setupChecks()
    {
        QFETCH(QByteArray, form);
        QFETCH(QStringList, warnings);
        QVERIFY(!form.isEmpty());
        for (const QString &w : warnings)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(w));
        const qsizetype widgetsBefore = QApplication::allWidgets().count();
        QVERIFY(!QueuewizUiLoader::load(write("wizard.ui", form), sourceForm("wizardpagetitle.ui")));
        QCOMPARE(QApplication::allWidgets().count(), widgetsBefore);
    }

    void oneRegisteredLoader()
    {
        QueuewizUiLoader::load(m_dir.filePath("none.ui"), QString());
        QueuewizUiLoader *first = QueuewizUiLoader::registered();
        QVERIFY(first);
        QueuewizUiLoader::load(m_dir.filePath("none.ui"), QString());
        QCOMPARE(QueuewizUiLoader::registered(), first);
    }

    void pageTitles_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("none") << 0;
        QTest::newRow("one") << 1;
        QTest::newRow("three") << 3;
    }

    // Each title is a form of its own, bound and named as the wizard's form says.
    void pageTitles()
    {
        QFETCH(int, count);
        QueuewizUiLoader loader(sourceForm("wizardpagetitle.ui"));
        std::unique_ptr<QWidget> w(loader.loadAs(write("titled.ui", wizardForm(count)), "AddPrinterWizard"));
        QVERIFY(w);
        QVERIFY(!loader.isBusy());
        const QList<WizardPageTitle *> titles = w->findChildren<WizardPageTitle *>();
        QCOMPARE(titles.count(), count);
        for (int i = 1; i <= count; ++i) {
            auto *title = w->findChild<WizardPageTitle *>(QStringLiteral("T%1").arg(i));
            QVERIFY(title);
            QCOMPARE(title->parentWidget()->objectName(), QStringLiteral("page%1").arg(i));
            auto *label = title->findChild<QLabel *>(QStringLiteral("titleLabel"));
            QVERIFY(label);
            QCOMPARE(label->text(), QStringLiteral("Title %1").arg(i));
        }
    }

    void brokenTitleForm()
    {
        const QString titleForm = write("title.ui", QByteArray(R"(<ui version="4.0"><class>T</class>
            <widget class="QFrame" name="T"><widget class="QLabel" name="titleLabel"/></widget></ui>)"));
        QTest::ignoreMessage(QtWarningMsg, "Invalid UI description");
        QTest::ignoreMessage(QtWarningMsg, "setupUi failed");
        // The form then has a hole where the title would be.
        QTest::ignoreMessage(QtWarningMsg, "\"Empty widget item in QVBoxLayout 'layout1'.\"");
        QueuewizUiLoader loader(titleForm);
        std::unique_ptr<QWidget> w(loader.loadAs(write("titled.ui", wizardForm(1)), "AddPrinterWizard"));
        QVERIFY(w);
        QVERIFY(!loader.isBusy());
        QVERIFY(!w->findChild<WizardPageTitle *>());
    }

    void images()
    {
        QImage dot(4, 4, QImage::Format_RGB32);
        dot.fill(Qt::red);
        QTemporaryDir images;
        QVERIFY(dot.save(images.filePath("dot-for-uiloader-test.png")));
        const QString form = write("picture.ui", QByteArray(R"(<ui version="4.0"><class>P</class>
            <widget class="QLabel" name="P"><property name="pixmap">
            <pixmap>images:dot-for-uiloader-test.png</pixmap></property></widget></ui>)"));

        UiLoader::loadImages(images.path());
        WizardPageTitleUiLoader loader;
        std::unique_ptr<QWidget> w(loader.loadAs(form, QString()));
        auto *label = qobject_cast<QLabel *>(w.get());
        QVERIFY(label);
        QCOMPARE(label->pixmap().size(), QSize(4, 4));
    }

    void program_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QStringList>("warnings");

        QTest::newRow("no class") << QByteArray("<ui version=\"4.0\"><widget name=\"x\"/></ui>")
                                  << QStringList{ "can't find 'class' attribute" };
        QTest::newRow("dialog") << topLevelForm("QDialog")
                                << QStringList{ "wrong className class <AddPrinterWizard> is NOT inherits <QDialog>" };
        QTest::newRow("missing child") << formWithout("OptionsButton")
                                       << QStringList{ "Invalid UI description", "setupUi failed" };
        QTest::newRow("missing file") << QByteArray() << QStringList{};
    }

    // The program ends with 254 after the loader's own warnings.
    void program()
    {
        QFETCH(QByteArray, form);
        QFETCH(QStringList, warnings);
        const QString ui = form.isNull() ? m_dir.filePath("absent.ui") : write("program.ui", form);

        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.remove("DISPLAY");
        p.setProcessEnvironment(env);
        p.start(TestPaths::binaryDir() + "/app/queuewiz", { "--ui=" + ui });
        QVERIFY(p.waitForFinished(30000));
        QCOMPARE(p.exitStatus(), QProcess::NormalExit);
        QCOMPARE(p.exitCode(), 254);
        const QString err = QString::fromLocal8Bit(p.readAllStandardError());
        qsizetype at = 0;
        for (const QString &w : warnings + QStringList{ "Failed to load widget from <" + ui + ">" }) {
            at = err.indexOf(w, at);
            QVERIFY2(at >= 0, qPrintable(w + " missing in:\n" + err));
        }
    }
};

QTEST_MAIN(TestUiLoader)
#include "tst_uiloader.moc"
