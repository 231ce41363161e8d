#include "StopFlag.h"

#include <chrono>

void StopFlag::raise()
{
    {
        std::lock_guard lock(m_mutex);
        m_raised = true;
    }
    m_changed.notify_all();
}

void StopFlag::lower()
{
    std::lock_guard lock(m_mutex);
    m_raised = false;
}

bool StopFlag::isRaised() const
{
    std::lock_guard lock(m_mutex);
    return m_raised;
}

bool StopFlag::sleepMs(qint64 milliseconds)
{
    // A fixed point on the system's clock: waits on the steady one are invisible to ThreadSanitizer.
    const auto end = std::chrono::system_clock::now() + std::chrono::milliseconds(milliseconds);
    std::unique_lock lock(m_mutex);
    return !m_changed.wait_until(lock, end, [this] { return m_raised; });
}
