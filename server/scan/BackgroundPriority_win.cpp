#include "BackgroundPriority.h"

#include <windows.h>

void BackgroundPriority::takeForThread()
{
    ::SetThreadPriority(::GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
}
