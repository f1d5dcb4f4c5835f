#include "wizardfixture.h"

#include "AddPrinterWizard.h"
#include "fakemachine.h"
#include "oemconfig.h"
#include "queuewizuiloader.h"
#include "testpaths.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <cstring>

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

bool WizardFixture::load(const QByteArray &form)
{
    QString formPath = uiDir() + QStringLiteral("/AddPrinterWizardBase.ui");
    if (!form.isEmpty()) {
        formPath = m_root.filePath(QStringLiteral("wizard.ui"));
        QFile file(formPath);
        if (file.open(QIODevice::WriteOnly))
            file.write(form);
    }
    UiLoader::loadImages(uiDir() + QStringLiteral("/images"));
    m_wizard.reset(QueuewizUiLoader::load(formPath, uiDir() + QStringLiteral("/wizardpagetitle.ui")));
    if (!m_wizard)
        return false;
    m_wizard->show();
    return QTest::qWaitForWindowExposed(m_wizard.get());
}

WizardFixture::~WizardFixture() = default;

QString WizardFixture::rootDir() const
{
    return m_root.path();
}

QString WizardFixture::shareDir() const
{
    return m_root.filePath(QStringLiteral("share"));
}

bool WizardFixture::addScript(const QString &path, const QByteArray &script) const
{
    QFile file(m_root.filePath(path));
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) || file.write(script) != script.size())
        return false;
    file.close();
    return file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QAbstractButton *WizardFixture::button(QWizard::WizardButton which) const
{
    return m_wizard->button(which);
}

bool WizardFixture::click(QWizard::WizardButton which) const
{
    QAbstractButton *b = button(which);
    if (!b || !b->isVisible() || !b->isEnabled())
        return false;
    QTest::mouseClick(b, Qt::LeftButton);
    return true;
}

QByteArray WizardFixture::programForm(const QByteArray &from, const QByteArray &to)
{
    QFile file(uiDir() + QStringLiteral("/AddPrinterWizardBase.ui"));
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    QByteArray form = file.readAll();
    if (!from.isEmpty())
        form.replace(from, to);
    return form;
}

void WizardFixture::answerMessageBox(const QString &answer, QString *seen, int timeoutMs)
{
    auto *timer = new QTimer;
    auto *left = new int(timeoutMs / 20);
    QObject::connect(timer, &QTimer::timeout, [timer, left, answer, seen] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box || --*left <= 0) {
            timer->stop();
            timer->deleteLater();
            delete left;
        }
        if (!box)
            return;
        if (seen)
            *seen = box->windowTitle() + QStringLiteral("|") + box->text();
        const QList<QAbstractButton *> buttons = box->buttons();
        for (QAbstractButton *b : buttons) {
            if (b->text() == answer) {
                QTest::mouseClick(b, Qt::LeftButton);
                return;
            }
        }
        box->reject();
    });
    timer->start(20);
}
