#include "Worker.h"

#include "QMutexGuard.h"

#include <QDebug>
#include <QThread>

#include <exception>

namespace Detail {

Worker::Worker(std::shared_ptr<TaskQueue> queue)
    : m_queue(std::move(queue))
{
}

Worker::~Worker() = default;

void Worker::slot_run()
{
    while (std::optional<Task> task = m_queue->take()) {
        runTask(*task);
        // What the work captured is released here and not on the caller's thread.
        task->work = nullptr;
        m_queue->reportEnd(std::move(*task));
    }
    QUORIN_HAPPENS_BEFORE(m_queue.get());
    QThread::currentThread()->quit();
}

void Worker::runTask(const Task &task)
{
    try {
        task.work();
    } catch (const std::exception &error) {
        qInfo() << "[Process] task of a worker failed:" << error.what();
    } catch (...) {
        qInfo() << "[Process] task of a worker failed";
    }
}

} // namespace Detail
