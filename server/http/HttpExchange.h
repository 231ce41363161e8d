// One request from its head to its answer. Belongs to the connection: its moving thread and the one pool
// thread that carries it out touch it in turn, never at once; the engine's lock stands between them.
#pragma once

#include "HttpReply.h"
#include "HttpRoute.h"

#include <QByteArray>

#include <atomic>

class HttpExchange final {
public:
    enum class State { ReadingBody, Working, Answered };

    // together counts the bytes of the bodies of all exchanges.
    HttpExchange(HttpRoute route, std::atomic<qint64> &together)
        : m_route(std::move(route))
        , m_together(together)
    {
    }
    ~HttpExchange() { dropBody(); }
    HttpExchange(const HttpExchange &) = delete;
    HttpExchange &operator=(const HttpExchange &) = delete;

    [[nodiscard]] const HttpRoute &route() const { return m_route; }
    [[nodiscard]] const QByteArray &body() const { return m_body; }
    [[nodiscard]] qint64 received() const { return m_received; }

    // Keeps the bytes unless the request is refused already; beyond the limits it becomes so, with 413 or
    // 503.
    void append(const char *bytes, size_t size, qint64 largestBody, qint64 largestTogether);
    void dropBody();

    State state{State::ReadingBody};
    int refusal{0}; // status; 0: none
    HttpReply reply;

private:
    HttpRoute m_route;
    std::atomic<qint64> &m_together;
    QByteArray m_body;
    qint64 m_received{0};
};
