#include "namestep.h"

#include "titlelesswizard.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

NameStep::NameStep(TitlelessWizard *wizard, int page)
    : QObject(wizard)
    , m_wizard(wizard)
    , m_page(page)
{
}

bool NameStep::bind(QWidget *form)
{
    m_pNameEdit = form->findChild<QLineEdit *>(QStringLiteral("NameEdit"));
    m_pLocationEdit = form->findChild<QLineEdit *>(QStringLiteral("LocationEdit"));
    m_pDescriptionEdit = form->findChild<QLineEdit *>(QStringLiteral("DescriptionEdit"));
    return m_pNameEdit && m_pLocationEdit && m_pDescriptionEdit;
}

void NameStep::setUp()
{
    m_pNameEdit->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[\\d\\w_]+"), QRegularExpression::UseUnicodePropertiesOption),
        m_pNameEdit));
}

bool NameStep::isPrinterNameAssigned() const
{
    return m_pNameEdit && !m_pNameEdit->text().isEmpty();
}

QString NameStep::name() const
{
    return m_pNameEdit->text();
}

QString NameStep::location() const
{
    return m_pLocationEdit->text();
}

QString NameStep::description() const
{
    return m_pDescriptionEdit->text();
}

void NameStep::nameChanged()
{
    m_wizard->setNextEnabled(m_page, isPrinterNameAssigned());
}

void NameStep::propose(const QString &driverText)
{
    m_pNameEdit->setText(proposedName(driverText));
    m_pNameEdit->setFocus();
}

void NameStep::retypeName()
{
    m_pNameEdit->setFocus();
    m_pNameEdit->selectAll();
}

QString NameStep::proposedName(const QString &driverText)
{
    static const QRegularExpression modelToken(QStringLiteral("(\\S*\\d\\S*)"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression blanks(QStringLiteral("\\s+"), QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression notNameChar(QStringLiteral("[^\\d\\w_]"),
                                                QRegularExpression::UseUnicodePropertiesOption);

    const QRegularExpressionMatch m = modelToken.match(driverText);
    QString token = m.hasMatch() ? m.captured(1) : driverText.split(blanks, Qt::SkipEmptyParts).value(0);
    return token.remove(notNameChar).toLower();
}
