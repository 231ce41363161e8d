#include "DriveFacts.h"

#include "QuietErrors_win.h"

#include <QFileInfo>

#include <windows.h>
#include <winioctl.h>

#include <array>

namespace {

// The descriptor of a storage device with the strings behind it.
constexpr DWORD kDescriptorBytes = 551;

class DeviceHandle final {
public:
    explicit DeviceHandle(HANDLE handle)
        : m_handle(handle)
    {
    }
    ~DeviceHandle()
    {
        if (isOpen())
            CloseHandle(m_handle);
    }
    DeviceHandle(const DeviceHandle &) = delete;
    DeviceHandle &operator=(const DeviceHandle &) = delete;
    [[nodiscard]] bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] HANDLE get() const { return m_handle; }

private:
    HANDLE m_handle;
};

std::array<char, 4> rootOf(QChar letter)
{
    return {letter.toLatin1(), ':', '/', '\0'};
}

using FreeSpaceEx = BOOL(WINAPI *)(LPCSTR, PULARGE_INTEGER, PULARGE_INTEGER, PULARGE_INTEGER);

// Looked up once: the oldest systems are without it.
FreeSpaceEx freeSpaceEx()
{
    static const auto found = reinterpret_cast<FreeSpaceEx>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleA("kernel32.dll"), "GetDiskFreeSpaceExA")));
    return found;
}

QChar letterOf(const QString &path)
{
    return DriveLetters::letterOf(path.left(3));
}

} // namespace

namespace DriveFacts {

QString rootFolder(const Drive &drive)
{
    const QuietErrors quiet;
    return QFileInfo(drive.target).isDir() ? drive.target : QString();
}

quint32 volumeSerial(const Drive &drive)
{
    const QuietErrors quiet;
    DWORD serial = 0;
    const BOOL ok =
        GetVolumeInformationA(rootOf(drive.letter).data(), nullptr, 0, &serial, nullptr, nullptr, nullptr, 0);
    return ok ? serial : 0;
}

QString fileSystemName(const Drive &drive)
{
    const QuietErrors quiet;
    std::array<char, MAX_PATH + 1> name{};
    const BOOL ok = GetVolumeInformationA(rootOf(drive.letter).data(), nullptr, 0, nullptr, nullptr, nullptr,
                                          name.data(), DWORD(name.size()));
    return ok ? QString::fromLocal8Bit(name.data()) : QString();
}

std::optional<Space> space(const Drive &drive)
{
    const QuietErrors quiet;
    const auto root = rootOf(drive.letter);
    ULARGE_INTEGER available = {};
    ULARGE_INTEGER total = {};
    if (freeSpaceEx() != nullptr && freeSpaceEx()(root.data(), &available, &total, nullptr))
        return Space{available.QuadPart, total.QuadPart};
    DWORD sectors = 0;
    DWORD bytes = 0;
    DWORD freeClusters = 0;
    DWORD clusters = 0;
    if (!GetDiskFreeSpaceA(root.data(), &sectors, &bytes, &freeClusters, &clusters))
        return std::nullopt;
    const quint64 cluster = quint64(sectors) * bytes;
    return Space{freeClusters * cluster, clusters * cluster};
}

int opticalDeviceNumber(const Drive &drive)
{
    if (drive.isVirtual)
        return -1;
    const std::array<char, 3> name{drive.letter.toLatin1(), ':', '\0'};
    std::array<char, MAX_PATH + 1> device{};
    if (QueryDosDeviceA(name.data(), device.data(), DWORD(device.size())) == 0)
        return -1;
    const QString prefix = QStringLiteral("/device/cdrom");
    const QString text = QString::fromLocal8Bit(device.data()).toLower().replace('\\', '/');
    bool ok = false;
    const int number = text.mid(prefix.size()).toInt(&ok);
    return ok && text.startsWith(prefix) ? number : -1;
}

Drive::Kind kindOfPath(const QString &path)
{
    const QChar letter = letterOf(path);
    if (letter.isNull())
        return Drive::NoRoot;
    const auto drive = DriveLetters::instance()->drive(letter);
    if (drive && drive->isVirtual)
        return drive->kind;
    return static_cast<Drive::Kind>(GetDriveTypeA(rootOf(letter).data()));
}

bool isInternalFixed(const QString &path)
{
    if (kindOfPath(path) != Drive::Fixed)
        return false;
    const QuietErrors quiet;
    const std::array<char, 7> name{'\\', '\\', '?', '\\', letterOf(path).toLatin1(), ':', '\0'};
    const DeviceHandle device(CreateFileA(name.data(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                          nullptr, OPEN_EXISTING, 0, nullptr));
    if (!device.isOpen())
        return false;
    STORAGE_PROPERTY_QUERY query = {};
    query.PropertyId = StorageDeviceProperty;
    query.QueryType = PropertyStandardQuery;
    alignas(STORAGE_DEVICE_DESCRIPTOR) std::array<unsigned char, kDescriptorBytes> buffer{};
    DWORD returned = 0;
    if (!DeviceIoControl(device.get(), IOCTL_STORAGE_QUERY_PROPERTY, &query, sizeof(query), buffer.data(),
                         DWORD(buffer.size()), &returned, nullptr)
        || returned < sizeof(STORAGE_DEVICE_DESCRIPTOR))
        return false;
    const auto *descriptor = reinterpret_cast<const STORAGE_DEVICE_DESCRIPTOR *>(buffer.data());
    return descriptor->BusType != BusTypeUsb && descriptor->BusType != BusType1394;
}

} // namespace DriveFacts
