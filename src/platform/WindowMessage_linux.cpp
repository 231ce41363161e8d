#include "WindowMessage.h"

#include <QMouseEvent>

namespace {

constexpr unsigned kMove = 0x0200;
constexpr unsigned kLeftDown = 0x0201;
constexpr unsigned kLeftUp = 0x0202;
constexpr quintptr kLeftHeld = 0x0001;

} // namespace

std::optional<WindowMessage> WindowMessage::ofNativeEvent(const QByteArray &, void *)
{
    return std::nullopt;
}

std::optional<WindowMessage> WindowMessage::ofMouseEvent(const QMouseEvent &event)
{
    WindowMessage message;
    switch (event.type()) {
    case QEvent::MouseMove:
        message.id = kMove;
        break;
    case QEvent::MouseButtonPress:
        message.id = kLeftDown;
        break;
    case QEvent::MouseButtonRelease:
        message.id = kLeftUp;
        break;
    default:
        return std::nullopt;
    }
    if (message.id != kMove && event.button() != Qt::LeftButton)
        return std::nullopt;
    message.x = event.x();
    message.y = event.y();
    message.wParam = event.buttons().testFlag(Qt::LeftButton) ? kLeftHeld : 0;
    message.lParam = qintptr((quint32(quint16(message.y)) << 16) | quint16(message.x));
    return message;
}
