#include "earlydriverrequest.h"

#include "ipplog.h"

#include <sys/socket.h>

namespace {

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

// The password dialog must not show before the window: while the early
// request is on the wire, a scheduler that asks for one is refused.
struct NoPasswordPrompt
{
    NoPasswordPrompt() { cupsSetPasswordCB2(noPassword, nullptr); }
    ~NoPasswordPrompt() { IPPRequest::setUpAuthentication(); }
};

} // namespace

EarlyDriverRequest::EarlyDriverRequest(const QString &vendorFilter)
    : m_filter(vendorFilter)
    , m_make(vendorFilter.toUtf8())
    , m_request(vendorFilter.isEmpty() ? nullptr : m_make.constData())
{
    // The ordinary request's bounds: a scheduler that stalls costs one
    // answer timeout, not two.
    m_connection = IPPRequest::connectToScheduler();
    if (!m_connection || !m_request.request())
        return;
    const NoPasswordPrompt quiet;
    // With its length given the request goes out whole. Sent in chunks
    // (length 0), its closing chunk would wait for takeAnswer(), and the
    // scheduler starts on a request only once the body has ended.
    m_sent = cupsSendRequest(m_connection.get(), m_request.request(), "/", ippLength(m_request.request()))
        == HTTP_STATUS_CONTINUE;
}

IppPtr EarlyDriverRequest::takeAnswer(bool *stalled)
{
    *stalled = false;
    if (!m_sent)
        return IppPtr();
    m_sent = false;
    // A refusal (401, 403) has an HTTP status; a timeout or a broken
    // connection has none.
    http_status_t status = HTTP_STATUS_ERROR;
    IppPtr answer(IPPRequest::receiveInBlocks(m_connection.get(), &status));
    *stalled = !answer && status == HTTP_STATUS_ERROR;
    if (!answer || ippGetStatusCode(answer.get()) != IPP_STATUS_OK)
        return IppPtr();
    IPPLog::line(IPPLog::Request, "Requesting operation 0x%x...", static_cast<unsigned>(m_request.operation()));
    IPPLog::line(IPPLog::Request, "Result status: %s\n", IPPRequest::statusText(IPP_STATUS_OK).toLocal8Bit().constData());
    IPPLog::flush(IPPLog::Request);
    return answer;
}
