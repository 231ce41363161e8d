#include "WriterThread.h"

#include <QDebug>

#include <exception>
#include <utility>

WriterThread::WriterThread(const ConnectionSettings &settings)
    : m_settings(settings)
    , m_thread([this] { loop(); })
{
}

WriterThread::~WriterThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ending = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

std::future<bool> WriterThread::submit(Urgency urgency, Job job, Frame frame)
{
    Task task{urgency, frame, std::move(job), {}};
    std::future<bool> answer = task.answer.get_future();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        (urgency == Urgency::User ? m_userTasks : m_scanTasks).push_back(std::move(task));
    }
    m_wake.notify_one();
    return answer;
}

void WriterThread::loop()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_ending || !m_userTasks.empty() || !m_scanTasks.empty(); });
        std::deque<Task> &tasks = m_userTasks.empty() ? m_scanTasks : m_userTasks;
        if (tasks.empty())
            break;
        Task task = std::move(tasks.front());
        tasks.pop_front();
        lock.unlock();
        task.answer.set_value(perform(task));
        lock.lock();
    }
    m_connection.reset();
}

bool WriterThread::perform(const Task &task)
{
    if (!m_connection || !m_connection->isOpen())
        m_connection = std::make_unique<Connection>(m_settings, Connection::Access::Write);
    Connection &connection = *m_connection;
    const bool framed = task.frame == Frame::Transaction;
    const auto durability =
        task.urgency == Urgency::User ? Connection::Durability::Full : Connection::Durability::Relaxed;
    if (!connection.isOpen() || (framed && !connection.begin(durability)))
        return false;
    bool stands = false;
    try {
        stands = task.job(connection);
    } catch (const std::exception &error) {
        qWarning() << "[store] a change failed:" << error.what();
    } catch (...) {
        qWarning() << "[store] a change failed for an unknown reason";
    }
    if (!framed)
        return stands;
    if (stands && connection.commit())
        return true;
    connection.rollback();
    return false;
}
