// The one thread that writes to the database. Takes jobs from any thread and answers when their transaction
// stands. What a user waits for goes before what a scan stores. The end of the object does first what still
// waits.
#pragma once

#include "Connection.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>

class WriterThread final {
public:
    enum class Urgency { User, Scan };
    // Alone: outside of a transaction, for what the database allows only there.
    enum class Frame { Transaction, Alone };
    // Says whether what it did is to stand; an exception counts as no.
    using Job = std::function<bool(Connection &)>;

    explicit WriterThread(const ConnectionSettings &settings);
    ~WriterThread();
    WriterThread(const WriterThread &) = delete;
    WriterThread &operator=(const WriterThread &) = delete;

    // Never to be waited for on the writer's own thread.
    [[nodiscard]] std::future<bool> submit(Urgency urgency, Job job, Frame frame = Frame::Transaction);
    [[nodiscard]] bool isOwnThread() const { return std::this_thread::get_id() == m_thread.get_id(); }

private:
    struct Task {
        Urgency urgency;
        Frame frame;
        Job job;
        std::promise<bool> answer;
    };

    void loop();
    [[nodiscard]] bool perform(const Task &task);

    const ConnectionSettings m_settings;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Task> m_userTasks;
    std::deque<Task> m_scanTasks;
    bool m_ending{false};
    std::unique_ptr<Connection> m_connection; // of the writer's thread alone
    std::thread m_thread;
};
