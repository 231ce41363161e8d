// Recognises the system's message that a device came or went.
#pragma once

#include <QByteArray>

namespace DeviceMessage {

[[nodiscard]] bool isDeviceChange(const QByteArray &eventType, void *message);

} // namespace DeviceMessage
