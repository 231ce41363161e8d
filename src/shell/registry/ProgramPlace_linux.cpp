#include "ProgramPlace.h"

#include <cstdlib>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

std::string ProgramPlace::joined(const std::string &folder, const std::string &name)
{
    return !folder.empty() && folder.back() == '/' ? folder + name : folder + '/' + name;
}

std::string ProgramPlace::programFolder()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string() : program.parent_path().string();
}

std::string ProgramPlace::programFile(const std::string &baseName)
{
    return baseName;
}

std::string ProgramPlace::temporaryFolder()
{
    std::error_code error;
    const auto folder = std::filesystem::temp_directory_path(error);
    return error ? std::string() : folder.string();
}

bool ProgramPlace::fileExists(const std::string &path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

bool ProgramPlace::touch(const std::string &path)
{
    // The folder is everybody's: no link of another user's is followed, and nobody else writes into the file.
    const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                            S_IRUSR | S_IWUSR);
    return file >= 0 && ::close(file) == 0;
}

bool ProgramPlace::needsElevation()
{
    // The hive is a file of the user's own.
    return false;
}
