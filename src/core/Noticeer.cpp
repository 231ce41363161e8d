#include "Noticeer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

namespace Detail {

Noticeer::Noticeer(QObject *parent)
    : QObject(parent)
{
}

Noticeer::~Noticeer() = default;

void Noticeer::report(Task task)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const bool first = m_ended.empty();
    m_ended.push_back(std::move(task));
    // One event fetches all that have ended until it arrives.
    if (first)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void Noticeer::customEvent(QEvent *)
{
    deliver();
}

void Noticeer::deliver()
{
    std::deque<Task> ended;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        ended.swap(m_ended);
    }
    const QPointer<Noticeer> self(this);
    for (Task &task : ended) {
        if (task.done)
            task.done();
        // The continuation may have destroyed the pool.
        if (!self)
            return;
        emit signal_taskFinished(task.id);
        if (!self)
            return;
    }
}

} // namespace Detail
