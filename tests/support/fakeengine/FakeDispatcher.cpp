#include "FakeDispatcher.h"

#include <algorithm>
#include <chrono>
#include <utility>

FakeDispatcher::FakeDispatcher()
    : m_thread([this] { work(); })
{
}

FakeDispatcher::~FakeDispatcher()
{
    {
        std::lock_guard lock(m_mutex);
        m_quit = true;
        m_tasks.clear();
        m_changed.notify_all();
    }
    m_thread.join();
}

void FakeDispatcher::post(const void *owner, std::function<void()> notification)
{
    std::lock_guard lock(m_mutex);
    m_tasks.push_back({owner, std::move(notification)});
    m_changed.notify_all();
}

void FakeDispatcher::drop(const void *owner)
{
    std::unique_lock lock(m_mutex);
    m_tasks.erase(std::remove_if(m_tasks.begin(), m_tasks.end(),
                                 [owner](const Task &task) { return task.owner == owner; }),
                  m_tasks.end());
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return !(m_busy && m_running == owner); });
}

void FakeDispatcher::finish(const void *owner)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return !hasWork(owner); });
}

bool FakeDispatcher::waitIdle(int milliseconds)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                              [&] { return m_tasks.empty() && !m_busy; });
}

bool FakeDispatcher::hasWork(const void *owner) const
{
    return (m_busy && m_running == owner)
           || std::any_of(m_tasks.begin(), m_tasks.end(),
                          [owner](const Task &task) { return task.owner == owner; });
}

void FakeDispatcher::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [&] { return m_quit || !m_tasks.empty(); });
        if (m_quit)
            return;
        const Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        m_running = task.owner;
        m_busy = true;
        lock.unlock();
        task.run();
        lock.lock();
        m_busy = false;
        m_changed.notify_all();
    }
}
