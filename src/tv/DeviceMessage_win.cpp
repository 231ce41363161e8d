#include "DeviceMessage.h"

#include <windows.h>

#include <dbt.h>

namespace DeviceMessage {

bool isDeviceChange(const QByteArray &eventType, void *message)
{
    return eventType == "windows_generic_MSG" && static_cast<MSG *>(message)->message == WM_DEVICECHANGE;
}

} // namespace DeviceMessage
