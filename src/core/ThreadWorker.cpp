#include "ThreadWorker.h"

#include "Noticeer.h"
#include "QMutexGuard.h"
#include "TaskQueue.h"
#include "Worker.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QThread>

#include <algorithm>
#include <mutex>

ThreadWorker::ThreadWorker(int threadCount, QObject *parent)
    : QObject(parent)
    , m_noticeer(new Detail::Noticeer(this))
    , m_queue(std::make_shared<Detail::TaskQueue>(m_noticeer))
{
    connect(m_noticeer, &Detail::Noticeer::signal_taskFinished, this, &ThreadWorker::signal_taskFinished);
    setThreadCount(threadCount);
}

ThreadWorker::~ThreadWorker()
{
    stop();
}

void ThreadWorker::setThreadCount(int threadCount)
{
    while (static_cast<int>(m_threads.size()) < threadCount)
        startThread();
}

void ThreadWorker::startThread()
{
    PoolThread made;
    made.thread = new QThread;
    made.worker = new Detail::Worker(m_queue);
    made.worker->moveToThread(made.thread);
    connect(made.thread, &QThread::started, made.worker, &Detail::Worker::slot_run);
    made.thread->start();
    m_threads.push_back(made);
}

quint64 ThreadWorker::addTask(std::function<void()> work, std::function<void()> done)
{
    const quint64 id = ++m_lastId;
    if (work)
        m_queue->add({id, std::move(work), std::move(done)});
    return id;
}

// Deleting a running thread would end the process. What it uses is its own, and it goes when its task has
// ended and the next one is left behind.
void ThreadWorker::leaveBehind(const PoolThread &pool)
{
    struct LeftBehind {
        std::mutex mutex;
        std::vector<PoolThread> threads;
    };
    static auto *const left = new LeftBehind;
    std::lock_guard<std::mutex> lock(left->mutex);
    const auto ended =
        std::remove_if(left->threads.begin(), left->threads.end(), [](const PoolThread &thread) {
            if (!thread.thread->wait(0))
                return false;
            delete thread.worker;
            delete thread.thread;
            return true;
        });
    left->threads.erase(ended, left->threads.end());
    left->threads.push_back(pool);
}

bool ThreadWorker::stopRequested()
{
    return QThread::currentThread()->isInterruptionRequested();
}

bool ThreadWorker::stop(int timeoutMs)
{
    m_queue->stop();
    for (const PoolThread &pool : m_threads)
        pool.thread->requestInterruption();
    const QDeadlineTimer deadline(timeoutMs);
    bool all = true;
    for (const PoolThread &pool : m_threads) {
        if (pool.thread->wait(deadline)) {
            QUORIN_HAPPENS_AFTER(m_queue.get());
            delete pool.worker;
            delete pool.thread;
        } else {
            qInfo() << "[Process] a worker does not end and is left behind";
            leaveBehind(pool);
            all = false;
        }
    }
    m_threads.clear();
    return all;
}
