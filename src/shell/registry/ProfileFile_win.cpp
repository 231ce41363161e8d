#include "ProfileFile.h"

#include "RegistryLog.h"

#include <windows.h>

struct ProfileFile::Store {
    // A bare name would be looked for in the system's folder.
    std::string path;
};

namespace {

constexpr DWORD kFirstNamesBuffer = 16384;
constexpr DWORD kLastNamesBuffer = 16u << 20;

std::string absolute(const std::string &path)
{
    char buffer[MAX_PATH] = {};
    const DWORD length = GetFullPathNameA(path.c_str(), MAX_PATH, buffer, nullptr);
    return length > 0 && length < MAX_PATH ? std::string(buffer, length) : path;
}

bool complain(const std::string &path)
{
    const DWORD error = GetLastError();
    RegistryLog::write("[Registry] cannot write " + path + ": error " + std::to_string(error));
    return false;
}

// Writes what the system still holds of the file.
void flush(const std::string &path)
{
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, path.c_str());
}

} // namespace

ProfileFile::ProfileFile(const std::string &path)
    : m_store(std::make_unique<Store>(Store{absolute(path)}))
{
}

ProfileFile::~ProfileFile() = default;

std::string ProfileFile::readString(const std::string &section, const std::string &key,
                                    const std::string &fallback) const
{
    char buffer[MaxValueLength + 1] = {};
    const DWORD length = GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(), buffer,
                                                  sizeof buffer, m_store->path.c_str());
    return {buffer, length};
}

int ProfileFile::readInt(const std::string &section, const std::string &key, int fallback) const
{
    return static_cast<int>(
        GetPrivateProfileIntA(section.c_str(), key.c_str(), fallback, m_store->path.c_str()));
}

std::vector<std::string> ProfileFile::sectionNames() const
{
    std::vector<char> buffer;
    DWORD length = 0;
    // A buffer that was too small is filled up to two characters.
    for (DWORD size = kFirstNamesBuffer; size <= kLastNamesBuffer && length + 2 >= buffer.size(); size *= 4) {
        buffer.assign(size, '\0');
        length = GetPrivateProfileSectionNamesA(buffer.data(), size, m_store->path.c_str());
    }
    std::vector<std::string> names;
    for (const char *name = buffer.data(); name < buffer.data() + length && *name != '\0';) {
        names.emplace_back(name);
        name += names.back().size() + 1;
    }
    return names;
}

bool ProfileFile::writeSections(const std::vector<Section> &sections)
{
    const std::string &path = m_store->path;
    const std::string beside = path + ".new";
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        SetLastError(ERROR_ACCESS_DENIED);
        return complain(path);
    }
    // What an end at a bad moment has left there.
    DeleteFileA(beside.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && !CopyFileA(path.c_str(), beside.c_str(), TRUE))
        return complain(beside);
    bool written = true;
    for (const Section &section : sections) {
        std::string lines;
        for (const auto &[key, value] : section.keys)
            lines += key + '=' + guarded(value) + '\0';
        lines += '\0';
        written = written && WritePrivateProfileSectionA(section.name.c_str(), lines.c_str(), beside.c_str());
    }
    flush(beside);
    if (!written
        || !MoveFileExA(beside.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        complain(path);
        DeleteFileA(beside.c_str());
        return false;
    }
    flush(path);
    return true;
}
