#include "BackgroundStart.h"
#include "StartupSequence.h"
#include "StartupServices.h"

#include "core/SettingsManager.h"

#include <cstdlib>

int main(int argc, char **argv)
{
    StartupServices services(argc, argv);
    const int exitCode = StartupSequence(services).run();
    if (BackgroundStart::instance()->isRunning()) {
        // Nobody waits for the start-up thread, so nothing it may use is taken down.
        SettingsManager::instance()->sync();
        std::_Exit(exitCode);
    }
    return exitCode;
}
