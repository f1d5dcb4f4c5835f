#include "ipprequest.h"

#include "ipplog.h"
#include "passworddialog.h"

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
IPPRequest::PasswordAsker s_asker = nullptr;
QString s_lastError;

// A request's authentication starts and ends as the program's user, so that
// peer credentials on the local socket apply and other libcups calls don't
// go on naming a user typed for one request.
class AuthenticationScope
{
public:
    AuthenticationScope() { reset(); }
    ~AuthenticationScope() { reset(); }
    AuthenticationScope(const AuthenticationScope &) = delete;
    AuthenticationScope &operator=(const AuthenticationScope &) = delete;

private:
    static void reset()
    {
        s_offered = 0;
        s_credentials.fresh = false;
        cupsSetUser(s_processUser.constData());
    }
};

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
    cupsSetPasswordCB2(&IPPRequest::passwordCallback, nullptr);
    if (s_processUser.isEmpty())
        s_processUser = cupsUser();
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

    const AuthenticationScope scope;
    s_authFailure.clear();
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
        if (!m_response && copy && cupsLastError() == IPP_STATUS_ERROR_FORBIDDEN && s_offered == 0
            && administratorCredentials()) {
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
        // Credentials that got the user nowhere are not offered again.
        if (s_offered > 0 || s_credentials.fresh)
            s_credentials.clear();
        QString reason = s_authFailure.isEmpty() ? QString::fromUtf8(cupsLastErrorString()) : s_authFailure;
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
    if (s_offered > 0)
        s_credentials.accepted = true;
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
    s_asker = asker;
}

const char *IPPRequest::passwordCallback(const char *prompt, http_t *http, const char * /*method*/,
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

bool IPPRequest::administratorCredentials()
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

bool IPPRequest::hasSavedPassword()
{
    return s_credentials.accepted;
}

void IPPRequest::forgetPassword()
{
    s_credentials.clear();
}
