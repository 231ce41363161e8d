// How a request reaches the media server: one post, one answer. An interface, so that a test can stand in for
// the server. Used by many threads at once; a call blocks its caller for the time-out at most.
#pragma once

#include <QByteArray>
#include <QString>

struct LibraryReply {
    bool isDelivered{false}; // the transport's own word; it has logged what went wrong
    QByteArray body;
};

class LibraryTransport {
public:
    virtual ~LibraryTransport() = default;

    [[nodiscard]] virtual LibraryReply postJson(const QString &url, const QByteArray &body,
                                                int timeoutSeconds) = 0;
    // From now on every call fails, those under way soon. Any thread.
    virtual void stop() = 0;
};
