// The receiving end of calls between threads. The pump lives on the target thread; any thread may hand it a
// callable, wait for its end or not, or send it news. A thread that may outlive the pump keeps a Link instead
// of the pump's address: a link stays valid and merely answers Abandoned once the pump or its thread is gone.
// Nobody waits forever for a pump that died.
#pragma once

#include "QKelCustomEvent.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

class QTransferPump final : public QObject {
    Q_OBJECT

public:
    // Done: the callable ran. Failed: it threw. Abandoned: it did not run and never will.
    enum class Outcome { Done, Failed, Abandoned };

    class Link;

    explicit QTransferPump(QObject *parent = nullptr);
    ~QTransferPump() override;

    [[nodiscard]] Link link() const;

    // Shorthands for the link's operations, for callers that know the pump to be alive.
    Outcome call(std::function<void()> function, int timeoutMs = -1);
    void post(std::function<void()> function);
    void sendEvent(int id, const QVariant &payload = {});
    void sendMessage(int message, const QVariant &first = {}, const QVariant &second = {});

signals:
    void signal_event(int id, const QVariant &payload);
    void signal_message(int message, const QVariant &first, const QVariant &second);

protected:
    void customEvent(QEvent *event) override;

private:
    struct State;

    std::shared_ptr<State> m_state;
};

class QTransferPump::Link final {
public:
    // Runs the callable on the pump's thread and waits for its end; called on that thread itself it runs at
    // once. When the pump does not get to it within the time the callable never runs. A negative time has no
    // limit.
    Outcome call(std::function<void()> function, int timeoutMs = -1) const;

    // The same for a callable with a result; empty when there is none.
    template<class Function>
    [[nodiscard]] auto ask(Function function, int timeoutMs = -1) const
        -> std::optional<std::invoke_result_t<Function>>
    {
        std::optional<std::invoke_result_t<Function>> result;
        call([&] { result.emplace(function()); }, timeoutMs);
        return result;
    }

    // Runs the callable on the pump's thread later, after what was handed over before. False when the pump is
    // gone.
    bool post(std::function<void()> function) const;
    bool sendEvent(int id, const QVariant &payload = {}) const;
    bool sendMessage(int message, const QVariant &first = {}, const QVariant &second = {}) const;

private:
    friend class QTransferPump;
    explicit Link(std::shared_ptr<State> state);

    std::shared_ptr<State> m_state;
};
