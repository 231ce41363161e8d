#include "RateLimit.h"

#include <algorithm>

RateLimit::RateLimit(int requests, qint64 windowMs)
    : m_requests(static_cast<std::size_t>(std::max(1, requests)))
    , m_windowMs(windowMs)
{
}

qint64 RateLimit::take(qint64 nowMs, qint64 latestMs)
{
    std::lock_guard lock(m_mutex);
    qint64 moment = std::max(nowMs, m_heldUntil);
    if (m_taken.size() >= m_requests)
        moment = std::max(moment, m_taken.front() + m_windowMs);
    if (moment > latestMs)
        return -1;
    if (m_taken.size() >= m_requests)
        m_taken.pop_front();
    m_taken.push_back(moment);
    return moment;
}

void RateLimit::holdUntil(qint64 timeMs)
{
    std::lock_guard lock(m_mutex);
    m_heldUntil = std::max(m_heldUntil, timeMs);
}
