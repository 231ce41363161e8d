#include "QKelFunctionCall.h"

#include "QMutexGuard.h"

#include <QDebug>

#include <exception>

QKelFunctionCall::QKelFunctionCall(std::function<void()> function)
    : m_function(std::move(function))
{
}

void QKelFunctionCall::run()
{
    {
        QMutexGuard lock(m_mutex);
        if (m_state != State::Waiting)
            return;
        m_state = State::Running;
    }
    State end = State::Failed;
    try {
        if (m_function)
            m_function();
        end = State::Done;
    } catch (const std::exception &error) {
        qInfo() << "[Process] call to another thread failed:" << error.what();
    } catch (...) {
        qInfo() << "[Process] call to another thread failed";
    }
    QMutexGuard lock(m_mutex);
    m_state = end;
    m_ended.wakeAll();
}

void QKelFunctionCall::abandon()
{
    QMutexGuard lock(m_mutex);
    if (m_state != State::Waiting)
        return;
    m_state = State::Abandoned;
    m_ended.wakeAll();
}

QKelFunctionCall::State QKelFunctionCall::wait(int timeoutMs)
{
    const QDeadlineTimer deadline =
        timeoutMs < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(timeoutMs);
    QMutexGuard lock(m_mutex);
    while (m_state == State::Waiting) {
        if (!lock.wait(m_ended, deadline) && m_state == State::Waiting)
            m_state = State::Abandoned;
    }
    while (m_state == State::Running)
        lock.wait(m_ended, QDeadlineTimer(QDeadlineTimer::Forever));
    return m_state;
}

QKelFunctionCall::State QKelFunctionCall::state() const
{
    QMutexGuard lock(m_mutex);
    return m_state;
}
