#include "BackgroundPriority.h"

#include <sys/resource.h>

namespace {

// A tenth of what an ordinary thread gets where both want to run.
constexpr int kNice = 10;

} // namespace

void BackgroundPriority::takeForThread()
{
    // Against the letter of POSIX this is about the one thread, as all of Linux' scheduling is.
    ::setpriority(PRIO_PROCESS, 0, kNice);
}
