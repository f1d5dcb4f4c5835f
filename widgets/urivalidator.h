#ifndef QUEUEWIZ_URIVALIDATOR_H
#define QUEUEWIZ_URIVALIDATOR_H

#include <QRegularExpressionValidator>

// Checks the device URI of a network or file port while it is typed, and
// repairs it: the scheme prefix is always put back in front, and a bare IPv6
// address is wrapped in brackets. Never answers Intermediate, so it is meant
// to judge text, not to filter keystrokes of a line edit.
class UriValidator : public QRegularExpressionValidator
{
    Q_OBJECT

public:
    // Scheme ids; each id + 1 names an entry of the network port table.
    enum Scheme {
        NoScheme = 0,
        IppScheme = 1,
        SocketScheme = 2,
        LpdScheme = 3,
        SmbScheme = 4,
        FileScheme = 5
    };

    explicit UriValidator(int scheme, bool ipv6Allowed, QObject *parent = nullptr);
    // The IPv6 decision is asked for whenever it is needed, not at
    // construction: it may wait for the installed CUPS version.
    UriValidator(int scheme, bool (*ipv6Allowed)(), QObject *parent = nullptr);

    State validate(QString &input, int &pos) const override;

    int scheme() const { return m_scheme; }
    bool ipv6Allowed() const { return m_ipv6Allowed(); }

    // "ipp://", "socket://", ...; empty for NoScheme and unknown ids.
    static QString prefix(int scheme);

private:
    static bool checkHost(QString &text, bool ipv6Allowed, bool portAllowed);
    static bool checkLpd(QString &text, bool ipv6Allowed);
    static bool checkSmb(QString &text, bool ipv6Allowed);

    const int m_scheme;
    bool (*const m_ipv6Allowed)();
};

#endif
