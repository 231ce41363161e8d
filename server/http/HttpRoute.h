// Decides from the head of a request alone where it goes, before a byte of its body is read.
//
// Pure; any thread. A page that a browser shows must not reach the library: the name that it asked for must
// be this machine's own, so that no foreign name that leads here passes, and a request that a foreign page
// makes is refused.
#pragma once

#include <QByteArray>
#include <QVector>

struct HttpHead {
    QByteArray method;
    QByteArray path; // percent-encoded as it came, without the query
    QByteArray version;
    QVector<QByteArray> hosts;   // the values of all "Host" lines
    QVector<QByteArray> origins; // of all "Origin" lines
};

struct HttpRoute {
    enum class Target { Refused, Rpc, Image };

    Target target{Target::Refused};
    int status{0};    // of a refused request
    QByteArray allow; // methods that a 405 names
    QByteArray key;   // of an image, still percent-encoded
};

namespace HttpRoutes {

[[nodiscard]] HttpRoute decide(const HttpHead &head);
// A name of this machine for itself, with a port or without.
[[nodiscard]] bool isLoopback(const QByteArray &host);

} // namespace HttpRoutes
