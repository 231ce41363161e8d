#include "ThumbnailSessions.h"

#include <limits>

int ThumbnailSessions::open(const ThumbnailSession::Request &request)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_sessions.size() >= MostSessions)
            return 0;
    }
    std::shared_ptr<ThumbnailSession> session = ThumbnailSession::open(request);
    if (!session)
        return 0;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_sessions.size() >= MostSessions)
        return 0;
    do {
        m_lastHandle = m_lastHandle == std::numeric_limits<int>::max() ? 1 : m_lastHandle + 1;
    } while (m_sessions.count(m_lastHandle) != 0);
    m_sessions.emplace(m_lastHandle, std::move(session));
    return m_lastHandle;
}

std::shared_ptr<ThumbnailSession> ThumbnailSessions::take(int handle)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_sessions.find(handle);
    if (found == m_sessions.end())
        return nullptr;
    std::shared_ptr<ThumbnailSession> session = std::move(found->second);
    m_sessions.erase(found);
    return session;
}

void ThumbnailSessions::close(int handle)
{
    // The memory goes with the last grab that still runs.
    if (const std::shared_ptr<ThumbnailSession> session = take(handle))
        session->cancel();
}

void ThumbnailSessions::closeAll()
{
    std::map<int, std::shared_ptr<ThumbnailSession>> sessions;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        sessions.swap(m_sessions);
    }
    for (const auto &entry : sessions)
        entry.second->cancel();
}

bool ThumbnailSessions::grab(int handle, int positionMs, bool exact, Picture &picture)
{
    std::shared_ptr<ThumbnailSession> session;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = m_sessions.find(handle);
        if (found == m_sessions.end())
            return false;
        session = found->second;
    }
    return session->grab(positionMs, exact, picture);
}
