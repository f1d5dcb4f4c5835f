#include "ipprequest.h"

#include "ippauthentication.h"
#include "ipplog.h"

#include <QCoreApplication>
#include <QByteArrayView>
#include <QFile>

#include <cstring>

#include <sys/socket.h>

namespace {

// Bounds for a scheduler that does not answer. Every request blocks the
// window, so they are sized to what a healthy local scheduler needs: it
// accepts at once and answers within a few seconds even when it lists a
// large driver catalogue for the first time. A stopped scheduler thus costs
// one answer timeout per request, and callers stop at the first of those.
constexpr int ConnectTimeoutMs = 3000;
constexpr double AnswerTimeoutSeconds = 10.0;

QString s_lastError;

bool onLocalSocket()
{
    return cupsServer()[0] == '/';
}

// Another request with the same operation and attributes.
ipp_t *copyOf(ipp_t *request)
{
    ipp_t *copy = ippNew();
    ippSetOperation(copy, ippGetOperation(request));
    ippSetRequestId(copy, ippGetRequestId(request));
    ippCopyAttributes(copy, request, 0, nullptr, nullptr);
    return copy;
}

// Listings answer with hundreds of kilobytes (a thousand queues, a whole
// driver catalogue). libcups reads an answer a few bytes per system call,
// each after a poll() when the connection has a timeout: three times the
// time of the same request without one. Their answers are read in large
// blocks instead and parsed from memory.
bool answersInBulk(ipp_op_t operation)
{
    return operation == IPP_OP_CUPS_GET_PRINTERS || operation == IPP_OP_CUPS_GET_CLASSES
        || operation == IPP_OP_CUPS_GET_PPDS || operation == IPP_OP_GET_JOBS;
}

ssize_t readFromMemory(void *context, ipp_uchar_t *buffer, size_t bytes)
{
    auto *rest = static_cast<QByteArrayView *>(context);
    const qsizetype n = qMin(rest->size(), qsizetype(bytes));
    memcpy(buffer, rest->data(), size_t(n));
    *rest = rest->sliced(n);
    return n;
}

} // namespace

IPPRequest::IPPRequest(ipp_op_t operation)
    : m_operation(operation)
{
    setUpAuthentication();
    m_request.reset(ippNew());
    ippSetRequestId(m_request.get(), 1);
    ippSetOperation(m_request.get(), operation);

    cups_lang_t *language = cupsLangGet(nullptr);
    // Every text this program sends is UTF-8, and the scheduler refuses any
    // charset but these two; a legacy locale's charset would fail every request.
    QByteArray charset(language ? cupsLangEncoding(language) : "utf-8");
    if (charset != "utf-8" && charset != "us-ascii")
        charset = "utf-8";
    ippAddString(m_request.get(), IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr,
                 charset.constData());
    // ippAddString turns "en_US" into the "en-us" form of IPP.
    ippAddString(m_request.get(), IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language",
                 nullptr, language ? language->language : "en");
    cupsLangFree(language);
}

IPPRequest::~IPPRequest() = default;

void IPPRequest::setUpAuthentication()
{
    IPPAuthentication::setUp();
}

void IPPRequest::addString(ipp_tag_t valueTag, const char *name, const char *value, ipp_tag_t group)
{
    if (m_request)
        ippAddString(m_request.get(), group, valueTag, name, nullptr, value);
}

void IPPRequest::addURI(const char *name, const char *value, ipp_tag_t group)
{
    addString(IPP_TAG_URI, name, value, group);
}

void IPPRequest::addName(const char *name, const char *value, ipp_tag_t group)
{
    addString(IPP_TAG_NAME, name, value ? value : "", group);
}

void IPPRequest::addText(const char *name, const char *value, ipp_tag_t group)
{
    addString(IPP_TAG_TEXT, name, value ? value : "", group);
}

void IPPRequest::addMimeType(const char *name, const char *value, ipp_tag_t group)
{
    addString(IPP_TAG_MIMETYPE, name, value ? value : "", group);
}

void IPPRequest::addInteger(const char *name, int value, ipp_tag_t valueTag, ipp_tag_t group)
{
    if (m_request)
        ippAddInteger(m_request.get(), group, valueTag, name, value);
}

void IPPRequest::addBoolean(const char *name, char value, ipp_tag_t group)
{
    if (m_request)
        ippAddBoolean(m_request.get(), group, name, value != 0);
}

void IPPRequest::addURIList(const char *name, const QStringList &values, ipp_tag_t group)
{
    addStringList(IPP_TAG_URI, name, values, group);
}

void IPPRequest::addKeywordList(const char *name, const QStringList &values, ipp_tag_t group)
{
    addStringList(IPP_TAG_KEYWORD, name, values, group);
}

void IPPRequest::addStringList(ipp_tag_t valueTag, const char *name, const QStringList &values, ipp_tag_t group)
{
    if (!m_request || values.isEmpty())
        return;
    QList<QByteArray> utf8;
    utf8.reserve(values.size());
    QList<const char *> pointers;
    pointers.reserve(values.size());
    for (const QString &value : values) {
        utf8.append(value.toUtf8());
        pointers.append(utf8.last().constData());
    }
    // ippAddStrings copies the values.
    ippAddStrings(m_request.get(), group, valueTag, name, static_cast<int>(pointers.size()), nullptr,
                  pointers.constData());
}

bool IPPRequest::Execute(const char *resource)
{
    if (!m_request)
        return false;
    const QByteArray target = resource ? QByteArray(resource) : m_resource.toUtf8();
    if (target.isEmpty())
        return false;

    const IPPAuthentication::Scope scope;
    m_connection = connectToScheduler();
    if (!m_connection) {
        setLastError(noAnswerText());
        return false;
    }

    IPPLog::line(IPPLog::Request, "Requesting operation 0x%x...", static_cast<unsigned>(m_operation));
    const QByteArray file = QFile::encodeName(m_fileName);
    const char *upload = m_fileName.isEmpty() ? nullptr : file.constData();
    // Anything but a plain HTTP 200 (a password wanted, say) goes the
    // ordinary way; no answer at all does not go twice.
    bool ordinaryWay = upload || !answersInBulk(m_operation);
    if (!ordinaryWay)
        m_response.reset(readInBlocks(target.constData(), &ordinaryWay));
    if (ordinaryWay) {
        // On the local socket the scheduler knows the user by the peer
        // credentials and refuses one outside its system group without
        // asking for a password: the copy is sent again with an
        // administrator's.
        IppPtr copy(onLocalSocket() ? copyOf(m_request.get()) : nullptr);
        // cupsDoFileRequest frees the request whatever happens.
        m_response.reset(cupsDoFileRequest(m_connection.get(), m_request.release(), target.constData(), upload));
        if (!m_response && copy && cupsLastError() == IPP_STATUS_ERROR_FORBIDDEN
            && !IPPAuthentication::offered() && IPPAuthentication::administratorCredentials()) {
            IPPLog::line(IPPLog::Request, "Requesting operation 0x%x again...", static_cast<unsigned>(m_operation));
            // The connection would send the refused peer credentials again.
            httpSetAuthString(m_connection.get(), nullptr, nullptr);
            m_response.reset(cupsDoFileRequest(m_connection.get(), copy.release(), target.constData(), upload));
        }
    }
    m_request.reset();
    if (!m_response) {
        IPPLog::line(IPPLog::Request, "Requesting failed!\n");
        IPPLog::flush(IPPLog::Request);
        IPPAuthentication::requestFailed();
        QString reason = IPPAuthentication::failure();
        if (reason.isEmpty())
            reason = QString::fromUtf8(cupsLastErrorString());
        // An answer read in blocks leaves libcups' last error as it was.
        if (!ordinaryWay)
            reason.clear();
        setLastError(reason.isEmpty() ? noAnswerText() : reason);
        return false;
    }
    setLastError(QString());
    IPPLog::line(IPPLog::Request, "Result status: %s\n",
                 statusText(ippGetStatusCode(m_response.get())).toLocal8Bit().constData());
    IPPLog::flush(IPPLog::Request);
    if (ippGetState(m_response.get()) == IPP_STATE_ERROR)
        return false;
    IPPAuthentication::requestAnswered();
    return true;
}

ipp_t *IPPRequest::readInBlocks(const char *resource, bool *ordinaryWay)
{
    http_t *http = m_connection.get();
    ipp_t *request = m_request.get();
    // Sent with its length, as cupsDoRequest sends it.
    http_status_t status = cupsSendRequest(http, request, resource, ippLength(request));
    ipp_t *answer = status == HTTP_STATUS_CONTINUE ? receiveInBlocks(http, &status) : nullptr;
    *ordinaryWay = status != HTTP_STATUS_OK && status != HTTP_STATUS_CONTINUE && status != HTTP_STATUS_ERROR;
    if (*ordinaryWay)
        httpFlush(http);
    return answer;
}

ipp_t *IPPRequest::receiveInBlocks(http_t *http, http_status_t *status)
{
    httpFlushWrite(http);
    do {
        *status = httpUpdate(http);
    } while (*status == HTTP_STATUS_CONTINUE);
    if (*status != HTTP_STATUS_OK)
        return nullptr;
    QByteArray body;
    // The announced length, within reason: it comes from the other side.
    body.reserve(qsizetype(qBound(off_t(0), httpGetLength2(http), off_t(16 * 1024 * 1024))));
    QByteArray block(64 * 1024, Qt::Uninitialized);
    ssize_t n;
    while ((n = httpRead2(http, block.data(), size_t(block.size()))) > 0)
        body.append(block.constData(), n);
    return n < 0 ? nullptr : answerFromBytes(body);
}

ipp_t *IPPRequest::answerFromBytes(QByteArrayView bytes)
{
    IppPtr answer(ippNew());
    if (ippReadIO(&bytes, readFromMemory, 1, nullptr, answer.get()) != IPP_STATE_DATA)
        return nullptr;
    return answer.release();
}

QString IPPRequest::serverAddress()
{
    QString server = QString::fromUtf8(cupsServer());
    // cupsServer() gives the host without the port; a local socket has none.
    if (server.isEmpty() || server.startsWith(QLatin1Char('/')))
        return server;
    if (server.contains(QLatin1Char(':')) && !server.startsWith(QLatin1Char('[')))
        server = QLatin1Char('[') + server + QLatin1Char(']');
    return server + QLatin1Char(':') + QString::number(ippPort());
}

QString IPPRequest::noAnswerText()
{
    return QCoreApplication::translate("IPPRequest", "The printing service at %1 does not answer").arg(serverAddress());
}

HttpPtr IPPRequest::connectToScheduler()
{
    HttpPtr connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                    ConnectTimeoutMs, nullptr));
    if (connection)
        httpSetTimeout(connection.get(), AnswerTimeoutSeconds, nullptr, nullptr);
    return connection;
}

QString IPPRequest::statusText(int status)
{
    const char *text = nullptr;
    switch (status) {
    case 0x0000: text = "OK"; break;
    case 0x0001: text = "IPP_OK_SUBST - OK but subst ???"; break;
    case 0x0002: text = "IPP_OK_CONFLICT - OK but conflict ???"; break;
    case 0x0400: text = "IPP_BAD_REQUEST - Bad request"; break;
    case 0x0401: text = "IPP_FORBIDDEN - Operation forbidden"; break;
    case 0x0402: text = "IPP_NOT_AUTHENTICATED - Not authenticated. Perhaps wrong password"; break;
    case 0x0403: text = "IPP_NOT_AUTHORIZED - Not authorized"; break;
    case 0x0404: text = "IPP_NOT_POSSIBLE - Not possible"; break;
    case 0x0405: text = "IPP_TIMEOUT - Request timeout"; break;
    case 0x0406: text = "IPP_NOT_FOUND - Not found"; break;
    case 0x0407: text = "IPP_GONE - Gone..."; break;
    case 0x0408: text = "IPP_REQUEST_ENTITY - Request entity ???"; break;
    case 0x0409: text = "IPP_REQUEST_VALUE - Request value ???"; break;
    case 0x040A: text = "IPP_DOCUMENT_FORMAT - Document format"; break;
    case 0x040B: text = "IPP_ATTRIBUTES - Attributes ???"; break;
    case 0x040C: text = "IPP_URI_SCHEME - URI sheme"; break;
    case 0x040D: text = "IPP_CHARSET - Charset"; break;
    case 0x040E: text = "IPP_CONFLICT - Conflict"; break;
    case 0x0500: text = "IPP_INTERNAL_ERROR - Internal error"; break;
    case 0x0501: text = "IPP_OPERATION_NOT_SUPPORTED - Operation not supported"; break;
    case 0x0502: text = "IPP_SERVICE_UNAVAILABLE - Serice unavailable"; break;
    case 0x0503: text = "IPP_VERSION_NOT_SUPPORTED - Version not supported"; break;
    case 0x0505: text = "IPP_TEMPORARY_ERROR - Temporary error"; break;
    case 0x0506: text = "IPP_NOT_ACCEPTING - Not accepting"; break;
    case 0x0507: text = "IPP_PRINTER_BUSY - Printer busy"; break;
    default:
        return QString::asprintf("Unknown code (%d=0x%x)", status, static_cast<unsigned>(status));
    }
    return QString::fromLatin1(text);
}

QString IPPRequest::lastError()
{
    return s_lastError;
}

void IPPRequest::setLastError(const QString &error)
{
    s_lastError = error;
}

void IPPRequest::setPasswordAsker(PasswordAsker asker)
{
    IPPAuthentication::setPasswordAsker(asker);
}

bool IPPRequest::hasSavedPassword()
{
    return IPPAuthentication::hasSavedPassword();
}

void IPPRequest::forgetPassword()
{
    IPPAuthentication::forget();
}
