// Where requests wait while the server starts: the port is listened on before the database is open, so that
// who asks early is not turned away.
//
// open() and close() belong to the main thread, wait() to those that carry requests out, several at once.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

class StartGate final {
public:
    // True once it is open; false when it is closed, or was neither within the time.
    [[nodiscard]] bool wait(std::chrono::milliseconds longest);
    // All that was written before is seen by those who are let through.
    void open();
    // Who waits is sent away, now and from here on.
    void close();
    // As it was made: neither open nor closed.
    void reset();

private:
    enum class State { Starting, Open, Closed };

    void set(State state);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state{State::Starting};
};
