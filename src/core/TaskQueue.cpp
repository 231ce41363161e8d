#include "TaskQueue.h"

#include "Noticeer.h"

namespace Detail {

TaskQueue::TaskQueue(Noticeer *noticeer)
    : m_noticeer(noticeer)
{
}

void TaskQueue::add(Task task)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_stopped)
            return;
        m_tasks.push_back(std::move(task));
    }
    m_changed.notify_one();
}

std::optional<Task> TaskQueue::take()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [this] { return m_stopped || !m_tasks.empty(); });
    if (m_stopped)
        return std::nullopt;
    Task task = std::move(m_tasks.front());
    m_tasks.pop_front();
    return task;
}

void TaskQueue::stop()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = true;
        m_tasks.clear();
        m_noticeer = nullptr;
    }
    m_changed.notify_all();
}

void TaskQueue::reportEnd(Task task)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_noticeer)
        m_noticeer->report(std::move(task));
}

} // namespace Detail
