#include "ProgramPlace.h"

#include <windows.h>

#include <shlwapi.h>

namespace {

// The first major version that asks the user before a program may change the machine.
constexpr DWORD kFirstWithElevation = 6;

} // namespace

std::string ProgramPlace::joined(const std::string &folder, const std::string &name)
{
    char path[MAX_PATH] = {};
    if (folder.size() >= MAX_PATH)
        return {};
    folder.copy(path, folder.size());
    return PathAppendA(path, name.c_str()) ? std::string(path) : std::string();
}

std::string ProgramPlace::programFolder()
{
    char path[MAX_PATH] = {};
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH || !PathRemoveFileSpecA(path))
        return {};
    return path;
}

std::string ProgramPlace::programFile(const std::string &baseName)
{
    return baseName + ".exe";
}

std::string ProgramPlace::temporaryFolder()
{
    char path[MAX_PATH + 1] = {};
    const DWORD length = GetTempPathA(MAX_PATH + 1, path);
    if (length == 0 || length > MAX_PATH || !PathIsDirectoryA(path))
        return {};
    return path;
}

bool ProgramPlace::fileExists(const std::string &path)
{
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool ProgramPlace::touch(const std::string &path)
{
    HANDLE file = CreateFileA(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    return file != INVALID_HANDLE_VALUE && CloseHandle(file);
}

bool ProgramPlace::needsElevation()
{
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    return GetVersionExA(&version) && version.dwMajorVersion >= kFirstWithElevation;
}
