#include "StandInServer.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int kLongestWaitMs = 10000;
constexpr int kChunk = 64 * 1024;

QByteArray head(const StandInServer::Reply &reply, int promised)
{
    QByteArray text = "HTTP/1.1 " + QByteArray::number(reply.status) + " -\r\n";
    for (const QByteArray &header : reply.headers)
        text += header + "\r\n";
    if (promised >= 0)
        text += "Content-Length: " + QByteArray::number(promised) + "\r\n";
    return text + "\r\n";
}

// How many items of the question the address has; -1 where it is another question.
int agreement(const QByteArray &question, const QByteArray &path, const QList<QByteArray> &items)
{
    const int mark = question.indexOf('?');
    if ((mark < 0 ? question : question.left(mark)) != path)
        return -1;
    if (mark < 0)
        return 0;
    const QList<QByteArray> wanted = question.mid(mark + 1).split('&');
    for (const QByteArray &item : wanted) {
        if (!items.contains(item))
            return -1;
    }
    return wanted.size();
}

} // namespace

StandInServer::StandInServer()
{
    m_context.moveToThread(&m_thread);
    m_thread.start();
    QMetaObject::invokeMethod(
        &m_context, [this] { listen(); }, Qt::BlockingQueuedConnection);
}

StandInServer::~StandInServer()
{
    QMetaObject::invokeMethod(
        &m_context, [this] { delete m_server; }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

void StandInServer::listen()
{
    m_server = new QTcpServer;
    m_server->listen(QHostAddress::LocalHost);
    {
        std::lock_guard lock(m_mutex);
        m_port = m_server->serverPort();
    }
    QObject::connect(m_server, &QTcpServer::newConnection, &m_context, [this] { takeConnection(); });
}

void StandInServer::takeConnection()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        {
            std::lock_guard lock(m_mutex);
            ++m_connections;
        }
        QObject::connect(socket, &QTcpSocket::readyRead, &m_context, [this, socket] { readFrom(socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void StandInServer::readFrom(QTcpSocket *socket)
{
    static const QByteArray end("\r\n\r\n");
    for (;;) {
        const int length = socket->peek(kChunk).indexOf(end);
        if (length < 0)
            return;
        const QByteArray request = socket->read(length + end.size());
        const QByteArray target = request.split(' ').value(1);
        {
            std::lock_guard lock(m_mutex);
            m_requests << Request{target, request.toLower()};
        }
        replyTo(socket, target);
    }
}

void StandInServer::replyTo(QTcpSocket *socket, const QByteArray &target)
{
    const Reply reply = replyFor(target);
    switch (reply.manner) {
    case Manner::Whole:
        socket->write(head(reply, reply.body.size()) + reply.body);
        return;
    case Manner::CutOff:
        socket->write(head(reply, reply.body.size() * 2) + reply.body);
        socket->disconnectFromHost();
        return;
    case Manner::Dropped:
        socket->disconnectFromHost();
        return;
    case Manner::Silent:
        return;
    case Manner::Endless:
        socket->write(head(reply, -1));
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket,
                         [socket] { socket->write(QByteArray(kChunk, 'x')); });
        socket->write(QByteArray(kChunk, 'x'));
        return;
    }
}

StandInServer::Reply StandInServer::replyFor(const QByteArray &target)
{
    const QUrl url = QUrl::fromEncoded(target);
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QList<QByteArray> items = url.query(QUrl::FullyEncoded).toLatin1().split('&');
    std::lock_guard lock(m_mutex);
    auto best = m_rows.end();
    int bestAgreement = -1;
    for (auto row = m_rows.begin(); row != m_rows.end(); ++row) {
        const int found = agreement(row.key(), path, items);
        if (found > bestAgreement) {
            bestAgreement = found;
            best = row;
        }
    }
    if (best == m_rows.end())
        return Reply{404, "{\"status_code\":34}", {}, Manner::Whole};
    const Reply reply = best->first();
    if (best->size() > 1)
        best->removeFirst();
    return reply;
}

void StandInServer::answer(const QByteArray &question, const QVector<Reply> &replies)
{
    std::lock_guard lock(m_mutex);
    m_rows.insert(question, replies);
}

void StandInServer::answer(const QByteArray &question, const QByteArray &json)
{
    answer(question, {Reply{200, json, {"Content-Type: application/json"}, Manner::Whole}});
}

quint16 StandInServer::port() const
{
    std::lock_guard lock(m_mutex);
    return m_port;
}

QString StandInServer::url(const QString &path) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(port()).arg(path);
}

QVector<StandInServer::Request> StandInServer::requests() const
{
    std::lock_guard lock(m_mutex);
    return m_requests;
}

int StandInServer::countOf(const QByteArray &path) const
{
    std::lock_guard lock(m_mutex);
    return int(std::count_if(m_requests.begin(), m_requests.end(),
                             [&path](const Request &request) { return request.target.contains(path); }));
}

int StandInServer::connections() const
{
    std::lock_guard lock(m_mutex);
    return m_connections;
}

bool StandInServer::waitForRequests(int count) const
{
    return QTest::qWaitFor([&] { return countOf({}) >= count; }, kLongestWaitMs);
}
