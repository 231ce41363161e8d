#include "DriveControl.h"

#include "NativePath.h"

#include <windows.h>
#include <winioctl.h>

#include <cctype>

namespace {

// "D:", "D:\" and "\\.\D:" name a drive.
wchar_t driveLetter(const std::string &path)
{
    const std::string name = path.rfind("\\\\.\\", 0) == 0 ? path.substr(4) : path;
    const bool isRoot = name.size() == 2 || (name.size() == 3 && (name[2] == '\\' || name[2] == '/'));
    if (!isRoot || name[1] != ':' || !std::isalpha(static_cast<unsigned char>(name[0])))
        return 0;
    return static_cast<wchar_t>(std::toupper(static_cast<unsigned char>(name[0])));
}

class DriveHandle final {
public:
    // access: to ask for the attributes alone mounts no disc.
    explicit DriveHandle(wchar_t letter, DWORD access = GENERIC_READ)
    {
        const std::wstring device = std::wstring(L"\\\\.\\") + letter + L":";
        m_file = CreateFileW(device.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                             OPEN_EXISTING, 0, nullptr);
    }
    ~DriveHandle()
    {
        if (m_file != INVALID_HANDLE_VALUE)
            CloseHandle(m_file);
    }
    DriveHandle(const DriveHandle &) = delete;
    DriveHandle &operator=(const DriveHandle &) = delete;

    [[nodiscard]] bool call(DWORD code) const
    {
        DWORD answered = 0;
        return m_file != INVALID_HANDLE_VALUE
               && DeviceIoControl(m_file, code, nullptr, 0, nullptr, 0, &answered, nullptr);
    }

private:
    HANDLE m_file{INVALID_HANDLE_VALUE};
};

bool isOptical(wchar_t letter)
{
    const std::wstring root = std::wstring(1, letter) + L":\\";
    return GetDriveTypeW(root.c_str()) == DRIVE_CDROM;
}

} // namespace

namespace DriveControl {

bool eject(const std::string &path)
{
    const wchar_t letter = driveLetter(path);
    if (!letter || !isOptical(letter))
        return false;
    const DriveHandle drive(letter);
    (void)drive.call(FSCTL_LOCK_VOLUME);
    (void)drive.call(FSCTL_DISMOUNT_VOLUME);
    return drive.call(IOCTL_STORAGE_EJECT_MEDIA);
}

State state(const std::string &path)
{
    const wchar_t letter = driveLetter(path);
    if (!letter) {
        std::error_code error;
        return std::filesystem::exists(nativePath(path), error) ? HasDisc : NoDrive;
    }
    if (!isOptical(letter))
        return NoDrive;
    return DriveHandle(letter).call(IOCTL_STORAGE_CHECK_VERIFY) ? HasDisc : NoDisc;
}

Medium deviceMedium(const std::string &path)
{
    const wchar_t letter = driveLetter(path);
    if (!letter || !isOptical(letter))
        return Medium::None;
    const DriveHandle drive(letter, FILE_READ_ATTRIBUTES);
    if (drive.call(IOCTL_STORAGE_CHECK_VERIFY2))
        return Medium::Present;
    switch (GetLastError()) {
    case ERROR_NOT_READY:
    case ERROR_NO_MEDIA_IN_DRIVE:
        return Medium::None;
    default:
        return Medium::Unknown;
    }
}

// By the file system, which a blank disc lacks.
bool isDeviceReadable(const std::string &path)
{
    const wchar_t letter = driveLetter(path);
    if (!letter)
        return false;
    const std::wstring root = std::wstring(1, letter) + L":\\";
    // A disc that goes while it is asked for must raise no message of the system.
    DWORD before = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &before);
    const bool isReadable =
        GetVolumeInformationW(root.c_str(), nullptr, 0, nullptr, nullptr, nullptr, nullptr, 0) != 0;
    SetThreadErrorMode(before, nullptr);
    return isReadable;
}

} // namespace DriveControl
