#ifndef QUEUEWIZ_EARLYDRIVERREQUEST_H
#define QUEUEWIZ_EARLYDRIVERREQUEST_H

#include "cupsptr.h"
#include "requests/getppds.h"

#include <QByteArray>
#include <QString>

// A CUPS-Get-PPDs request sent at once and answered later: the scheduler
// lists the drivers while the program goes on with what does not need them
// (loading the forms). It never asks for a password; when the answer is
// anything but a plain success the caller asks again the ordinary way.
class EarlyDriverRequest
{
public:
    explicit EarlyDriverRequest(const QString &vendorFilter);

    QString vendorFilter() const { return m_filter; }
    // The answer, once; null when none came or it was not a success.
    // stalled tells that the scheduler took the request but did not answer
    // in time, so asking again would only wait as long once more. The
    // request log gets the lines an ordinary request writes, only now.
    IppPtr takeAnswer(bool *stalled);

private:
    QString m_filter;
    QByteArray m_make;
    Requests::GetPPDs m_request;
    HttpPtr m_connection;
    bool m_sent = false;
};

#endif
