// The tasks of a pool on their way to its threads, and the way back for their ends.
// Shared by the pool and its workers, so that a worker that can't be waited for any longer finds it still
// there. Safe on every thread.
#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>

namespace Detail {

class Noticeer;

struct Task {
    quint64 id{0};
    std::function<void()> work;
    // Runs on the caller's thread after the work.
    std::function<void()> done;
};

class TaskQueue final {
public:
    explicit TaskQueue(Noticeer *noticeer);

    void add(Task task);
    // Waits for a task; empty when the pool stops.
    [[nodiscard]] std::optional<Task> take();
    // Forgets what has not begun; workers end with what they are at, and nobody is told any more.
    void stop();
    void reportEnd(Task task);

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks;
    Noticeer *m_noticeer;
    bool m_stopped{false};
};

} // namespace Detail
