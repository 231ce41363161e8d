// Time that the waits of one piece of work share, however many there are. What passes between the waits is
// not counted: a busy machine must not take the time away from the wait that matters. One thread.
#pragma once

#include <QElapsedTimer>

#include <algorithm>

class WaitBudget final {
public:
    // The last wait finds at least its share.
    explicit WaitBudget(int totalMs, int lastShareMs = 0)
        : m_leftMs(totalMs)
        , m_lastShareMs(lastShareMs)
    {
    }

    [[nodiscard]] int leftMs() const { return m_leftMs; }
    [[nodiscard]] int beforeLastMs() const { return std::max(0, m_leftMs - m_lastShareMs); }

    // Runs a wait and takes off what it has used.
    template<class Wait>
    auto spend(Wait wait)
    {
        const Use use{*this};
        return wait();
    }

private:
    struct Use {
        explicit Use(WaitBudget &ofBudget)
            : budget(ofBudget)
        {
            clock.start();
        }
        ~Use() { budget.m_leftMs = std::max(0, budget.m_leftMs - static_cast<int>(clock.elapsed())); }
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;

        WaitBudget &budget;
        QElapsedTimer clock;
    };

    int m_leftMs;
    int m_lastShareMs;
};
