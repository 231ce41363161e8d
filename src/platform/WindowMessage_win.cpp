#include "WindowMessage.h"

#include <qt_windows.h>

std::optional<WindowMessage> WindowMessage::ofNativeEvent(const QByteArray &eventType, void *message)
{
    if (eventType != "windows_generic_MSG" || message == nullptr)
        return std::nullopt;
    const auto &native = *static_cast<const MSG *>(message);
    if (native.message < WM_MOUSEFIRST || native.message > WM_MOUSELAST)
        return std::nullopt;
    WindowMessage read;
    read.id = native.message;
    read.wParam = native.wParam;
    read.lParam = native.lParam;
    read.x = static_cast<short>(LOWORD(native.lParam));
    read.y = static_cast<short>(HIWORD(native.lParam));
    return read;
}

std::optional<WindowMessage> WindowMessage::ofMouseEvent(const QMouseEvent &)
{
    return std::nullopt;
}
