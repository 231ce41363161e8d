// A server of the test's own on a free port of this machine, in a thread of its own.
//
// It reads a request, asks the test's handler for the bytes of the answer, writes them and closes or keeps
// still. With an identity it speaks TLS. As a SOCKS5 proxy or an HTTP proxy it plays the server behind the
// proxy as well. The handler runs on
// the server's thread; what was asked is read from any.
#pragma once

#include "TlsIdentity.h"

#include <QByteArray>
#include <QList>
#include <QThread>

#include <functional>
#include <mutex>

class QTcpServer;
class QTcpSocket;

struct StandInRequest {
    QByteArray head; // request line and headers
    QByteArray body;

    [[nodiscard]] QByteArray line() const { return head.left(head.indexOf("\r\n")); }
    // Empty when there is none.
    [[nodiscard]] QByteArray header(const QByteArray &name) const;
};

struct StandInReply {
    enum class Then { Close, KeepStill };

    QByteArray bytes;
    Then then{Then::Close};
};

// An answer with its length. extra: more header lines, each with its end.
[[nodiscard]] StandInReply httpReply(const QByteArray &status, const QByteArray &body,
                                     const QByteArray &extra = {});

class StandInServer final {
public:
    using Handler = std::function<StandInReply(const StandInRequest &)>;
    enum class Speaks { Http, Socks5 };

    explicit StandInServer(Handler handler, Speaks speaks = Speaks::Http);
    StandInServer(Handler handler, const TlsIdentity &identity);
    ~StandInServer();
    StandInServer(const StandInServer &) = delete;
    StandInServer &operator=(const StandInServer &) = delete;

    [[nodiscard]] int port() const { return m_port; }
    [[nodiscard]] QString url(const QString &path) const;
    [[nodiscard]] QList<StandInRequest> requests() const;
    // SOCKS5: the methods the client offers, then name and password when it was asked for them.
    [[nodiscard]] QList<QByteArray> greetings() const;

private:
    StandInServer(Handler handler, Speaks speaks, QTcpServer *server, const QString &scheme);

    struct Talk;
    void accept(QTcpServer &server);
    void take(QTcpSocket &socket, Talk &talk);
    [[nodiscard]] bool takeSocks(QTcpSocket &socket, Talk &talk);
    void takeHttp(QTcpSocket &socket, Talk &talk);
    void note(QList<QByteArray> &list, const QByteArray &what);

    Handler m_handler;
    Speaks m_speaks;
    QString m_scheme;
    int m_port{0};
    mutable std::mutex m_mutex;
    QList<StandInRequest> m_requests;
    QList<QByteArray> m_greetings;
    QThread m_thread;
};
