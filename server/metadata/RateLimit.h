// At most so many requests in any stretch of time. Any thread; times are the caller's, so nothing here waits.
#pragma once

#include <QtGlobal>

#include <deque>
#include <mutex>

class RateLimit final {
public:
    RateLimit(int requests, qint64 windowMs);

    // The moment at which the caller may send, or -1 (and nothing is taken) when that is after the latest
    // one.
    [[nodiscard]] qint64 take(qint64 nowMs, qint64 latestMs);
    // Nothing is sent before that moment: the provider has asked for it.
    void holdUntil(qint64 timeMs);

private:
    const std::size_t m_requests;
    const qint64 m_windowMs;
    std::mutex m_mutex;
    std::deque<qint64> m_taken;
    qint64 m_heldUntil{0};
};
