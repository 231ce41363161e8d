#include "disc/DiscDrives.h"

#include "platform/DriveLetters.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr int kSectorSize = 2048;
constexpr int kDescriptorSector = 16;

// Letters that the machine's own drives hardly ever have; C is in front of all of them.
class DiscDrivesTest : public testing::Test {
protected:
    void TearDown() override
    {
        for (const char letter : {'C', 'V', 'W', 'X'})
            DriveLetters::instance()->unbind(QLatin1Char(letter));
    }

    void bind(char letter, const QString &path)
    {
        ASSERT_TRUE(DriveLetters::instance()->bind(QLatin1Char(letter), path));
    }
    void folder(const QString &name) { ASSERT_TRUE(QDir(m_folder.path()).mkpath(name)); }

    // An image that has only a volume descriptor, with a name in it.
    QString image(const QString &file, const QByteArray &label)
    {
        QByteArray bytes((kDescriptorSector + 1) * kSectorSize, '\0');
        const int at = kDescriptorSector * kSectorSize;
        bytes.replace(at, 6,
                      "\x01"
                      "CD001");
        bytes.replace(at + 40, 32, label.leftJustified(32, ' '));
        QFile out(m_folder.filePath(file));
        EXPECT_TRUE(out.open(QIODevice::WriteOnly));
        EXPECT_EQ(out.write(bytes), bytes.size());
        return out.fileName();
    }
    static QByteArray label(char letter, int size = 64)
    {
        QByteArray buffer(size, '#');
        const int result = DriveVolumeLabel(letter, buffer.data(), size);
        const QByteArray text(buffer.constData());
        EXPECT_EQ(result, text.isEmpty() ? 0 : 1);
        return text;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(DiscDrivesTest, OpticalDrivesAreCountedFromTheFirstLetter)
{
    int before = 0;
    while (OpticalDriveByIndex(before) != 0)
        ++before;
    bind('C', m_folder.path());
    bind('X', m_folder.path());
    EXPECT_EQ(OpticalDriveByIndex(0), 'C');
    EXPECT_EQ(OpticalDriveByIndex(before + 1), 'X');
    EXPECT_EQ(OpticalDriveByIndex(before + 2), 0);
    EXPECT_EQ(OpticalDriveByIndex(-1), 0);
}

TEST_F(DiscDrivesTest, LettersBeforeCAreNoOpticalDrives)
{
    bind('A', m_folder.path());
    bind('C', m_folder.path());
    EXPECT_EQ(OpticalDriveByIndex(0), 'C');
    DriveLetters::instance()->unbind(QLatin1Char('A'));
}

TEST_F(DiscDrivesTest, BoundDrivesHaveNoDeviceNumber)
{
    std::array<char, 2> before{OpticalDriveByDeviceNumber(0), OpticalDriveByDeviceNumber(99)};
    bind('C', m_folder.path());
    EXPECT_EQ(OpticalDriveByDeviceNumber(0), before[0]);
    EXPECT_EQ(before[1], 0);
    EXPECT_EQ(OpticalDriveByDeviceNumber(-1), 0);
}

TEST_F(DiscDrivesTest, SerialTellsMediaApartAndIsZeroWithoutADrive)
{
    bind('V', image("one.iso", "ONE"));
    bind('W', image("two.iso", "TWO"));
    const quint32 serial = DriveVolumeSerial('V');
    EXPECT_NE(serial, 0u);
    EXPECT_EQ(DriveVolumeSerial('v'), serial);
    EXPECT_NE(DriveVolumeSerial('W'), serial);
    EXPECT_EQ(DriveVolumeSerial('X'), 0u);
    EXPECT_EQ(DriveVolumeSerial('\0'), 0u);
}

TEST_F(DiscDrivesTest, SerialOfADescriptorIsTheSumOfItsBytes)
{
    bind('V', image("one.iso", QByteArray()));
    // 01 'C' 'D' '0' / '0' '1' and 32 blanks from byte 40 on.
    const auto byte = [](int sum) { return quint32(sum + 8 * ' ') & 0xff; };
    const quint32 expected = byte(0x01 + '0') << 24 | byte('C' + '1') << 16 | byte('D') << 8 | byte('0');
    EXPECT_EQ(DriveVolumeSerial('V'), expected);
}

TEST_F(DiscDrivesTest, FileThatIsNoImageHasNoSerial)
{
    QFile file(m_folder.filePath("short.iso"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("nothing");
    file.close();
    bind('V', file.fileName());
    EXPECT_EQ(DriveVolumeSerial('V'), 0u);
    EXPECT_EQ(DriveFileSystemName('V'), QString());
}

TEST_F(DiscDrivesTest, LabelIsFitForAFileName)
{
    bind('V', image("a.iso", "FILM: 1/2 <A>?.."));
    EXPECT_EQ(label('V'), "FILM_ 1_2 _A__");
    folder("NORTHERN LINE");
    bind('W', m_folder.filePath("NORTHERN LINE"));
    EXPECT_EQ(label('W'), "NORTHERN LINE");
}

TEST_F(DiscDrivesTest, LabelWithoutADriveIsEmptyAndZero)
{
    EXPECT_EQ(label('X'), "");
    EXPECT_EQ(DriveVolumeLabel('X', nullptr, 10), 0);
    char untouched = '#';
    EXPECT_EQ(DriveVolumeLabel('X', &untouched, 0), 0);
    EXPECT_EQ(untouched, '#');
}

TEST_F(DiscDrivesTest, LabelIsCutBetweenTwoCharacters)
{
    folder(QString::fromUtf8("Grün"));
    bind('V', m_folder.filePath(QString::fromUtf8("Grün")));
    EXPECT_EQ(label('V', 6), QByteArray("Grün"));
    EXPECT_EQ(label('V', 5), QByteArray("Grü"));
    EXPECT_EQ(label('V', 4), QByteArray("Gr"));
    EXPECT_EQ(label('V', 1), QByteArray());
}

TEST_F(DiscDrivesTest, FreeSpaceOfAFolderIsThatOfItsVolume)
{
    bind('V', m_folder.path());
    quint64 free = 0;
    quint64 total = 0;
    EXPECT_EQ(DriveFreeSpace('V', &free, &total), 1);
    EXPECT_GT(total, 0u);
    EXPECT_LE(free, total);
    EXPECT_EQ(DriveFreeSpace('V', nullptr, nullptr), 1);
}

TEST_F(DiscDrivesTest, AnImageIsFull)
{
    bind('V', image("a.iso", "A"));
    quint64 free = 1;
    quint64 total = 0;
    EXPECT_EQ(DriveFreeSpace('V', &free, &total), 1);
    EXPECT_EQ(free, 0u);
    EXPECT_EQ(total, quint64(kSectorSize * (kDescriptorSector + 1)));
}

TEST_F(DiscDrivesTest, FreeSpaceWithoutADriveIsZeroInBothOutputs)
{
    quint64 free = 7;
    quint64 total = 7;
    EXPECT_EQ(DriveFreeSpace('X', &free, &total), 0);
    EXPECT_EQ(free, 0u);
    EXPECT_EQ(total, 0u);
    EXPECT_EQ(DriveFreeSpace('X', nullptr, nullptr), 0);
}

TEST_F(DiscDrivesTest, FileSystemOfAnImageAndOfAFolder)
{
    bind('V', image("a.iso", "A"));
    EXPECT_EQ(DriveFileSystemName('V'), "iso9660");
    bind('W', m_folder.path());
    EXPECT_FALSE(DriveFileSystemName('W').isEmpty());
    EXPECT_EQ(DriveFileSystemName('X'), "");
}

TEST_F(DiscDrivesTest, HdDvdHasEitherOfTwoFolders)
{
    bind('V', m_folder.path());
    EXPECT_FALSE(HasHdDvdStructure('V'));
    folder("ADV_OBJ");
    EXPECT_TRUE(HasHdDvdStructure('V'));
    ASSERT_TRUE(QDir(m_folder.path()).rmdir("ADV_OBJ"));
    folder("HVDVD_TS");
    EXPECT_TRUE(HasHdDvdStructure('V'));
    EXPECT_FALSE(HasHdDvdStructure('X'));
}

TEST_F(DiscDrivesTest, BlurayStructureIsAFolderAndNoFile)
{
    bind('V', m_folder.path());
    QFile file(m_folder.filePath("BDMV"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_FALSE(HasBdmvStructure('V'));
    ASSERT_TRUE(file.remove());
    folder("BDMV");
    EXPECT_TRUE(HasBdmvStructure('v'));
    EXPECT_FALSE(HasBdmvStructure('X'));
    EXPECT_FALSE(HasBdmvStructure('\0'));
}

TEST_F(DiscDrivesTest, AnOpticalDriveIsNeitherRemovableNorFixed)
{
    bind('V', m_folder.path());
    for (const char *path : {"V", "V:", "V:/", "V:\\BDMV\\index.bdmv"}) {
        EXPECT_FALSE(IsRemovableDrive(path)) << path;
        EXPECT_FALSE(IsFixedDrive(path)) << path;
        EXPECT_FALSE(IsInternalFixedDrive(path)) << path;
    }
}

TEST_F(DiscDrivesTest, NoPathIsOnNoDrive)
{
    for (const char *path : {"", "X:/", "X"}) {
        EXPECT_FALSE(IsRemovableDrive(path)) << path;
        EXPECT_FALSE(IsFixedDrive(path)) << path;
        EXPECT_FALSE(IsInternalFixedDrive(path)) << path;
    }
}

TEST_F(DiscDrivesTest, AFolderIsOnOneKindOfDriveAtMost)
{
    const QString path = m_folder.path();
    EXPECT_FALSE(IsRemovableDrive(path) && IsFixedDrive(path));
    EXPECT_TRUE(IsFixedDrive(path) || !IsInternalFixedDrive(path));
    // What is still to be written is on the drive of its nearest folder.
    EXPECT_EQ(IsFixedDrive(path + "/later/film.mkv"), IsFixedDrive(path));
}
