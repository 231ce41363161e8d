#include "ScreenSaver.h"

#include <windows.h>

namespace {

void setActive(bool active, EXECUTION_STATE state)
{
    SystemParametersInfoW(SPI_SETSCREENSAVEACTIVE, active ? TRUE : FALSE, nullptr, 0);
    SetThreadExecutionState(state);
}

} // namespace

void ScreenSaver::disable()
{
    setActive(false, ES_CONTINUOUS | ES_DISPLAY_REQUIRED | ES_SYSTEM_REQUIRED);
}

void ScreenSaver::enable()
{
    setActive(true, ES_CONTINUOUS);
}

void ScreenSaver::setPlaying(bool) {}
