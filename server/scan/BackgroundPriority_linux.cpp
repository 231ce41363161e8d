#include "BackgroundPriority.h"

#include <sys/resource.h>

namespace {

// A third of what an ordinary thread gets where both want to run. Not less: a file has a few seconds, and on
// a busy machine a good one would need more than that.
constexpr int kNice = 5;

} // namespace

void BackgroundPriority::takeForThread()
{
    // Against the letter of POSIX this is about the one thread, as all of Linux' scheduling is.
    ::setpriority(PRIO_PROCESS, 0, kNice);
}
