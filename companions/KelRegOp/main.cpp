// The helper with raised rights: KelRegOp <task file>.
//
// Loads the file, runs its tasks and exits with 0; a file with nothing left to do is no failure. 1 for a file
// that holds no tasks at all, 2 for a wrong command line.
#include "HelperTaskManager.h"

#include "registry/RegistryLog.h"

#include <exception>

namespace {

enum ExitCode { Done = 0, NoTasks = 1, WrongUse = 2 };

int run(const char *path)
{
    HelperTaskManager manager;
    if (manager.Load(path) == RegResults::Success) {
        manager.Execute();
        return Done;
    }
    if (manager.hasCount())
        return Done;
    RegistryLog::write(std::string("[Registry] no tasks in ") + path);
    return NoTasks;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        RegistryLog::write("[Registry] usage: KelRegOp <task file>");
        return WrongUse;
    }
    try {
        return run(argv[1]);
    } catch (const std::exception &error) {
        RegistryLog::write(std::string("[Registry] ") + error.what());
        return NoTasks;
    }
}
