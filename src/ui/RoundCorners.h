// Rounded corners of frameless windows. GUI thread.
#pragma once

class QWidget;

namespace RoundCorners {

// Frees the window's corners where the desktop blends windows, and tells the style sheet through the dynamic
// property "blended" of the panel that fills the window. Without blending the corners would be black, so they
// stay square.
void prepare(QWidget *window, QWidget *panel);

} // namespace RoundCorners
