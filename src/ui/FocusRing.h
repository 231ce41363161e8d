// Whether the keyboard's cursor is to be seen on a control.
//
// A window of the overlay kind is never active, so its controls never have the focus of the application; what
// counts is the focus inside the window, and that somebody uses the keyboard. GUI thread.
#pragma once

#include <QVariant>
#include <QWidget>

namespace FocusRing {

inline constexpr char Property[] = "keyboardUsed";

[[nodiscard]] inline bool isOn(const QWidget *control)
{
    const QWidget *window = control->window();
    return window->focusWidget() == control && window->property(Property).toBool();
}

} // namespace FocusRing
