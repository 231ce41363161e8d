// The front of the server: HTTP on the loopback address, the protocol at /jsonrpc and pictures at /image/.
//
// Owns the listening socket, two threads that move bytes and a bounded pool of threads in which requests are
// carried out, so that a request that waits for the network or the disk holds up no other. start() and stop()
// belong to one thread; the handlers are called from those of the pool, several at once.
#pragma once

#include "HttpReply.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

class HttpServer final {
public:
    struct Handlers {
        std::function<QByteArray(const QByteArray &body)> rpc;
        std::function<HttpReply(const QByteArray &encodedKey)> image;
    };

    struct Settings {
        quint16 port{DefaultPort}; // 0: the system chooses
        // A connection on which nothing moves for so long is closed. One whose client left in the middle of a
        // request is not known from a slow one: so many can be held for so long by who sends only halves.
        unsigned idleSeconds{5};
        unsigned connections{2048};        // open at once; more wait to be accepted
        int threads{16};                   // that carry requests out
        qint64 largestBody{16777216};      // bytes; a longer one is answered with 413
        qint64 largestTogether{134217728}; // bytes of all bodies under way; beyond it 503
    };

    enum class Start { Started, PortTaken, Failed };

    static constexpr quint16 DefaultPort = 32080;

    HttpServer(Handlers handlers, const Settings &settings);
    ~HttpServer(); // stops
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    [[nodiscard]] Start start();
    // Ends what is under way and closes every connection; returns when the last handler has returned.
    void stop();
    [[nodiscard]] quint16 port() const; // 0 while it is not started

private:
    class Engine;
    std::unique_ptr<Engine> m_engine;
};
