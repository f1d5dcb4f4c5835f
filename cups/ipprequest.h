#ifndef QUEUEWIZ_IPPREQUEST_H
#define QUEUEWIZ_IPPREQUEST_H

#include "cupsptr.h"
#include "ippauthentication.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

// One IPP request to the CUPS scheduler: built by a constructor (the classes
// of namespace Requests fix operation, resource and the usual attributes),
// completed with the adders, sent once with Execute and destroyed. The answer
// lives as long as the object.
//
// Requests are made as the user who runs the program; the static password
// functions below are those of IPPAuthentication, which keeps the
// process-wide credentials.
class IPPRequest
{
public:
    // Starts a request with the operation code and the charset and natural
    // language attributes.
    explicit IPPRequest(ipp_op_t operation);
    virtual ~IPPRequest();
    IPPRequest(const IPPRequest &) = delete;
    IPPRequest &operator=(const IPPRequest &) = delete;

    // Attribute adders; no-ops once the request has been sent. A null string
    // becomes "" except for URIs, which are added as they are.
    void addURI(const char *name, const char *value, ipp_tag_t group = IPP_TAG_OPERATION);
    void addName(const char *name, const char *value, ipp_tag_t group = IPP_TAG_OPERATION);
    void addText(const char *name, const char *value, ipp_tag_t group = IPP_TAG_OPERATION);
    void addMimeType(const char *name, const char *value, ipp_tag_t group = IPP_TAG_OPERATION);
    void addInteger(const char *name, int value, ipp_tag_t valueTag = IPP_TAG_ENUM,
                    ipp_tag_t group = IPP_TAG_OPERATION);
    void addBoolean(const char *name, char value, ipp_tag_t group = IPP_TAG_OPERATION);
    // One URI attribute with a value per list element, in order; nothing
    // for an empty list.
    void addURIList(const char *name, const QStringList &values, ipp_tag_t group = IPP_TAG_OPERATION);
    // The same for keywords, e.g. "requested-attributes".
    void addKeywordList(const char *name, const QStringList &values, ipp_tag_t group = IPP_TAG_OPERATION);

    // Sends the request to resource (or, when null, to resource()) on the
    // scheduler of cupsServer()/ippPort(), uploading fileName() if set. True
    // when an answer arrived that could be read; the IPP status code of the
    // answer is the caller's business. A request is sent at most once.
    virtual bool Execute(const char *resource = nullptr);

    QString resource() const { return m_resource; }
    void setResource(const QString &resource) { m_resource = resource; }
    QString fileName() const { return m_fileName; }
    void setFileName(const QString &fileName) { m_fileName = fileName; }
    ipp_op_t operation() const { return m_operation; }
    // The request being built; nullptr once it has been sent.
    ipp_t *request() const { return m_request.get(); }
    // The answer; nullptr until one arrived.
    ipp_t *response() const { return m_response.get(); }

    // The answer to a request that cupsSendRequest sent whole on http: its
    // body read in large blocks (libcups reads a few bytes per system
    // call) and parsed from memory. Null when none came (*status then is
    // HTTP_STATUS_ERROR) or the HTTP status is not 200.
    static ipp_t *receiveInBlocks(http_t *http, http_status_t *status);
    // An IPP message read from bytes; null when they are not a whole one.
    static ipp_t *answerFromBytes(QByteArrayView bytes);

    // A connection to the scheduler with the request timeouts, for the few
    // libcups calls that take one (cupsGetPPD2); null when none was made.
    static HttpPtr connectToScheduler();

    // The fixed text of an IPP status code for logs and messages.
    static QString statusText(int status);
    // Why the last Execute got no answer (no connection, a broken or timed
    // out answer, a cancelled password prompt, passwords refused), for
    // messages; empty when an answer arrived.
    static QString lastError();
    // "The printing service at HOST:PORT does not answer".
    static QString noAnswerText();
    // The scheduler in use as CUPS_SERVER names it: "HOST:PORT" (IPv6 in
    // brackets) or the path of the local socket.
    static QString serverAddress();

    // How often one request may offer a password that the scheduler refuses.
    static constexpr int MaxPasswordAttempts = IPPAuthentication::MaxPasswordAttempts;
    using PasswordAsker = IPPAuthentication::PasswordAsker;
    // Replaces the password dialog (tests answer without a window); nullptr
    // restores the dialog.
    static void setPasswordAsker(PasswordAsker asker);
    // Whether credentials that the scheduler accepted are kept.
    static bool hasSavedPassword();
    // Forgets (and wipes) the kept credentials; the next demand asks again.
    static void forgetPassword();
    // Installs the password callback (every request does, before it is sent).
    static void setUpAuthentication();

private:
    static void setLastError(const QString &error);
    // Sends the request and reads a listing's answer in large blocks; null
    // when none came, or, with *ordinaryWay set, when the scheduler answered
    // anything but HTTP 200 and the request should go through libcups.
    ipp_t *readInBlocks(const char *resource, bool *ordinaryWay);
    void addString(ipp_tag_t valueTag, const char *name, const char *value, ipp_tag_t group);
    void addStringList(ipp_tag_t valueTag, const char *name, const QStringList &values, ipp_tag_t group);

    QString m_resource;
    IppPtr m_request;
    IppPtr m_response;
    HttpPtr m_connection;
    QString m_fileName;
    ipp_op_t m_operation;
};

#endif
