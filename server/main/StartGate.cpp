#include "StartGate.h"

bool StartGate::wait(std::chrono::milliseconds longest)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, longest, [this] { return m_state != State::Starting; });
    return m_state == State::Open;
}

void StartGate::open()
{
    set(State::Open);
}

void StartGate::close()
{
    set(State::Closed);
}

void StartGate::reset()
{
    set(State::Starting);
}

void StartGate::set(State state)
{
    {
        std::lock_guard lock(m_mutex);
        m_state = state;
    }
    m_changed.notify_all();
}
