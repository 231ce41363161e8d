#include "DeviceMessage.h"

namespace DeviceMessage {

bool isDeviceChange(const QByteArray &, void *)
{
    // The window system carries no such message here.
    return false;
}

} // namespace DeviceMessage
