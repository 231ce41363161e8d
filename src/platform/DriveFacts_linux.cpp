#include "DriveFacts.h"

#include "BlockDevices_linux.h"
#include "MountTable_linux.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/statvfs.h>

#include <array>

namespace {

constexpr qint64 kSectorSize = 2048;
constexpr qint64 kDescriptorSector = 16;
constexpr char kDescriptorMark[] = "\x01"
                                   "CD001";
constexpr char kIsoName[] = "iso9660";

struct FileSystemKind {
    const char *name;
    Drive::Kind kind;
};

// Those without a block device of their own.
constexpr FileSystemKind kFileSystems[] = {
    {"nfs", Drive::Remote},        {"nfs4", Drive::Remote},       {"cifs", Drive::Remote},
    {"smb3", Drive::Remote},       {"smbfs", Drive::Remote},      {"afs", Drive::Remote},
    {"9p", Drive::Remote},         {"ceph", Drive::Remote},       {"fuse.sshfs", Drive::Remote},
    {"fuse.davfs", Drive::Remote}, {"davfs", Drive::Remote},      {"fuse.rclone", Drive::Remote},
    {"tmpfs", Drive::RamDisk},     {"ramfs", Drive::RamDisk},     {"iso9660", Drive::Optical},
    {"udf", Drive::Optical},       {"overlay", Drive::Fixed},     {"btrfs", Drive::Fixed},
    {"zfs", Drive::Fixed},         {"bcachefs", Drive::Fixed},    {"vboxsf", Drive::Remote},
    {"virtiofs", Drive::Remote},   {"fuse.vmhgfs", Drive::Remote}};

std::optional<MountTable::Entry> mountOf(const QString &path)
{
    // The nearest folder that exists: what is still to be written lies on the same volume.
    QString at = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    while (!QFileInfo::exists(at) && at.size() > 1)
        at = QFileInfo(at).path();
    const QString real = QFileInfo(at).canonicalFilePath();
    return MountTable::current().entryOf(real.isEmpty() ? at : real);
}

// The block device of a mount: file systems of several volumes have numbers of their own, but name the disk.
BlockDevices::Facts blockFacts(const MountTable::Entry &mount)
{
    const BlockDevices::Facts facts = BlockDevices::factsOf(mount.device);
    if (facts.isKnown || !mount.source.startsWith(QLatin1String("/dev/")))
        return facts;
    const QString name = QFileInfo(QFileInfo(mount.source).canonicalFilePath()).fileName();
    QFile numbers(QStringLiteral("/sys/class/block/%1/dev").arg(name));
    if (name.isEmpty() || !numbers.open(QIODevice::ReadOnly))
        return {};
    return BlockDevices::factsOf(QString::fromLatin1(numbers.readAll().trimmed()));
}

Drive::Kind kindOfMount(const MountTable::Entry &mount)
{
    const auto named =
        std::find_if(std::begin(kFileSystems), std::end(kFileSystems), [&mount](const FileSystemKind &row) {
            return mount.fileSystem == QLatin1String(row.name);
        });
    if (named != std::end(kFileSystems) && named->kind != Drive::Fixed)
        return named->kind;
    const BlockDevices::Facts facts = blockFacts(mount);
    if (facts.isKnown)
        return facts.isRemovable ? Drive::Removable : Drive::Fixed;
    return named != std::end(kFileSystems) ? named->kind : Drive::Unknown;
}

// The primary volume descriptor of an image or a device; empty without one.
QByteArray descriptorOf(const QString &path)
{
    QFile image(path);
    // Without a buffer of its own, which would read far beyond the sector.
    if (!image.open(QIODevice::ReadOnly | QIODevice::Unbuffered)
        || !image.seek(kDescriptorSector * kSectorSize))
        return {};
    const QByteArray sector = image.read(kSectorSize);
    return sector.size() == kSectorSize && sector.startsWith(kDescriptorMark) ? sector : QByteArray();
}

// Each byte of the number is the sum of every fourth byte of the descriptor, the number that disc file
// systems are given elsewhere too.
quint32 serialOf(const QByteArray &descriptor)
{
    std::array<quint8, 4> sums{};
    for (int at = 0; at < descriptor.size(); ++at)
        sums[std::size_t(at) % sums.size()] += quint8(descriptor.at(at));
    return quint32(sums[0]) << 24 | quint32(sums[1]) << 16 | quint32(sums[2]) << 8 | sums[3];
}

std::optional<struct statvfs> statusOf(const QString &folder)
{
    struct statvfs status = {};
    if (folder.isEmpty() || statvfs(QFile::encodeName(folder).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

// A path that begins with a letter lies on what stands behind the letter.
QString withoutLetter(const QString &path)
{
    const QString resolved = DriveLetters::instance()->resolve(path);
    return resolved.startsWith(QLatin1Char('/')) ? resolved : QString();
}

} // namespace

namespace DriveFacts {

QString rootFolder(const Drive &drive)
{
    if (QFileInfo(drive.target).isDir())
        return drive.target;
    const auto mount = MountTable::current().entryOfSource(drive.target);
    return mount ? mount->mountPoint : QString();
}

quint32 volumeSerial(const Drive &drive)
{
    const QByteArray descriptor = QFileInfo(drive.target).isDir() ? QByteArray() : descriptorOf(drive.target);
    if (!descriptor.isEmpty())
        return serialOf(descriptor);
    const auto status = statusOf(rootFolder(drive));
    return status ? quint32(status->f_fsid ^ status->f_fsid >> 32) : 0;
}

QString fileSystemName(const Drive &drive)
{
    const QString folder = rootFolder(drive);
    const auto mount = folder.isEmpty() ? std::nullopt : mountOf(folder);
    if (mount)
        return mount->fileSystem;
    return descriptorOf(drive.target).isEmpty() ? QString() : QString::fromLatin1(kIsoName);
}

std::optional<Space> space(const Drive &drive)
{
    const QFileInfo target(drive.target);
    if (drive.isVirtual && target.isFile())
        return Space{0, quint64(target.size())};
    const auto status = statusOf(rootFolder(drive));
    if (!status)
        return std::nullopt;
    return Space{quint64(status->f_bavail) * status->f_frsize, quint64(status->f_blocks) * status->f_frsize};
}

int opticalDeviceNumber(const Drive &drive)
{
    const QString prefix = QStringLiteral("/dev/sr");
    bool ok = false;
    const int number = drive.target.mid(prefix.size()).toInt(&ok);
    return ok && !drive.isVirtual && drive.target.startsWith(prefix) ? number : -1;
}

Drive::Kind kindOfPath(const QString &path)
{
    const QChar letter = DriveLetters::letterOf(path.left(3));
    if (!letter.isNull()) {
        const auto drive = DriveLetters::instance()->drive(letter);
        return drive ? drive->kind : Drive::NoRoot;
    }
    const auto mount = path.isEmpty() ? std::nullopt : mountOf(path);
    return mount ? kindOfMount(*mount) : Drive::NoRoot;
}

bool isInternalFixed(const QString &path)
{
    const QString real = withoutLetter(path);
    if (real.isEmpty() || kindOfPath(path) != Drive::Fixed)
        return false;
    const auto mount = mountOf(real);
    const BlockDevices::Facts facts = mount ? blockFacts(*mount) : BlockDevices::Facts();
    return facts.isKnown && !facts.isExternal;
}

} // namespace DriveFacts
