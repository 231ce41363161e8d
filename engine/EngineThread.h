// What an engine thread works through between the events of libmpv: tasks that others posted, and timers.
//
// post() may be called from any thread, all else from the engine thread alone.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <vector>

class EngineThread final {
public:
    using Clock = std::chrono::steady_clock;
    using Task = std::function<void()>;
    using TimerId = std::uint64_t;

    // Called after each post(), on the thread that posts, to end the wait of the engine thread.
    void setWaker(Task waker);

    // False once close() has been called.
    bool post(Task task);
    // Takes no more tasks and drops those that wait.
    void close();

    TimerId after(std::chrono::milliseconds delay, Task task);
    void cancel(TimerId &timer); // sets it to 0; 0 is ignored

    void runTasks();
    void runTimers(Clock::time_point now);
    // Seconds until the next timer, at most limit.
    [[nodiscard]] double secondsToNextTimer(Clock::time_point now, double limit) const;

private:
    struct Timer {
        Clock::time_point due;
        Task task;
    };

    std::mutex m_mutex;
    std::vector<Task> m_tasks;
    Task m_waker;
    bool m_closed{false};
    std::map<TimerId, Timer> m_timers;
    TimerId m_lastTimer{0};
};
