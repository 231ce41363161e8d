// The envelope of the media server's protocol: puts a method and its parameters into a request, posts it and
// takes the answer apart. Has no state but the address; any thread, many at once.
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

class LibraryTransport;

struct JsonRpcReply {
    // Delivered, an object, and its "ret" the number 0. Everything else is "no data".
    bool isGood{false};
    // Delivered, an object, and its "ret" another number: somebody is there, but will or can not.
    bool isRefused{false};
    QJsonValue result{QJsonValue::Undefined};

    // An empty object where the answer was bad or holds no object.
    [[nodiscard]] QJsonObject object() const { return result.toObject(); }
    // The answer of a change: true only where the key stands in a good answer and says so.
    [[nodiscard]] bool says(const char *key) const;
};

class JsonRpc final {
public:
    static constexpr int kDefaultPort = 32080;

    // transport: outlives this object.
    JsonRpc(LibraryTransport &transport, int port)
        : m_transport(transport)
        , m_port(port)
    {
    }

    // The port that the environment asks for (QUORIN_LIBRARY_PORT, 1 to 65535), else the default one.
    [[nodiscard]] static int configuredPort();

    [[nodiscard]] JsonRpcReply call(const char *method, const QJsonObject &params, int timeoutSeconds) const;
    [[nodiscard]] int port() const { return m_port; }

private:
    [[nodiscard]] QString url(const char *method) const;

    LibraryTransport &m_transport;
    const int m_port;
};
