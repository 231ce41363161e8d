#include "SeekQueue.h"

#include <utility>

void SeekQueue::request(Seek seek)
{
    if (m_running)
        m_waiting = std::move(seek);
    else
        start(std::move(seek));
}

std::optional<SeekQueue::Seek> SeekQueue::finish()
{
    return std::exchange(m_running, std::nullopt);
}

void SeekQueue::startWaiting()
{
    if (m_running || !m_waiting)
        return;
    Seek seek = std::move(*m_waiting);
    m_waiting.reset();
    start(std::move(seek));
}

void SeekQueue::clear()
{
    m_running.reset();
    m_waiting.reset();
}

std::optional<double> SeekQueue::target() const
{
    if (m_waiting)
        return m_waiting->target;
    if (m_running)
        return m_running->target;
    return std::nullopt;
}

void SeekQueue::start(Seek seek)
{
    m_running = std::move(seek);
    m_start(*m_running);
}
