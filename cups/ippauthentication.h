#ifndef QUEUEWIZ_IPPAUTHENTICATION_H
#define QUEUEWIZ_IPPAUTHENTICATION_H

#include <QString>

#include <cups/http.h>

// The process-wide authentication of IPP requests. Requests are made as the
// user who runs the program, so that on the local socket a member of the
// scheduler's system group needs no password. When the scheduler still
// wants one, the user is asked for a name and a password; credentials that
// were accepted are offered again without asking.
class IPPAuthentication
{
public:
    // How often one request may offer a password that the scheduler refuses.
    static constexpr int MaxPasswordAttempts = 3;
    // Asks the user for credentials, showing libcups' prompt; *user comes
    // filled with the name asked for. Returns false when cancelled.
    using PasswordAsker = bool (*)(const QString &prompt, QString *user, QString *password);

    // One request's authentication starts and ends as the program's user,
    // so that peer credentials on the local socket apply and other libcups
    // calls don't go on naming a user typed for one request.
    class Scope
    {
    public:
        Scope();
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;
    };

    // Installs the password callback (every request does, before it is sent).
    static void setUp();
    static void setPasswordAsker(PasswordAsker asker);
    // Whether credentials that the scheduler accepted are kept.
    static bool hasSavedPassword();
    // Forgets (and wipes) the kept credentials; the next demand asks again.
    static void forget();

    // Whether the current request has offered a password yet.
    static bool offered();
    // Credentials of an administrator for a request refused to the
    // program's user; false when the user cancelled.
    static bool administratorCredentials();
    // Why the password callback gave the current request up; empty when it
    // did not.
    static QString failure();
    // The current request got an answer: credentials it offered are kept.
    static void requestAnswered();
    // It got none: credentials that got the user nowhere are not offered
    // again.
    static void requestFailed();

private:
    static void reset();
    static const char *passwordCallback(const char *prompt, http_t *http, const char *method,
                                        const char *resource, void *data);
};

#endif
