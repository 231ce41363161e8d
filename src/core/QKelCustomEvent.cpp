#include "QKelCustomEvent.h"

QKelCustomEvent::QKelCustomEvent(std::shared_ptr<const QKelEventData> data)
    : QEvent(eventType())
    , m_data(std::move(data))
{
}

QEvent::Type QKelCustomEvent::eventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

QKelCustomEvent_Function::QKelCustomEvent_Function(std::shared_ptr<QKelFunctionCall> call)
    : QEvent(eventType())
    , m_call(std::move(call))
{
}

QKelCustomEvent_Function::~QKelCustomEvent_Function()
{
    m_call->abandon();
}

QEvent::Type QKelCustomEvent_Function::eventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

QKelCustomEvent_KelMsg::QKelCustomEvent_KelMsg(std::shared_ptr<const QKelMsgData> data)
    : QEvent(eventType())
    , m_data(std::move(data))
{
}

QEvent::Type QKelCustomEvent_KelMsg::eventType()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}
