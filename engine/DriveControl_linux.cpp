#include "DriveControl.h"

#include "LocalFile.h"

#include <fcntl.h>
#include <linux/cdrom.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <climits>

namespace {

// Opened without waiting for a disc.
class DriveHandle final {
public:
    explicit DriveHandle(const std::string &path)
        : m_file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
    {
    }
    ~DriveHandle()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    DriveHandle(const DriveHandle &) = delete;
    DriveHandle &operator=(const DriveHandle &) = delete;

    [[nodiscard]] int call(unsigned long request, int argument) const
    {
        return m_file < 0 ? -1 : ::ioctl(m_file, request, argument);
    }

private:
    int m_file;
};

} // namespace

namespace DriveControl {

bool eject(const std::string &path)
{
    if (LocalFile::kindOf(path) != LocalFile::Kind::Device)
        return false;
    const DriveHandle drive(path);
    (void)drive.call(CDROM_LOCKDOOR, 0);
    return drive.call(CDROMEJECT, 0) == 0;
}

State state(const std::string &path)
{
    switch (LocalFile::kindOf(path)) {
    case LocalFile::Kind::Regular:
    case LocalFile::Kind::Folder:
        return HasDisc;
    case LocalFile::Kind::Device:
        return DriveHandle(path).call(CDROM_DRIVE_STATUS, CDSL_CURRENT) == CDS_DISC_OK ? HasDisc : NoDisc;
    default:
        return NoDrive;
    }
}

// The drive's own answer to the question whether its medium is ready.
Medium deviceMedium(const std::string &path)
{
    switch (DriveHandle(path).call(CDROM_DRIVE_STATUS, CDSL_CURRENT)) {
    case CDS_DISC_OK:
        return Medium::Present;
    case CDS_NO_DISC:
    case CDS_TRAY_OPEN:
        return Medium::None;
    default:
        return Medium::Unknown;
    }
}

// By the table of contents, which a blank disc lacks.
bool isDeviceReadable(const std::string &path)
{
    switch (DriveHandle(path).call(CDROM_DISC_STATUS, 0)) {
    case CDS_AUDIO:
    case CDS_DATA_1:
    case CDS_DATA_2:
    case CDS_XA_2_1:
    case CDS_XA_2_2:
    case CDS_MIXED:
        return true;
    default:
        return false;
    }
}

} // namespace DriveControl
