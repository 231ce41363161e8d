// Seeks of one play: one runs, and of those that come meanwhile only the newest waits.
//
// Lives on the engine thread. The owner does the seek that start asks for and tells when it is over.
#pragma once

#include <functional>
#include <optional>

class SeekQueue final {
public:
    struct Seek {
        double target = 0; // seconds
        bool exact = true;
        bool announced = true;      // the player is told about it
        std::function<void()> done; // when it is over, however it went; not for one that is replaced
    };

    explicit SeekQueue(std::function<void(const Seek &)> start)
        : m_start(std::move(start))
    {
    }

    void request(Seek seek);
    // The running seek is over: answers it, nothing when none runs.
    std::optional<Seek> finish();
    // Starts the seek that waits, when there is one and none runs.
    void startWaiting();
    void clear();

    [[nodiscard]] bool isBusy() const { return m_running.has_value(); }
    // Target of the newest seek.
    [[nodiscard]] std::optional<double> target() const;

private:
    void start(Seek seek);

    std::function<void(const Seek &)> m_start;
    std::optional<Seek> m_running;
    std::optional<Seek> m_waiting;
};
