// Order of top-level windows on the screen. GUI thread.
#pragma once

#include <qwindowdefs.h>

namespace WindowStacking {

// Asks the desktop to put a window directly below another one, without activating either. Both have to be
// mapped.
void placeBelow(WId window, WId sibling);

} // namespace WindowStacking
