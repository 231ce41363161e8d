// The three custom events that carry work or news to another thread. Each holds its record by a shared
// pointer, so that sender and receiver may outlive the event and each other.
#pragma once

#include "QKelFunctionCall.h"

#include <QEvent>
#include <QVariant>

#include <memory>

struct QKelEventData {
    int id{0};
    QVariant payload;
};

struct QKelMsgData {
    int message{0};
    QVariant first;
    QVariant second;
};

// News with a number and a value.
class QKelCustomEvent final : public QEvent {
public:
    explicit QKelCustomEvent(std::shared_ptr<const QKelEventData> data);
    [[nodiscard]] static QEvent::Type eventType();
    [[nodiscard]] const QKelEventData &data() const { return *m_data; }

private:
    std::shared_ptr<const QKelEventData> m_data;
};

// A callable that the receiver runs on its own thread. An event that is thrown away unread gives the call up.
class QKelCustomEvent_Function final : public QEvent {
public:
    explicit QKelCustomEvent_Function(std::shared_ptr<QKelFunctionCall> call);
    ~QKelCustomEvent_Function() override;
    [[nodiscard]] static QEvent::Type eventType();
    [[nodiscard]] QKelFunctionCall &call() const { return *m_call; }

private:
    std::shared_ptr<QKelFunctionCall> m_call;
};

// A message with two values.
class QKelCustomEvent_KelMsg final : public QEvent {
public:
    explicit QKelCustomEvent_KelMsg(std::shared_ptr<const QKelMsgData> data);
    [[nodiscard]] static QEvent::Type eventType();
    [[nodiscard]] const QKelMsgData &data() const { return *m_data; }

private:
    std::shared_ptr<const QKelMsgData> m_data;
};
