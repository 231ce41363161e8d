// The thread on which the scripted engine notifies, one notification after the other.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

class FakeDispatcher final {
public:
    FakeDispatcher();
    // Lets the running notification end and drops the others.
    ~FakeDispatcher();

    // The owner is the object that the notification belongs to.
    void post(const void *owner, std::function<void()> notification);

    // Drops what the owner has waiting and waits until its running notification has returned.
    void drop(const void *owner);

    // Waits until nothing of the owner waits or runs.
    void finish(const void *owner);

    bool waitIdle(int milliseconds);

private:
    struct Task {
        const void *owner = nullptr;
        std::function<void()> run;
    };

    void work();
    [[nodiscard]] bool hasWork(const void *owner) const;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks;
    const void *m_running{nullptr};
    bool m_busy{false};
    bool m_quit{false};
    std::thread m_thread;
};
