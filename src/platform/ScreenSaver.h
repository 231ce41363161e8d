// Keeps the screen from going dark while the program runs, or gives it back. Called from the main thread,
// also before the application object exists; never waits.
#pragma once

namespace ScreenSaver {

void disable();
void enable();

} // namespace ScreenSaver
