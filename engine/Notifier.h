// Raises the notifications to the player: one thread, one at a time, in order, under no lock.
//
// A line of notifications belongs to each play and to the output; closing a line drops what waits in it and
// waits for the notification that is under way, so that nothing arrives afterwards.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

class Notifier final {
public:
    // One sender's notifications.
    class Line final {
        friend class Notifier;
        bool m_open = true; // under the notifier's mutex
    };
    using LinePtr = std::shared_ptr<Line>;

    Notifier();
    // Raises what still waits in open lines.
    ~Notifier();
    Notifier(const Notifier &) = delete;
    Notifier &operator=(const Notifier &) = delete;

    [[nodiscard]] LinePtr openLine() const { return std::make_shared<Line>(); }

    void post(const LinePtr &line, std::function<void()> notification);

    // Waits until all that the line holds now has been raised. At once on the notifier's own thread.
    void flush(const LinePtr &line);
    void close(const LinePtr &line);

    [[nodiscard]] bool isNotifierThread() const { return std::this_thread::get_id() == m_thread.get_id(); }

    // Notifications that wait.
    [[nodiscard]] std::size_t waiting() const;

private:
    struct Entry {
        LinePtr line;
        std::function<void()> notification;
    };

    void run();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Entry> m_entries;
    LinePtr m_running;
    bool m_stop{false};
    std::thread m_thread; // last: starts with everything above in place
};
