#include "RawClient.h"

#include <cerrno>

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

constexpr int limitSeconds = 30;
constexpr int receiveBytes = 65536;
const QByteArray headEnd("\r\n\r\n");

int contentLength(const QByteArray &head)
{
    const QByteArray name("\r\ncontent-length:");
    const int at = head.toLower().indexOf(name);
    if (at < 0)
        return 0;
    const int from = at + name.size();
    return head.mid(from, head.indexOf("\r\n", from) - from).trimmed().toInt();
}

} // namespace

RawClient::RawClient(quint16 port)
    : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const timeval limit{limitSeconds, 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    ::setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(m_socket);
        m_socket = -1;
    }
}

RawClient::~RawClient()
{
    if (m_socket >= 0)
        ::close(m_socket);
}

bool RawClient::send(const QByteArray &bytes) const
{
    qint64 sent = 0;
    while (sent < bytes.size()) {
        const ssize_t now =
            ::send(m_socket, bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (now <= 0)
            return false;
        sent += now;
    }
    return true;
}

void RawClient::finishSending() const
{
    ::shutdown(m_socket, SHUT_WR);
}

bool RawClient::receive()
{
    QByteArray buffer(receiveBytes, Qt::Uninitialized);
    const ssize_t length = ::recv(m_socket, buffer.data(), size_t(buffer.size()), 0);
    if (length <= 0)
        return false;
    m_received.append(buffer.constData(), int(length));
    return true;
}

RawReply RawClient::read(bool headOnly)
{
    RawReply reply;
    int end = -1;
    while ((end = m_received.indexOf(headEnd)) < 0) {
        if (!receive())
            return reply;
    }
    reply.head = m_received.left(end);
    m_received.remove(0, end + headEnd.size());
    const int length = headOnly ? 0 : contentLength(reply.head);
    while (m_received.size() < length && receive()) {
    }
    reply.body = m_received.left(length);
    m_received.remove(0, length);
    reply.status = reply.head.mid(reply.head.indexOf(' ') + 1, 3).toInt();
    return reply;
}

bool RawClient::waitForEnd()
{
    char bytes[4096];
    ssize_t length = 0;
    while ((length = ::recv(m_socket, bytes, sizeof bytes, 0)) > 0) {
    }
    return length == 0 || errno == ECONNRESET;
}

namespace Http {

QByteArray post(const QByteArray &body, const QByteArray &moreHeaders)
{
    return "POST /jsonrpc?Some.Method HTTP/1.1\r\nHost: 127.0.0.1:32080\r\n"
           "Content-Type:application/json;charset=UTF-8\r\n"
           + moreHeaders + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray get(const QByteArray &path, const QByteArray &moreHeaders)
{
    return "GET " + path + " HTTP/1.1\r\nHost: localhost\r\n" + moreHeaders + "\r\n";
}

RawReply ask(quint16 port, const QByteArray &request)
{
    RawClient client(port);
    client.send(request);
    return client.read(request.startsWith("HEAD"));
}

} // namespace Http
