#include "LocalFile.h"

#include "NativePath.h"

#include <windows.h>
#include <winioctl.h>

namespace {

// The root of an optical drive stands for its medium.
bool isOpticalRoot(const std::wstring &path)
{
    if (path.size() < 2 || path.size() > 3 || path[1] != L':')
        return false;
    const wchar_t root[] = {path[0], L':', L'\\', 0};
    return GetDriveTypeW(root) == DRIVE_CDROM;
}

std::wstring openName(const std::wstring &path)
{
    return isOpticalRoot(path) ? std::wstring(L"\\\\.\\") + path[0] + L':' : path;
}

} // namespace

LocalFile::Kind LocalFile::kindOf(const std::string &path)
{
    if (path.empty())
        return Kind::None;
    const std::wstring native = nativePath(path).wstring();
    if (isOpticalRoot(native))
        return Kind::Device;
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return Kind::None;
    if (attributes & FILE_ATTRIBUTE_DIRECTORY)
        return Kind::Folder;
    return attributes & FILE_ATTRIBUTE_DEVICE ? Kind::Other : Kind::Regular;
}

bool LocalFile::open(const std::string &path, bool allowDevices)
{
    close();
    const Kind kind = kindOf(path);
    if (kind != Kind::Regular && !(allowDevices && kind == Kind::Device))
        return false;
    const std::wstring name = openName(nativePath(path).wstring());
    HANDLE handle =
        CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    std::int64_t size = 0;
    bool usable = false;
    if (kind == Kind::Device) {
        GET_LENGTH_INFORMATION length = {};
        DWORD returned = 0;
        usable = DeviceIoControl(handle, IOCTL_DISK_GET_LENGTH_INFO, nullptr, 0, &length, sizeof(length),
                                 &returned, nullptr);
        size = length.Length.QuadPart;
    } else {
        LARGE_INTEGER length = {};
        usable = GetFileType(handle) == FILE_TYPE_DISK && GetFileSizeEx(handle, &length);
        size = length.QuadPart;
    }
    if (!usable) {
        CloseHandle(handle);
        return false;
    }
    m_handle = reinterpret_cast<std::intptr_t>(handle);
    m_size = size;
    return true;
}

void LocalFile::close()
{
    if (m_handle != NoHandle)
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    m_handle = NoHandle;
    m_size = 0;
}

std::int64_t LocalFile::readAt(std::int64_t offset, void *buffer, std::size_t bytes)
{
    if (m_handle == NoHandle || offset < 0)
        return -1;
    std::size_t done = 0;
    while (done < bytes) {
        const std::uint64_t at = static_cast<std::uint64_t>(offset) + done;
        OVERLAPPED position = {};
        position.Offset = static_cast<DWORD>(at);
        position.OffsetHigh = static_cast<DWORD>(at >> 32);
        DWORD count = 0;
        if (!ReadFile(reinterpret_cast<HANDLE>(m_handle), static_cast<char *>(buffer) + done,
                      static_cast<DWORD>(bytes - done), &count, &position)) {
            if (GetLastError() == ERROR_HANDLE_EOF)
                break;
            return done > 0 ? static_cast<std::int64_t>(done) : -1;
        }
        if (count == 0)
            break;
        done += count;
    }
    return static_cast<std::int64_t>(done);
}
