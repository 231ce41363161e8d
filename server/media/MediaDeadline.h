// Bounds the reading of one file in time and lets another thread end it early.
//
// isOver() may be called from any thread. The flag that cancels belongs to whoever reads and must outlive the
// deadline.
#pragma once

#include <atomic>
#include <chrono>

class MediaDeadline final {
public:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds PerFile{3000};

    explicit MediaDeadline(std::chrono::milliseconds time = PerFile,
                           const std::atomic<bool> *cancelled = nullptr)
        : m_end(Clock::now() + time)
        , m_cancelled(cancelled)
    {
    }

    [[nodiscard]] bool isOver() const { return (m_cancelled && *m_cancelled) || Clock::now() >= m_end; }

    // In the form of an interrupt callback of libavformat.
    static int interrupt(void *deadline)
    {
        return static_cast<const MediaDeadline *>(deadline)->isOver() ? 1 : 0;
    }

private:
    Clock::time_point m_end;
    const std::atomic<bool> *m_cancelled{nullptr};
};
