#include "Notifier.h"

#include "EngineLog.h"

#include <algorithm>
#include <exception>

Notifier::Notifier()
    : m_thread([this] { run(); })
{
}

Notifier::~Notifier()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void Notifier::post(const LinePtr &line, std::function<void()> notification)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!line->m_open)
            return;
        m_entries.push_back({line, std::move(notification)});
    }
    m_changed.notify_all();
}

void Notifier::flush(const LinePtr &line)
{
    if (isNotifierThread())
        return;
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait(lock, [&] {
        return m_running != line && std::none_of(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
                   return entry.line == line;
               });
    });
}

void Notifier::close(const LinePtr &line)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    line->m_open = false;
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                   [&](const Entry &entry) { return entry.line == line; }),
                    m_entries.end());
    if (isNotifierThread())
        return;
    m_changed.wait(lock, [&] { return m_running != line; });
}

std::size_t Notifier::waiting() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries.size();
}

void Notifier::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_stop || !m_entries.empty(); });
        if (m_entries.empty())
            return;
        Entry entry = std::move(m_entries.front());
        m_entries.pop_front();
        m_running = entry.line;
        lock.unlock();
        try {
            entry.notification();
        } catch (const std::exception &error) {
            engineLog("[Engine] a notification threw: %s", error.what());
        }
        entry.notification = nullptr;
        lock.lock();
        m_running.reset();
        m_changed.notify_all();
    }
}
