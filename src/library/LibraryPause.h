// The pauses of the library's threads: each can be cut short when the program ends. An interface, so that a
// test need not wait.
#pragma once

#include <condition_variable>
#include <mutex>

class LibraryPause {
public:
    virtual ~LibraryPause() = default;

    // Blocks its caller. False when it is time to end, now or before.
    [[nodiscard]] virtual bool wait(int ms) = 0;
    // Wakes all who wait; every wait after this returns at once. Any thread.
    virtual void end() = 0;
    [[nodiscard]] virtual bool isEnding() const = 0;
};

class WakeablePause final : public LibraryPause {
public:
    [[nodiscard]] bool wait(int ms) override;
    void end() override;
    [[nodiscard]] bool isEnding() const override;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_isEnding{false};
};
