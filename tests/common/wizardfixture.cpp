#include "wizardfixture.h"

#include "fakemachine.h"
#include "oemconfig.h"
#include "printerportlistview.h"
#include "queuewizuiloader.h"
#include "testpaths.h"
#include "testsupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QtTest>

namespace {

QString uiDir()
{
    return TestPaths::sourceDir() + QStringLiteral("/ui");
}

} // namespace

WizardFixture::WizardFixture(const QString &machine)
    : m_machine(std::make_unique<FakeMachine>(m_root.filePath(QStringLiteral("machine"))))
{
    m_machine->build(machine);
    qputenv("MFP_SYSROOT", QFile::encodeName(m_root.filePath(QStringLiteral("machine"))));

    QDir().mkpath(shareDir() + QStringLiteral("/help"));
    QFile::copy(TestPaths::sourceDir() + QStringLiteral("/share/help/PellomarAddPrinterWizard.htm"),
                shareDir() + QStringLiteral("/help/PellomarAddPrinterWizard.htm"));
    qstrncpy(actx.rootDir, QFile::encodeName(rootDir()).constData(), sizeof actx.rootDir);
    qstrncpy(actx.shareDir, QFile::encodeName(shareDir()).constData(), sizeof actx.shareDir);
    qstrncpy(actx.vendorUpper, "ACME", sizeof actx.vendorUpper);
}

WizardFixture::~WizardFixture() = default;

bool WizardFixture::load(const QByteArray &form)
{
    QString formPath = uiDir() + QStringLiteral("/AddPrinterWizardBase.ui");
    if (!form.isEmpty()) {
        formPath = m_root.filePath(QStringLiteral("wizard.ui"));
        QFile file(formPath);
        if (!file.open(QIODevice::WriteOnly) || file.write(form) != form.size())
            return false;
    }
    UiLoader::loadImages(uiDir() + QStringLiteral("/images"));
    m_wizard.reset(QueuewizUiLoader::load(formPath, uiDir() + QStringLiteral("/wizardpagetitle.ui")));
    if (!m_wizard)
        return false;
    m_wizard->show();
    return QTest::qWaitForWindowExposed(m_wizard.get());
}

bool WizardFixture::addScript(const QString &path, const QByteArray &script) const
{
    return TestSupport::writeFile(m_root.filePath(path), script, true);
}

bool WizardFixture::nextEnabled() const
{
    return button(QWizard::NextButton)->isEnabled();
}

bool WizardFixture::click(QWizard::WizardButton which) const
{
    QAbstractButton *b = button(which);
    if (!b || !b->isVisible() || !b->isEnabled())
        return false;
    QTest::mouseClick(b, Qt::LeftButton);
    return true;
}

void WizardFixture::clickRadio(const char *name) const
{
    auto *radio = child<QRadioButton>(name);
    QTest::mouseClick(radio, Qt::LeftButton, {}, QPoint(radio->height() / 2, radio->height() / 2));
}

bool WizardFixture::clickItem(QAbstractItemView *view, const QString &text)
{
    QAbstractItemModel *model = view->model();
    const QModelIndexList found = model->match(model->index(0, 0), Qt::DisplayRole, text, 1,
                                               Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        return false;
    view->scrollTo(found.first());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(found.first()).center());
    return true;
}

QStringList WizardFixture::texts(const QAbstractItemModel *model)
{
    QStringList rows;
    for (int i = 0; i < model->rowCount(); ++i)
        rows << model->index(i, 0).data().toString();
    return rows;
}

bool WizardFixture::toPortsPage() const
{
    if (!click(QWizard::NextButton))
        return false;
    clickRadio("OfflineButton");
    return click(QWizard::NextButton) && m_wizard->currentId() == AddPrinterWizard::PortsPage;
}

QLineEdit *WizardFixture::renamePort(const QString &text) const
{
    auto *ports = child<PrinterPortListView>("PortsView");
    if (!clickItem(ports, text))
        return nullptr;
    QTest::keyClick(ports, Qt::Key_F2);
    return ports->findChild<QLineEdit *>();
}

bool WizardFixture::typePort(const QString &uri) const
{
    const QString scheme = uri.section(QLatin1Char('/'), 0, 0) + QStringLiteral("//");
    QLineEdit *editor = renamePort(scheme);
    if (!editor)
        return false;
    QTest::keyClicks(editor, uri.mid(scheme.size()));
    QTest::keyClick(editor, Qt::Key_Return);
    // The editor hands its text over from the event loop.
    auto *ports = child<PrinterPortListView>("PortsView");
    return QTest::qWaitFor([&] { return ports->selectedURI() == uri; });
}

bool WizardFixture::toNamePage(const QString &driver) const
{
    return m_wizard->currentId() == AddPrinterWizard::DriverPage && clickItem(child<QListWidget>("DriversList"), driver)
        && click(QWizard::NextButton) && m_wizard->currentId() == AddPrinterWizard::NamePage;
}

QByteArray WizardFixture::programForm(const QByteArray &from, const QByteArray &to)
{
    QFile file(uiDir() + QStringLiteral("/AddPrinterWizardBase.ui"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    QByteArray form = file.readAll();
    return from.isEmpty() ? form : form.replace(from, to);
}
