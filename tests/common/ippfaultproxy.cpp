#include "ippfaultproxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>

namespace {

bool sendAll(int fd, const std::string &data)
{
    size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = send(fd, data.data() + done, data.size() - done, MSG_NOSIGNAL);
        if (n <= 0)
            return false;
        done += size_t(n);
    }
    return true;
}

bool readMore(int fd, std::string &into)
{
    char buffer[8192];
    const ssize_t n = recv(fd, buffer, sizeof buffer, 0);
    if (n <= 0)
        return false;
    into.append(buffer, size_t(n));
    return true;
}

// An answer with status and nothing but the two attributes every answer
// has: charset (tag 0x47) and natural language (0x48), then the end tag.
std::string errorAnswer(int status, const std::string &requestId)
{
    static const char attributes[] = "\x01\x47\x00\x12" "attributes-charset" "\x00\x05" "utf-8"
                                     "\x48\x00\x1b" "attributes-natural-language" "\x00\x02" "en" "\x03";
    const std::string ipp = std::string("\x02\x00", 2) + char(status >> 8) + char(status & 0xff) + requestId
        + std::string(attributes, sizeof attributes - 1);
    return "HTTP/1.1 200 OK\r\nContent-Type: application/ipp\r\nConnection: close\r\nContent-Length: "
        + std::to_string(ipp.size()) + "\r\n\r\n" + ipp;
}

// Copies bytes both ways until either side closes.
void relay(int a, int b)
{
    pollfd fds[2] = {{a, POLLIN, 0}, {b, POLLIN, 0}};
    char buffer[16384];
    while (poll(fds, 2, -1) > 0) {
        for (int i = 0; i < 2; ++i) {
            if (!fds[i].revents)
                continue;
            const ssize_t n = recv(fds[i].fd, buffer, sizeof buffer, 0);
            if (n <= 0 || !sendAll(fds[1 - i].fd, std::string(buffer, size_t(n))))
                return;
        }
    }
}

int connectLoopback(int port)
{
    const int fd = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(uint16_t(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (fd >= 0 && connect(fd, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0)
        return fd;
    if (fd >= 0)
        close(fd);
    return -1;
}

} // namespace

IppFaultProxy::~IppFaultProxy()
{
    m_stopping = true;
    // Wakes the thread wherever it blocks: accept(), recv() or poll().
    for (int fd : {m_listener, m_client.load(), m_upstream.load()}) {
        if (fd >= 0)
            shutdown(fd, SHUT_RDWR);
    }
    if (m_thread.joinable())
        m_thread.join();
    if (m_listener >= 0)
        close(m_listener);
}

bool IppFaultProxy::start()
{
    m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (m_listener < 0 || bind(m_listener, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0
        || listen(m_listener, 16) != 0
        || getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &length) != 0)
        return false;
    m_port = ntohs(address.sin_port);
    m_thread = std::thread(&IppFaultProxy::run, this);
    return true;
}

void IppFaultProxy::fault(int operation, int nth, Action action, int value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_rules.push_back({operation, nth, action, value});
}

bool IppFaultProxy::takeRule(int operation, Rule *rule)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    // Every rule counts every request of its operation, so that "the 5th"
    // means the 5th also after another rule fired on the 4th.
    bool faulted = false;
    for (auto it = m_rules.begin(); it != m_rules.end();) {
        if (it->operation == operation && --it->remaining == 0 && !faulted) {
            *rule = *it;
            faulted = true;
            it = m_rules.erase(it);
            continue;
        }
        ++it;
    }
    return faulted;
}

void IppFaultProxy::run()
{
    while (!m_stopping) {
        const int client = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0)
            continue;
        m_client = client;
        serve(client);
        m_client = -1;
        close(client);
    }
}

void IppFaultProxy::serve(int client)
{
    std::string in;
    size_t headEnd;
    while ((headEnd = in.find("\r\n\r\n")) == std::string::npos) {
        if (!readMore(client, in))
            return;
    }
    headEnd += 4;
    std::string head = in.substr(0, headEnd);
    const auto lowered = [](std::string text) {
        std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return char(std::tolower(c)); });
        return text;
    };
    const std::string lower = lowered(head);

    Rule rule;
    bool faulted = false;
    if (head.compare(0, 5, "POST ") == 0) {
        // The body, holding the operation code, comes only after a
        // "100 Continue"; the scheduler is not to send one of its own.
        const size_t expect = lower.find("\r\nexpect: 100-continue\r\n");
        if (expect != std::string::npos) {
            head.erase(expect, strlen("\r\nexpect: 100-continue"));
            sendAll(client, "HTTP/1.1 100 Continue\r\n\r\n");
        }
        // The wizard's requests all carry a Content-Length, none is chunked.
        const size_t body = headEnd;
        while (in.size() < body + 8 && readMore(client, in)) {
        }
        if (in.size() < body + 8)
            return;
        const int operation = (uint8_t(in[body + 2]) << 8) | uint8_t(in[body + 3]);
        faulted = takeRule(operation, &rule);
        if (faulted && rule.action == Fail) {
            // The whole request first, lest closing early reset the answer.
            const size_t lengthAt = lower.find("\r\ncontent-length:");
            const size_t length = lengthAt == std::string::npos ? 0 : std::stoul(lower.substr(lengthAt + 17));
            while (in.size() < headEnd + length && readMore(client, in)) {
            }
            sendAll(client, errorAnswer(rule.value, in.substr(body + 4, 4)));
            return;
        }
        if (faulted && rule.action == StopScheduler)
            kill(rule.value, SIGSTOP);
    }

    // One request per connection, so that every request is looked at:
    // the client connects anew for the next one.
    const size_t connection = lowered(head).find("\r\nconnection:");
    if (connection != std::string::npos)
        head.erase(connection, head.find("\r\n", connection + 2) - connection);
    head.insert(head.size() - 2, "Connection: close\r\n");
    const int upstream = connectLoopback(m_upstreamPort);
    if (upstream < 0)
        return;
    m_upstream = upstream;
    if (sendAll(upstream, head + in.substr(headEnd)))
        relay(client, upstream);
    m_upstream = -1;
    close(upstream);
}
