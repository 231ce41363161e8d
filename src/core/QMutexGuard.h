// Holds a QMutex for a scope, and tells ThreadSanitizer so: Qt's own libraries are built without it, which
// makes their locks invisible to it.
#pragma once

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#define QUORIN_HAPPENS_BEFORE(address) __tsan_release(address)
#define QUORIN_HAPPENS_AFTER(address) __tsan_acquire(address)
#else
#define QUORIN_HAPPENS_BEFORE(address) static_cast<void>(address)
#define QUORIN_HAPPENS_AFTER(address) static_cast<void>(address)
#endif

class QMutexGuard final {
public:
    explicit QMutexGuard(QMutex &mutex)
        : m_mutex(mutex)
    {
        m_mutex.lock();
        QUORIN_HAPPENS_AFTER(&m_mutex);
    }
    ~QMutexGuard()
    {
        QUORIN_HAPPENS_BEFORE(&m_mutex);
        m_mutex.unlock();
    }
    // Gives the mutex up until the condition is woken; false when the deadline came first.
    bool wait(QWaitCondition &condition, const QDeadlineTimer &deadline)
    {
        QUORIN_HAPPENS_BEFORE(&m_mutex);
        const bool woken = condition.wait(&m_mutex, deadline);
        QUORIN_HAPPENS_AFTER(&m_mutex);
        return woken;
    }

    QMutexGuard(const QMutexGuard &) = delete;
    QMutexGuard &operator=(const QMutexGuard &) = delete;

private:
    QMutex &m_mutex;
};
