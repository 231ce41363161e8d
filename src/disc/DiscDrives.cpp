#include "DiscDrives.h"

#include "platform/DriveFacts.h"
#include "platform/DriveLetters.h"

#include <QDir>

#include <cstring>

namespace {

// Floppy drives had A and B; no disc is looked for there.
constexpr char kFirstLetter = 'C';

std::optional<Drive> driveOf(char letter)
{
    return DriveLetters::instance()->drive(QLatin1Char(letter));
}

QVector<Drive> opticalDrives()
{
    QVector<Drive> optical;
    const QVector<Drive> all = DriveLetters::instance()->drives();
    for (const Drive &drive : all) {
        if (drive.kind == Drive::Optical && drive.letter >= QLatin1Char(kFirstLetter))
            optical << drive;
    }
    return optical;
}

// Without what a file name can't hold on one of the systems.
QString fitForFileName(const QString &text)
{
    static const QLatin1String forbidden("\\/:*?\"<>|");
    QString clean;
    for (const QChar character : text) {
        if (character.isPrint())
            clean += forbidden.contains(character) ? QChar(u'_') : character;
    }
    clean = clean.trimmed();
    while (clean.endsWith(QLatin1Char('.')))
        clean.chop(1);
    return clean;
}

// The longest part of a text in UTF-8 that ends between two characters and has at most so many bytes.
QByteArray cutUtf8(const QByteArray &text, int bytes)
{
    constexpr unsigned char kContinuationMask = 0xc0;
    constexpr unsigned char kContinuation = 0x80;
    int end = qMin(text.size(), bytes);
    while (end > 0 && end < text.size()
           && (static_cast<unsigned char>(text.at(end)) & kContinuationMask) == kContinuation)
        --end;
    return text.left(end);
}

bool hasFolder(char letter, QLatin1String name)
{
    const auto drive = driveOf(letter);
    const QString root = drive ? DriveFacts::rootFolder(*drive) : QString();
    return !root.isEmpty() && QDir(root + QLatin1Char('/') + name + QLatin1Char('/')).exists();
}

} // namespace

char OpticalDriveByIndex(int n)
{
    const QVector<Drive> drives = opticalDrives();
    return n >= 0 && n < drives.size() ? drives.at(n).letter.toLatin1() : '\0';
}

char OpticalDriveByDeviceNumber(int n)
{
    if (n < 0)
        return '\0';
    const QVector<Drive> drives = opticalDrives();
    for (const Drive &drive : drives) {
        if (DriveFacts::opticalDeviceNumber(drive) == n)
            return drive.letter.toLatin1();
    }
    return '\0';
}

quint32 DriveVolumeSerial(char letter)
{
    const auto drive = driveOf(letter);
    return drive ? DriveFacts::volumeSerial(*drive) : 0;
}

int DriveVolumeLabel(char letter, char *buffer, int size)
{
    if (buffer == nullptr || size <= 0)
        return 0;
    const QString label = fitForFileName(DriveLetters::instance()->volumeLabel(QLatin1Char(letter)));
    const QByteArray text = cutUtf8(label.toUtf8(), size - 1);
    std::memcpy(buffer, text.constData(), std::size_t(text.size()));
    buffer[text.size()] = '\0';
    return text.isEmpty() ? 0 : 1;
}

int DriveFreeSpace(char letter, quint64 *freeOut, quint64 *totalOut)
{
    const auto drive = driveOf(letter);
    const auto space = drive ? DriveFacts::space(*drive) : std::nullopt;
    const DriveFacts::Space known = space.value_or(DriveFacts::Space());
    if (freeOut != nullptr)
        *freeOut = known.free;
    if (totalOut != nullptr)
        *totalOut = known.total;
    return space ? 1 : 0;
}

QString DriveFileSystemName(char letter)
{
    const auto drive = driveOf(letter);
    return drive ? DriveFacts::fileSystemName(*drive) : QString();
}

bool IsRemovableDrive(const QString &path)
{
    return DriveFacts::kindOfPath(path) == Drive::Removable;
}

bool IsFixedDrive(const QString &path)
{
    return DriveFacts::kindOfPath(path) == Drive::Fixed;
}

bool IsInternalFixedDrive(const QString &path)
{
    return DriveFacts::isInternalFixed(path);
}

bool HasHdDvdStructure(char letter)
{
    return hasFolder(letter, QLatin1String("HVDVD_TS")) || hasFolder(letter, QLatin1String("ADV_OBJ"));
}

bool HasBdmvStructure(char letter)
{
    return hasFolder(letter, QLatin1String("BDMV"));
}
