// A pool of threads for work that must not hold up its caller. Tasks begin in the order in which they were
// added; with one thread they also end in it. Continuations run on the pool's own thread, the one it was made
// on. Owns its threads. Destruction forgets what has not begun, asks running tasks to stop (see
// stopRequested()) and waits a bounded time; a task stuck in a call to the system is then left behind rather
// than hanging the program.
#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QThread;

namespace Detail {
class Noticeer;
class TaskQueue;
class Worker;
} // namespace Detail

class ThreadWorker final : public QObject {
    Q_OBJECT

public:
    static constexpr int StopTimeoutMs = 3000;

    explicit ThreadWorker(int threadCount = 1, QObject *parent = nullptr);
    ~ThreadWorker() override;

    // Adds threads up to the count; a pool never shrinks.
    void setThreadCount(int threadCount);
    [[nodiscard]] int threadCount() const { return static_cast<int>(m_threads.size()); }

    // Gives the number that signal_taskFinished() will name.
    quint64 addTask(std::function<void()> work, std::function<void()> done = {});

    // For a running task: true once its pool is being stopped.
    [[nodiscard]] static bool stopRequested();

    // Ends the pool; false when a task did not end in time. Later tasks are ignored.
    bool stop(int timeoutMs = StopTimeoutMs);

signals:
    void signal_taskFinished(quint64 id);

private:
    struct PoolThread {
        QThread *thread{nullptr};
        Detail::Worker *worker{nullptr};
    };

    void startThread();
    static void leaveBehind(const PoolThread &pool);

    Detail::Noticeer *m_noticeer;
    std::shared_ptr<Detail::TaskQueue> m_queue;
    std::vector<PoolThread> m_threads;
    quint64 m_lastId{0};
};
