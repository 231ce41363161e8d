// Fetches one address. The only file of the server that speaks libcurl.
//
// Owns handles that callers borrow, so that a connection serves several requests. Any thread, several at
// once. Follows no redirect, speaks nothing but HTTP and HTTPS, checks certificates and takes no proxy but
// the given one: the environment's are left alone.
#pragma once

#include "ProxySettings.h"
#include "StopFlag.h"

#include <QByteArray>
#include <QList>

#include <memory>
#include <mutex>
#include <vector>

class CurlGet final {
public:
    struct Request {
        QByteArray url; // encoded
        QList<QByteArray> headers;
        ProxySettings proxy;
        qint64 connectMs{0};
        qint64 wholeMs{0};
        qint64 maxBytes{0}; // of the body, unpacked
        StopFlag *stop{nullptr};
    };

    enum class Result { Answered, NoConnection, TimedOut, TooLarge, Stopped };

    struct Reply {
        Result result{Result::NoConnection};
        int status{0};
        QByteArray body;
        QByteArray location;    // of a redirect, absolute
        qint64 retryAfterMs{0}; // as the peer asks, 0 when it does not
        QByteArray error;
    };

    CurlGet();
    ~CurlGet();
    CurlGet(const CurlGet &) = delete;
    CurlGet &operator=(const CurlGet &) = delete;

    [[nodiscard]] Reply get(const Request &request);

private:
    class Handle;
    [[nodiscard]] std::unique_ptr<Handle> borrow();
    void giveBack(std::unique_ptr<Handle> handle);

    std::mutex m_mutex;
    std::vector<std::unique_ptr<Handle>> m_idle;
};
