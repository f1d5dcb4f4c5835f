#include "queuewizuiloader.h"
#include "testpaths.h"
#include "testsupport.h"
#include "wizardpagetitle.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QStringList SetupFailed{ QStringLiteral("Invalid UI description"), QStringLiteral("setupUi failed") };

// A wizard form with three pages, each with a page title.
QByteArray titledForm()
{
    QString pages;
    for (int i = 1; i <= 3; ++i)
        pages += QStringLiteral(R"(<widget class="QWizardPage" name="page%1"><layout class="QVBoxLayout" name="layout%1">
<item><widget class="WizardPageTitle" name="T%1"><property name="title"><string>Title %1</string></property>
</widget></item></layout></widget>)").arg(i);
    return (R"(<ui version="4.0"><class>W</class><widget class="QWizard" name="W">)" + pages
            + R"(</widget><customwidgets><customwidget><class>WizardPageTitle</class><extends>QFrame</extends>
<header>wizardpagetitle.h</header></customwidget></customwidgets></ui>)")
        .toUtf8();
}

QByteArray topLevelForm(const char *cls)
{
    return QStringLiteral(R"(<ui version="4.0"><class>F</class><widget class="%1" name="F"/></ui>)")
        .arg(QLatin1String(cls))
        .toUtf8();
}

QString sourceForm(const char *name)
{
    return TestPaths::sourceDir() + QStringLiteral("/ui/") + QLatin1String(name);
}

} // namespace

class TestUiLoader : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString write(const QString &name, const QByteArray &content)
    {
        return TestSupport::writeFile(m_dir.filePath(name), content) ? m_dir.filePath(name) : QString();
    }

private slots:
    void init() { TestSupport::failOnWarnings(); }

    void loadAs_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<QString>("className");
        QTest::addColumn<QString>("created");
        QTest::addColumn<QString>("warning");

        QTest::newRow("no class attribute") << QByteArray(R"(<ui version="4.0"><widget name="x"/></ui>)")
                                            << "AddPrinterWizard" << "" << "can't find 'class' attribute";
        QTest::newRow("not a form") << QByteArray("<ui") << "AddPrinterWizard" << "" << "";
        QTest::newRow("QWizard form as the wizard") << topLevelForm("QWizard") << "AddPrinterWizard"
                                                    << "AddPrinterWizard" << "";
        // A dialog has no pages: QWizard between them makes the difference.
        QTest::newRow("QDialog form refused") << topLevelForm("QDialog") << "AddPrinterWizard" << ""
                                              << "wrong className class <AddPrinterWizard> is NOT inherits <QDialog>";
        QTest::newRow("empty class name loads as is") << topLevelForm("QDialog") << "" << "QDialog" << "";
    }

    // Refused widgets are not left behind.
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
    }

    // The program's wizard form without its options button.
    void missingChild()
    {
        const QString form = write("wizard.ui", TestSupport::readFile(sourceForm("AddPrinterWizardBase.ui"))
                                                    .replace("name=\"OptionsButton\"", "name=\"Other\""));
        for (const QString &w : SetupFailed)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(w));
        const qsizetype widgetsBefore = QApplication::allWidgets().count();
        QVERIFY(!QueuewizUiLoader::load(form, sourceForm("wizardpagetitle.ui")));
        QCOMPARE(QApplication::allWidgets().count(), widgetsBefore);
    }

    void pageTitles_data()
    {
        QTest::addColumn<QByteArray>("titleForm");
        QTest::newRow("the program's title form") << QByteArray();
        QTest::newRow("title form without its labels") << QByteArray(
            R"(<ui version="4.0"><class>T</class><widget class="QFrame" name="T"/></ui>)");
    }

    // Each title is a form of its own, bound and named as the wizard's form
    // says; a broken title form leaves holes where the titles would be.
    void pageTitles()
    {
        QFETCH(QByteArray, titleForm);
        const bool broken = !titleForm.isNull();
        for (int i = 1; broken && i <= 3; ++i) {
            for (const QString &w : SetupFailed)
                QTest::ignoreMessage(QtWarningMsg, qPrintable(w));
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("\"Empty widget item in QVBoxLayout "
                                                                         "'layout%1'.\"").arg(i)));
        }
        UiLoader::loadImages(TestPaths::sourceDir() + "/ui/images");
        QueuewizUiLoader loader(broken ? write("title.ui", titleForm) : sourceForm("wizardpagetitle.ui"));
        std::unique_ptr<QWidget> w(loader.loadAs(write("titled.ui", titledForm()), "AddPrinterWizard"));
        QVERIFY(w);
        QVERIFY(!loader.isBusy());
        QCOMPARE(w->findChildren<WizardPageTitle *>().count(), broken ? 0 : 3);
        for (int i = 1; !broken && i <= 3; ++i) {
            auto *title = w->findChild<WizardPageTitle *>(QStringLiteral("T%1").arg(i));
            QVERIFY(title);
            QCOMPARE(title->parentWidget()->objectName(), QStringLiteral("page%1").arg(i));
            QCOMPARE(title->findChild<QLabel *>("titleLabel")->text(), QStringLiteral("Title %1").arg(i));
            QVERIFY(!title->findChild<QLabel *>("titleImage")->pixmap().isNull());  // "images:" of the form
        }
    }
};

QTEST_MAIN(TestUiLoader)
#include "tst_uiloader.moc"
