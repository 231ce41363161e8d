// A callable on its way to another thread, with the means to wait for its end. It runs at most once; a call
// that was given up before it began never runs, so whatever the callable captured by reference may go. Shared
// between sender and receiver, safe on every thread.
#pragma once

#include <QMutex>
#include <QWaitCondition>

#include <functional>

class QKelFunctionCall final {
public:
    enum class State { Waiting, Running, Done, Failed, Abandoned };

    explicit QKelFunctionCall(std::function<void()> function);

    // Executes the callable on the calling thread, unless the call was given up or has run. An exception that
    // leaves the callable ends in Failed.
    void run();

    // Gives the call up if it has not begun, and wakes whoever waits.
    void abandon();

    // Waits for the end; gives the call up when it has not begun within the time. A negative time has no
    // limit.
    State wait(int timeoutMs);

    [[nodiscard]] State state() const;

private:
    std::function<void()> m_function;
    mutable QMutex m_mutex;
    QWaitCondition m_ended;
    State m_state{State::Waiting};
};
