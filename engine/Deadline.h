// Bounds a piece of work in time and lets another thread end it early.
//
// start() belongs to the thread that works; cancel() and isOver() may be called from any thread.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>

class Deadline final {
public:
    using Clock = std::chrono::steady_clock;

    Deadline() = default;
    explicit Deadline(std::chrono::milliseconds time) { start(time); }
    Deadline(const Deadline &) = delete;
    Deadline &operator=(const Deadline &) = delete;

    void start(std::chrono::milliseconds time) { m_end = (Clock::now() + time).time_since_epoch().count(); }
    // For good: a later start() does not take it back.
    void cancel() { m_cancelled = true; }
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }
    [[nodiscard]] bool isOver() const
    {
        return m_cancelled || Clock::now().time_since_epoch().count() >= m_end;
    }

    // In the form of an interrupt callback of FFmpeg.
    static int interrupt(void *deadline) { return static_cast<const Deadline *>(deadline)->isOver() ? 1 : 0; }

private:
    std::atomic<Clock::rep> m_end{0};
    std::atomic<bool> m_cancelled{false};
};
