#include "QTransferPump.h"

#include "QMutexGuard.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <mutex>
#include <vector>

// What pump and links share. Posting happens under the lock, so that the pump can't die between the look at
// its address and the post.
struct QTransferPump::State : std::enable_shared_from_this<QTransferPump::State> {
    std::mutex mutex;
    QTransferPump *pump{nullptr};
    QThread *watched{nullptr};
    QMetaObject::Connection watch;
    std::vector<std::weak_ptr<QKelFunctionCall>> pending;

    // A thread that ended leaves its events unread for as long as the pump lives.
    void watchThread()
    {
        QThread *thread = pump->thread();
        if (thread == watched)
            return;
        QObject::disconnect(watch);
        watched = thread;
        watch = QObject::connect(
            thread, &QThread::finished, thread, [self = shared_from_this()] { self->abandonPending(); },
            Qt::DirectConnection);
    }

    bool post(const std::shared_ptr<QKelFunctionCall> &call)
    {
        std::lock_guard<std::mutex> lock(mutex);
        if (!pump)
            return false;
        watchThread();
        // The order matters: a thread that ends after this look finds the call in the list.
        if (pump->thread()->isFinished())
            return false;
        pending.erase(
            std::remove_if(pending.begin(), pending.end(), [](const auto &p) { return p.expired(); }),
            pending.end());
        pending.push_back(call);
        auto *event = new QKelCustomEvent_Function(call);
        QUORIN_HAPPENS_BEFORE(pump);
        QCoreApplication::postEvent(pump, event);
        return true;
    }

    bool post(QEvent *event)
    {
        std::unique_ptr<QEvent> owned(event);
        std::lock_guard<std::mutex> lock(mutex);
        if (!pump)
            return false;
        QUORIN_HAPPENS_BEFORE(pump);
        QCoreApplication::postEvent(pump, owned.release());
        return true;
    }

    void abandonPending()
    {
        std::vector<std::weak_ptr<QKelFunctionCall>> calls;
        {
            std::lock_guard<std::mutex> lock(mutex);
            calls.swap(pending);
        }
        for (const auto &weak : calls) {
            if (const auto call = weak.lock())
                call->abandon();
        }
    }
};

QTransferPump::QTransferPump(QObject *parent)
    : QObject(parent)
    , m_state(std::make_shared<State>())
{
    m_state->pump = this;
}

QTransferPump::~QTransferPump()
{
    {
        std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->pump = nullptr;
        QObject::disconnect(m_state->watch);
    }
    m_state->abandonPending();
}

QTransferPump::Link QTransferPump::link() const
{
    return Link(m_state);
}

QTransferPump::Outcome QTransferPump::call(std::function<void()> function, int timeoutMs)
{
    return link().call(std::move(function), timeoutMs);
}

void QTransferPump::post(std::function<void()> function)
{
    link().post(std::move(function));
}

void QTransferPump::sendEvent(int id, const QVariant &payload)
{
    link().sendEvent(id, payload);
}

void QTransferPump::sendMessage(int message, const QVariant &first, const QVariant &second)
{
    link().sendMessage(message, first, second);
}

void QTransferPump::customEvent(QEvent *event)
{
    QUORIN_HAPPENS_AFTER(this);
    if (event->type() == QKelCustomEvent_Function::eventType()) {
        static_cast<QKelCustomEvent_Function *>(event)->call().run();
    } else if (event->type() == QKelCustomEvent::eventType()) {
        const QKelEventData data = static_cast<QKelCustomEvent *>(event)->data();
        emit signal_event(data.id, data.payload);
    } else if (event->type() == QKelCustomEvent_KelMsg::eventType()) {
        const QKelMsgData data = static_cast<QKelCustomEvent_KelMsg *>(event)->data();
        emit signal_message(data.message, data.first, data.second);
    }
}

QTransferPump::Link::Link(std::shared_ptr<State> state)
    : m_state(std::move(state))
{
}

QTransferPump::Outcome QTransferPump::Link::call(std::function<void()> function, int timeoutMs) const
{
    const auto call = std::make_shared<QKelFunctionCall>(std::move(function));
    bool onTarget = false;
    {
        std::lock_guard<std::mutex> lock(m_state->mutex);
        onTarget = m_state->pump && m_state->pump->thread() == QThread::currentThread();
    }
    if (onTarget)
        call->run();
    else if (!m_state->post(call))
        return Outcome::Abandoned;
    switch (call->wait(timeoutMs)) {
    case QKelFunctionCall::State::Done:
        return Outcome::Done;
    case QKelFunctionCall::State::Failed:
        return Outcome::Failed;
    default:
        return Outcome::Abandoned;
    }
}

bool QTransferPump::Link::post(std::function<void()> function) const
{
    return m_state->post(std::make_shared<QKelFunctionCall>(std::move(function)));
}

bool QTransferPump::Link::sendEvent(int id, const QVariant &payload) const
{
    auto data = std::make_shared<const QKelEventData>(QKelEventData{id, payload});
    return m_state->post(new QKelCustomEvent(std::move(data)));
}

bool QTransferPump::Link::sendMessage(int message, const QVariant &first, const QVariant &second) const
{
    auto data = std::make_shared<const QKelMsgData>(QKelMsgData{message, first, second});
    return m_state->post(new QKelCustomEvent_KelMsg(std::move(data)));
}
