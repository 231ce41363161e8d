// Time that passes only when somebody lets it, and notes what was waited for.
#pragma once

#include "metadata/MetadataClock.h"

#include <QVector>

class SteppedClock final : public MetadataClock {
public:
    [[nodiscard]] qint64 steadyMs() const override
    {
        std::lock_guard lock(m_mutex);
        return m_steadyMs;
    }
    [[nodiscard]] qint64 wallMs() const override
    {
        std::lock_guard lock(m_mutex);
        return m_wallMs;
    }
    [[nodiscard]] bool pass(qint64 milliseconds, StopFlag &stop) override
    {
        step(milliseconds);
        std::lock_guard lock(m_mutex);
        m_waits << milliseconds;
        return !stop.isRaised();
    }

    void step(qint64 milliseconds)
    {
        std::lock_guard lock(m_mutex);
        m_steadyMs += milliseconds;
        m_wallMs += milliseconds;
    }
    [[nodiscard]] QVector<qint64> waits() const
    {
        std::lock_guard lock(m_mutex);
        return m_waits;
    }

private:
    mutable std::mutex m_mutex;
    qint64 m_steadyMs{1000000};
    qint64 m_wallMs{1700000000000};
    QVector<qint64> m_waits;
};
