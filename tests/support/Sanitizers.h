// What a test has to know of the sanitizer it was built with.
#pragma once

namespace Sanitizers {

#if defined(__SANITIZE_THREAD__)
inline constexpr bool WatchesThreads = true;
#else
inline constexpr bool WatchesThreads = false;
#endif

// Whether a process holds memory that is not the program's: what was freed, shadows of what is in use.
#if defined(__SANITIZE_THREAD__) || defined(__SANITIZE_ADDRESS__)
inline constexpr bool HoldsMemory = true;
#else
inline constexpr bool HoldsMemory = false;
#endif

// Why tests of the session bus are left out under ThreadSanitizer. Every message there goes through a thread
// of the toolkit's own, whose locks it does not see: each answer that a test reads looks like a race, in a
// function of ours.
inline constexpr char BusThread[] =
    "the toolkit's bus thread hands over behind locks that ThreadSanitizer does not see";

} // namespace Sanitizers
