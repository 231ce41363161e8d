#include "RunProgram.h"

#include <spawn.h>
#include <sys/wait.h>

extern char **environ;

std::optional<int> runProgram(const std::string &program, const std::vector<std::string> &arguments)
{
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> pointers;
    for (std::string &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t process = 0;
    int status = 0;
    if (::posix_spawn(&process, program.c_str(), nullptr, nullptr, pointers.data(), environ) != 0
        || ::waitpid(process, &status, 0) != process || !WIFEXITED(status))
        return std::nullopt;
    return WEXITSTATUS(status);
}
