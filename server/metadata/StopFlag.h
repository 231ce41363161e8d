// Asks work that waits to end: a flag that can be slept on. Any thread.
#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <mutex>

class StopFlag final {
public:
    void raise();
    void lower();
    [[nodiscard]] bool isRaised() const;

    // Sleeps for that many milliseconds, or until the flag is raised. False when it is.
    [[nodiscard]] bool sleepMs(qint64 milliseconds);

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_raised{false};
};
