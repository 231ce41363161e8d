#include "StartupSequence.h"
#include "StartupServices.h"

#include "core/SettingsManager.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    StartupServices services(argc, argv);
    const int exitCode = StartupSequence(services).run();
    // All that has an order to end in has ended. Threads that nobody waits for (the start-up thread, calls to
    // the desktop's bus) may still be at work, so nothing they use is taken down: the process just ends.
    SettingsManager::instance()->sync();
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
