#include "ippauthentication.h"

#include "passworddialog.h"

#include <QCoreApplication>

#include <cups/cups.h>

namespace {

QString cancelled()
{
    return QCoreApplication::translate("IPPRequest", "Authentication cancelled");
}

void wipe(QByteArray &bytes)
{
    bytes.fill('\0');
    bytes.clear();
}

void wipe(QString &text)
{
    text.fill(QChar(0));
    text.clear();
}

// Name and password that the user typed, in the locale's encoding (as the
// system's tools pass them); libcups reads the password from here.
struct Credentials
{
    QByteArray user;
    QByteArray password;
    bool accepted = false; // an answer came to a request that offered them
    bool fresh = false;    // typed for the current request before libcups asked

    ~Credentials() { clear(); }
    void clear()
    {
        wipe(password);
        user.clear();
        accepted = false;
        fresh = false;
    }
};

Credentials s_credentials;
// The user libcups names when nobody typed another one, read once before
// this program changes it.
QByteArray s_processUser;
// Passwords offered during the current request: when the scheduler asks
// again it refused the last one; libcups itself would ask forever.
int s_offered = 0;
// Why the password callback gave the current request up.
QString s_authFailure;
IPPAuthentication::PasswordAsker s_asker = nullptr;

// Asks for a name and a password and keeps them; a blank name stands for
// fallbackUser. False, with the reason noted, when the user cancelled or
// left the name blank without a fallback.
bool askCredentials(const QString &prompt, QString user, const QByteArray &fallbackUser)
{
    QString password;
    const bool confirmed = (s_asker ? s_asker : &PasswordDialog::ask)(prompt, &user, &password);
    s_credentials.clear();
    const QByteArray name = user.isEmpty() ? fallbackUser : user.toLocal8Bit();
    if (confirmed && !name.isEmpty()) {
        s_credentials.user = name;
        s_credentials.password = password.toLocal8Bit();
    } else {
        s_authFailure = cancelled();
    }
    wipe(password);
    return !s_credentials.user.isEmpty();
}

} // namespace

IPPAuthentication::Scope::Scope()
{
    reset();
    s_authFailure.clear();
}

IPPAuthentication::Scope::~Scope()
{
    reset();
}

void IPPAuthentication::reset()
{
    s_offered = 0;
    s_credentials.fresh = false;
    cupsSetUser(s_processUser.constData());
}

void IPPAuthentication::setUp()
{
    cupsSetPasswordCB2(&IPPAuthentication::passwordCallback, nullptr);
    if (s_processUser.isEmpty())
        s_processUser = cupsUser();
}

void IPPAuthentication::setPasswordAsker(PasswordAsker asker)
{
    s_asker = asker;
}

bool IPPAuthentication::offered()
{
    return s_offered > 0;
}

QString IPPAuthentication::failure()
{
    return s_authFailure;
}

void IPPAuthentication::requestAnswered()
{
    if (s_offered > 0)
        s_credentials.accepted = true;
}

void IPPAuthentication::requestFailed()
{
    if (s_offered > 0 || s_credentials.fresh)
        s_credentials.clear();
}

const char *IPPAuthentication::passwordCallback(const char *prompt, http_t *http, const char * /*method*/,
                                                const char * /*resource*/, void * /*data*/)
{
    if (s_offered >= MaxPasswordAttempts) {
        // The scheduler's answer to the last password, as libcups words it.
        const http_status_t status = http ? httpGetStatus(http) : HTTP_STATUS_UNAUTHORIZED;
        s_authFailure = QString::fromUtf8(httpStatus(status >= HTTP_STATUS_BAD_REQUEST ? status
                                                                                        : HTTP_STATUS_UNAUTHORIZED));
        return nullptr;
    }
    // Kept credentials go first; once refused, the user is asked.
    const bool kept = (s_credentials.accepted || s_credentials.fresh) && s_offered == 0;
    if (!kept && !askCredentials(QString::fromUtf8(prompt), QString::fromLocal8Bit(cupsUser()), s_processUser))
        return nullptr;
    ++s_offered;
    // libcups sends the name that cupsUser() gives once this returns.
    cupsSetUser(s_credentials.user.constData());
    return s_credentials.password.constData();
}

bool IPPAuthentication::administratorCredentials()
{
    // Accepted credentials of another account are tried first.
    if (s_credentials.accepted && s_credentials.user != s_processUser) {
        s_credentials.fresh = true;
        cupsSetUser(s_credentials.user.constData());
        return true;
    }
    const QString prompt = QCoreApplication::translate("IPPRequest", "%1 may not change the printers of this "
                                                                     "computer. Name and password of an administrator:")
                               .arg(QString::fromLocal8Bit(s_processUser));
    if (!askCredentials(prompt, QString(), QByteArray()))
        return false;
    s_credentials.fresh = true;
    // Another name than the program's user keeps libcups from sending the
    // peer credentials again; the scheduler then asks for the password.
    cupsSetUser(s_credentials.user.constData());
    return true;
}

bool IPPAuthentication::hasSavedPassword()
{
    return s_credentials.accepted;
}

void IPPAuthentication::forget()
{
    s_credentials.clear();
}
