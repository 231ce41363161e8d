// Keeps the screen from going dark, or gives it back. Called from the main thread, also before the
// application object exists; never waits.
//
// Windows is told for the whole run of the program. A desktop with an idle inhibitor is asked only while
// something plays, which setPlaying() tells: a paused film or an open window is no reason to keep a screen
// on.
#pragma once

namespace ScreenSaver {

void disable();
void enable();
void setPlaying(bool playing);

} // namespace ScreenSaver
