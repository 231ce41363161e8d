// Threads whose work nobody waits for: they get what processor time the others leave.
#pragma once

namespace BackgroundPriority {

// For the calling thread, until its end. Where the system refuses, it goes on as it is.
void takeForThread();

} // namespace BackgroundPriority
