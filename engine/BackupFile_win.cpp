#include "BackupFile.h"

#include "NativePath.h"

#include <windows.h>

namespace {

HANDLE handleOf(std::intptr_t handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

std::wstring native(const std::string &path)
{
    return nativePath(path).wstring();
}

} // namespace

bool BackupFile::open(const std::string &target, bool replace)
{
    discard();
    if (target.empty())
        return false;
    const DWORD attributes = GetFileAttributesW(native(target).c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (!replace || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0))
        return false;
    // Shared with nobody: a draft that another backup is writing cannot be opened or deleted.
    HANDLE handle = CreateFileW(native(draftOf(target)).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    m_target = target;
    m_replace = replace;
    m_handle = reinterpret_cast<std::intptr_t>(handle);
    return true;
}

bool BackupFile::write(const void *data, std::size_t bytes)
{
    const char *from = static_cast<const char *>(data);
    while (bytes > 0) {
        DWORD count = 0;
        if (!WriteFile(handleOf(m_handle), from, static_cast<DWORD>(bytes), &count, nullptr) || count == 0)
            return false;
        from += count;
        bytes -= count;
    }
    return true;
}

bool BackupFile::commit()
{
    if (m_handle == NoHandle)
        return false;
    const bool written = FlushFileBuffers(handleOf(m_handle)) != 0;
    CloseHandle(handleOf(m_handle));
    m_handle = NoHandle;
    const DWORD flags = MOVEFILE_WRITE_THROUGH | (m_replace ? MOVEFILE_REPLACE_EXISTING : 0);
    if (written && MoveFileExW(native(draftOf(m_target)).c_str(), native(m_target).c_str(), flags))
        return true;
    DeleteFileW(native(draftOf(m_target)).c_str());
    return false;
}

void BackupFile::discard()
{
    if (m_handle == NoHandle)
        return;
    CloseHandle(handleOf(m_handle));
    m_handle = NoHandle;
    DeleteFileW(native(draftOf(m_target)).c_str());
}
