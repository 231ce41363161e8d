// One TCP connection to the server under test that says exactly the bytes it is told to, right or wrong.
//
// Blocking, with a limit on every wait; for any thread of a test.
#pragma once

#include <QByteArray>
#include <QtGlobal>

struct RawReply {
    int status{0}; // 0: the connection ended without a reply
    QByteArray head;
    QByteArray body;
};

class RawClient final {
public:
    explicit RawClient(quint16 port);
    ~RawClient();
    RawClient(const RawClient &) = delete;
    RawClient &operator=(const RawClient &) = delete;

    [[nodiscard]] bool isConnected() const { return m_socket >= 0; }
    // False when the other side does not listen any more.
    bool send(const QByteArray &bytes) const;
    // Says that nothing more will come.
    void finishSending() const;
    // The next reply on this connection.
    [[nodiscard]] RawReply read(bool headOnly = false);
    // True when the other side has closed the connection.
    [[nodiscard]] bool waitForEnd();

private:
    // False at the end of the stream, or after the limit.
    bool receive();

    int m_socket{-1};
    QByteArray m_received;
};

namespace Http {

// A whole request of the player.
[[nodiscard]] QByteArray post(const QByteArray &body, const QByteArray &moreHeaders = {});
[[nodiscard]] QByteArray get(const QByteArray &path, const QByteArray &moreHeaders = {});
// One request on a connection of its own.
[[nodiscard]] RawReply ask(quint16 port, const QByteArray &request);

} // namespace Http
