#include "ElevatedHelper.h"

#include <cerrno>
#include <csignal>

#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace {

// Asks the user by the session's own agent.
constexpr char kElevate[] = "pkexec";
constexpr int kWaitForAll = -1;

// Whether the process has ended within the limit.
bool waitForEnd(pid_t process, int limitMs)
{
    const int handle = static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
    if (handle < 0)
        return limitMs < 0;
    pollfd end{handle, POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&end, 1, limitMs < 0 ? kWaitForAll : limitMs);
    } while (ready < 0 && errno == EINTR);
    ::close(handle);
    return ready > 0;
}

} // namespace

std::optional<int> ElevatedHelper::run(const std::string &program, const std::string &argument, int limitMs)
{
    std::string words[] = {kElevate, program, argument};
    char *const arguments[] = {words[0].data(), words[1].data(), words[2].data(), nullptr};
    pid_t process = 0;
    if (::posix_spawnp(&process, kElevate, nullptr, nullptr, arguments, environ) != 0)
        return std::nullopt;
    const bool ended = waitForEnd(process, limitMs);
    if (!ended)
        ::kill(process, SIGTERM);
    int status = 0;
    while (::waitpid(process, &status, 0) < 0) {
        if (errno != EINTR)
            return std::nullopt;
    }
    return ended && WIFEXITED(status) ? std::optional<int>(WEXITSTATUS(status)) : std::nullopt;
}
