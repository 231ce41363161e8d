// A web server of the tests' own on loopback, in a thread of its own. It answers by rows, and notes what it
// was asked.
//
// As a proxy it answers requests for whole addresses by their path.
#pragma once

#include <QHash>
#include <QObject>
#include <QThread>
#include <QVector>

#include <mutex>

class QTcpServer;
class QTcpSocket;

class StandInServer final {
public:
    enum class Manner {
        Whole,
        CutOff,  // promises more than it sends
        Dropped, // closes without an answer
        Silent,  // never answers
        Endless  // sends without end, and without saying how much
    };

    struct Reply {
        int status{200};
        QByteArray body;
        QList<QByteArray> headers;
        Manner manner{Manner::Whole};
    };

    struct Request {
        QByteArray target;
        QByteArray headers; // as sent, in lower case
    };

    StandInServer();
    ~StandInServer();
    StandInServer(const StandInServer &) = delete;
    StandInServer &operator=(const StandInServer &) = delete;

    // question: "/3/search/movie" or "/3/search/movie?year=1979"; the row of which most holds answers.
    // Several replies come one after the other, the last for good. Unknown questions get 404.
    void answer(const QByteArray &question, const QVector<Reply> &replies);
    void answer(const QByteArray &question, const QByteArray &json);

    [[nodiscard]] QString url(const QString &path) const;
    [[nodiscard]] quint16 port() const;
    [[nodiscard]] QVector<Request> requests() const;
    [[nodiscard]] int countOf(const QByteArray &path) const; // requests whose target holds it
    [[nodiscard]] int connections() const;
    // Waits until that many requests have come. False after ten seconds.
    [[nodiscard]] bool waitForRequests(int count) const;

private:
    void listen();
    void takeConnection();
    void readFrom(QTcpSocket *socket);
    void replyTo(QTcpSocket *socket, const QByteArray &target);
    [[nodiscard]] Reply replyFor(const QByteArray &target);

    QThread m_thread;
    QObject m_context; // lives in the thread
    QTcpServer *m_server{nullptr};
    mutable std::mutex m_mutex; // guards what follows
    quint16 m_port{0};
    QHash<QByteArray, QVector<Reply>> m_rows;
    QVector<Request> m_requests;
    int m_connections{0};
};
