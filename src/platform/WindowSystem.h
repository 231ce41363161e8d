// Which of a desktop's window systems the program's windows stand on.
//
// The engine draws into a window of the video surface by its number, so that the windows must belong to a
// system that has such numbers for other libraries. Called once, before the application object is made.
#pragma once

namespace WindowSystem {

void choose();

} // namespace WindowSystem
