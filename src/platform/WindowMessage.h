// Mouse messages of the native window in the form that the engine takes them, so that the menu of a disc can
// be used with the mouse. GUI thread.
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

class QMouseEvent;

struct WindowMessage {
    unsigned id{0}; // number of the message as Windows counts them
    quintptr wParam{0};
    qintptr lParam{0};
    int x{0}; // pixels, in the window
    int y{0};

    // What a native event says; none for what is no mouse message, and on systems whose native events say it
    // otherwise.
    [[nodiscard]] static std::optional<WindowMessage> ofNativeEvent(const QByteArray &eventType,
                                                                    void *message);
    // What an event of Qt says; none where native events are read.
    [[nodiscard]] static std::optional<WindowMessage> ofMouseEvent(const QMouseEvent &event);
};
