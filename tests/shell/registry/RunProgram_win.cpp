#include "RunProgram.h"

#include <windows.h>

std::optional<int> runProgram(const std::string &program, const std::vector<std::string> &arguments)
{
    std::string command = '"' + program + '"';
    for (const std::string &argument : arguments)
        command += " \"" + argument + '"';
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return std::nullopt;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    const bool told = GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return told ? std::optional<int>(static_cast<int>(code)) : std::nullopt;
}
