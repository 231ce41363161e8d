#include "Compositing.h"

#include <windows.h>

#include <dwmapi.h>

namespace Compositing {

bool isActive()
{
    // False under the basic and classic themes of the oldest systems: there a translucent window over a
    // hardware surface flickers.
    BOOL enabled = FALSE;
    return SUCCEEDED(DwmIsCompositionEnabled(&enabled)) && enabled;
}

// Every call reaches the window manager at once.
void flush() {}

} // namespace Compositing
