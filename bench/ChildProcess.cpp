#include "ChildProcess.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

ChildProcess::ChildProcess(const std::vector<std::string> &command, const std::vector<std::string> &variables)
{
    // All memory is had before the fork: behind it only plain system calls are safe.
    std::vector<char *> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    std::vector<char *> environment;
    for (char **variable = environ; *variable; ++variable)
        environment.push_back(*variable);
    // Of two with one name the first counts.
    for (const std::string &variable : variables)
        environment.insert(environment.begin(), const_cast<char *>(variable.c_str()));
    environment.push_back(nullptr);

    m_id = fork();
    if (m_id == 0) {
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, 0);
        dup2(nowhere, 1);
        dup2(nowhere, 2);
        execvpe(arguments[0], arguments.data(), environment.data());
        _exit(127);
    }
    if (m_id > 0)
        m_handle = int(syscall(SYS_pidfd_open, m_id, 0));
}

ChildProcess::~ChildProcess()
{
    if (isRunning()) {
        kill(m_id, SIGKILL);
        waitpid(m_id, nullptr, 0);
    }
    if (m_handle >= 0)
        close(m_handle);
}

bool ChildProcess::isRunning()
{
    if (m_id > 0 && waitpid(m_id, nullptr, WNOHANG) != 0)
        m_id = -1;
    return m_id > 0;
}

double ChildProcess::processorSeconds() const
{
    std::ifstream stream("/proc/" + std::to_string(m_id) + "/stat");
    std::string line;
    std::getline(stream, line);
    // The name in parentheses may hold blanks; user and kernel time are the 12th and 13th field behind it.
    const std::size_t behindName = line.rfind(')');
    if (behindName == std::string::npos)
        return 0;
    std::istringstream fields(line.substr(behindName + 1));
    std::string skipped;
    for (int i = 0; i < 11; ++i)
        fields >> skipped;
    double user = 0;
    double system = 0;
    fields >> user >> system;
    return (user + system) / double(sysconf(_SC_CLK_TCK));
}

double ChildProcess::peakMemory() const
{
    std::ifstream stream("/proc/" + std::to_string(m_id) + "/status");
    for (std::string line; std::getline(stream, line);) {
        if (line.rfind("VmHWM:", 0) == 0)
            return std::strtod(line.c_str() + 6, nullptr) / 1024;
    }
    return 0;
}

bool ChildProcess::waitForEnd(double seconds)
{
    pollfd ready{m_handle, POLLIN, 0};
    return !isRunning() || (poll(&ready, 1, int(seconds * 1000)) > 0 && !isRunning());
}
