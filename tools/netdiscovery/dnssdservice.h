#ifndef QUEUEWIZ_DNSSDSERVICE_H
#define QUEUEWIZ_DNSSDSERVICE_H

#include <QString>

// A resolved DNS-SD service, from one line of `avahi-browse --parsable
// --resolve` ("=;IFACE;PROTO;NAME;TYPE;DOMAIN;HOST;ADDRESS;PORT;TXT...").
struct DnsSdService
{
    QString name;
    QString type;
    QString address;
    int port = 0;
    QString productName; // TXT "ty"
    QString resource;    // TXT "rp"

    // False for lines that are not a resolved service.
    static bool parse(const QString &line, DnsSdService *out);

    // Undoes avahi's "\DDD" (decimal) and "\c" escapes.
    static QString unescape(const QString &text);
};

#endif
