#include "StandInServer.h"

#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>
#include <QTcpSocket>

#include <memory>

namespace {

constexpr char kVersion = 5;
constexpr char kLoginMethod = 2;

class TlsServer final : public QTcpServer {
public:
    explicit TlsServer(const TlsIdentity &identity)
        : m_key(identity.key, QSsl::Ec)
        , m_certificate(identity.certificate)
    {
    }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(handle);
        socket->setPrivateKey(m_key);
        socket->setLocalCertificate(m_certificate);
        socket->startServerEncryption();
        addPendingConnection(socket);
    }

private:
    const QSslKey m_key;
    const QSslCertificate m_certificate;
};

} // namespace

// How far one connection has come.
struct StandInServer::Talk {
    enum class Stage { Greeting, Login, Connect, Http };
    Stage stage;
    QByteArray bytes;
};

QByteArray StandInRequest::header(const QByteArray &name) const
{
    const QByteArray wanted = name.toLower() + ':';
    for (const QByteArray &each : head.split('\n')) {
        if (each.toLower().startsWith(wanted))
            return each.mid(wanted.size()).trimmed();
    }
    return {};
}

StandInReply httpReply(const QByteArray &status, const QByteArray &body, const QByteArray &extra)
{
    return {"HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size())
                + "\r\nConnection: close\r\n" + extra + "\r\n" + body,
            StandInReply::Then::Close};
}

StandInServer::StandInServer(Handler handler, Speaks speaks)
    : StandInServer(std::move(handler), speaks, new QTcpServer, QStringLiteral("http"))
{
}

StandInServer::StandInServer(Handler handler, const TlsIdentity &identity)
    : StandInServer(std::move(handler), Speaks::Http, new TlsServer(identity), QStringLiteral("https"))
{
}

StandInServer::StandInServer(Handler handler, Speaks speaks, QTcpServer *server, const QString &scheme)
    : m_handler(std::move(handler))
    , m_speaks(speaks)
    , m_scheme(scheme)
{
    server->listen(QHostAddress::LocalHost);
    m_port = server->serverPort();
    server->moveToThread(&m_thread);
    QObject::connect(server, &QTcpServer::newConnection, server, [this, server] { accept(*server); });
    QObject::connect(&m_thread, &QThread::finished, server, &QObject::deleteLater);
    m_thread.start();
}

StandInServer::~StandInServer()
{
    m_thread.quit();
    m_thread.wait();
    // What it kept is seen whole from here on: a lock tells ThreadSanitizer what Qt's wait does not.
    const std::lock_guard lock(m_mutex);
}

QString StandInServer::url(const QString &path) const
{
    return QStringLiteral("%1://127.0.0.1:%2%3").arg(m_scheme, QString::number(m_port), path);
}

QList<StandInRequest> StandInServer::requests() const
{
    std::lock_guard lock(m_mutex);
    return m_requests;
}

QList<QByteArray> StandInServer::greetings() const
{
    std::lock_guard lock(m_mutex);
    return m_greetings;
}

void StandInServer::note(QList<QByteArray> &list, const QByteArray &what)
{
    std::lock_guard lock(m_mutex);
    list.append(what);
}

void StandInServer::accept(QTcpServer &server)
{
    while (QTcpSocket *socket = server.nextPendingConnection()) {
        const auto talk = std::make_shared<Talk>();
        talk->stage = m_speaks == Speaks::Socks5 ? Talk::Stage::Greeting : Talk::Stage::Http;
        QObject::connect(socket, &QTcpSocket::readyRead, socket,
                         [this, socket, talk] { take(*socket, *talk); });
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        take(*socket, *talk);
    }
}

void StandInServer::take(QTcpSocket &socket, Talk &talk)
{
    talk.bytes += socket.readAll();
    while (talk.stage != Talk::Stage::Http) {
        if (!takeSocks(socket, talk))
            return;
    }
    takeHttp(socket, talk);
}

// One step of RFC 1928 and RFC 1929; false when it is not all there yet.
bool StandInServer::takeSocks(QTcpSocket &socket, Talk &talk)
{
    const QByteArray &in = talk.bytes;
    const auto at = [&in](int i) {
        return i < in.size() ? int(static_cast<unsigned char>(in.at(i))) : 1 << 16;
    };
    int size = 0;
    QByteArray answer;
    switch (talk.stage) {
    case Talk::Stage::Greeting: {
        size = 2 + at(1);
        if (in.size() < size)
            return false;
        const QByteArray methods = in.mid(2, at(1));
        note(m_greetings, methods);
        const bool asksLogin = methods.contains(kLoginMethod);
        answer = QByteArray{} + kVersion + (asksLogin ? kLoginMethod : '\0');
        talk.stage = asksLogin ? Talk::Stage::Login : Talk::Stage::Connect;
        break;
    }
    case Talk::Stage::Login: {
        const int user = at(1);
        size = 3 + user + at(2 + user);
        if (in.size() < size)
            return false;
        note(m_greetings, in.mid(2, user));
        note(m_greetings, in.mid(3 + user, at(2 + user)));
        answer = QByteArray("\1\0", 2);
        talk.stage = Talk::Stage::Connect;
        break;
    }
    default:
        // To an IPv4 address: four bytes of it and two of the port.
        size = 10;
        if (in.size() < size)
            return false;
        answer = QByteArray("\5\0\0\1\0\0\0\0\0\0", 10);
        talk.stage = Talk::Stage::Http;
        break;
    }
    talk.bytes.remove(0, size);
    socket.write(answer);
    return true;
}

void StandInServer::takeHttp(QTcpSocket &socket, Talk &talk)
{
    const int end = talk.bytes.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    StandInRequest request{talk.bytes.left(end + 2), talk.bytes.mid(end + 4)};
    if (request.body.size() < request.header("Content-Length").toInt())
        return;
    talk.bytes.clear();
    {
        std::lock_guard lock(m_mutex);
        m_requests.append(request);
    }
    const StandInReply reply = m_handler(request);
    socket.write(reply.bytes);
    if (reply.then == StandInReply::Then::Close)
        socket.disconnectFromHost();
}
