#include "EngineThread.h"

#include <algorithm>

void EngineThread::setWaker(Task waker)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_waker = std::move(waker);
}

bool EngineThread::post(Task task)
{
    // The waker runs under the lock: after setWaker(nullptr) nobody holds what it reaches.
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_closed)
        return false;
    m_tasks.push_back(std::move(task));
    if (m_waker)
        m_waker();
    return true;
}

void EngineThread::close()
{
    std::vector<Task> dropped;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_closed = true;
    dropped.swap(m_tasks);
    m_waker = nullptr;
}

EngineThread::TimerId EngineThread::after(std::chrono::milliseconds delay, Task task)
{
    m_timers.emplace(++m_lastTimer, Timer{Clock::now() + delay, std::move(task)});
    return m_lastTimer;
}

void EngineThread::cancel(TimerId &timer)
{
    m_timers.erase(timer);
    timer = 0;
}

void EngineThread::runTasks()
{
    std::vector<Task> tasks;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        tasks.swap(m_tasks);
    }
    for (Task &task : tasks)
        task();
}

void EngineThread::runTimers(Clock::time_point now)
{
    std::vector<TimerId> due;
    for (const auto &[id, timer] : m_timers) {
        if (timer.due <= now)
            due.push_back(id);
    }
    for (const TimerId id : due) {
        const auto found = m_timers.find(id); // an earlier one may have cancelled it
        if (found == m_timers.end())
            continue;
        const Task task = std::move(found->second.task);
        m_timers.erase(found);
        task();
    }
}

double EngineThread::secondsToNextTimer(Clock::time_point now, double limit) const
{
    double seconds = limit;
    for (const auto &[id, timer] : m_timers)
        seconds = std::min(seconds, std::chrono::duration<double>(timer.due - now).count());
    return std::max(seconds, 0.0);
}
