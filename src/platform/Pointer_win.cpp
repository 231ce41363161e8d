#include "Pointer.h"

#include <windows.h>

void Pointer::show()
{
    ShowCursor(TRUE);
}
