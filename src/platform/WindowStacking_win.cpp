#include "WindowStacking.h"

#include <qt_windows.h>

void WindowStacking::placeBelow(WId window, WId sibling)
{
    SetWindowPos(reinterpret_cast<HWND>(window), reinterpret_cast<HWND>(sibling), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}
