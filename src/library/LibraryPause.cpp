#include "LibraryPause.h"

#include <chrono>

bool WakeablePause::wait(int ms)
{
    std::unique_lock lock(m_mutex);
    return !m_wake.wait_for(lock, std::chrono::milliseconds(ms), [this] { return m_isEnding; });
}

void WakeablePause::end()
{
    {
        std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_wake.notify_all();
}

bool WakeablePause::isEnding() const
{
    std::lock_guard lock(m_mutex);
    return m_isEnding;
}
