// Which of a desktop's window systems the program's windows stand on.
//
// The engine draws into a window of the video surface by its number, so that the windows must belong to a
// system that has such numbers for other libraries.
#pragma once

namespace WindowSystem {

// Called once, before the application object is made.
void choose();

// Called once it is made. When the window system goes away, the process ends at once with status 1: those who
// notice it first, be it on the engine's threads, would tear its objects down under the threads that still
// use them.
void endWithDisplay();

} // namespace WindowSystem
