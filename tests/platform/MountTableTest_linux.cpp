#include "platform/MountTable_linux.h"

#include <gtest/gtest.h>

namespace {

constexpr char kTable[] = "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                          "30 22 8:17 / /media/My\\040Films rw - vfat /dev/sdb1 rw\n"
                          "31 22 0:45 / /net rw shared:2 master:3 - nfs4 server:/films rw\n"
                          "32 22 11:0 / /mnt/disc ro - udf /dev/sr0 ro\n"
                          "33 22 0:46 / /net rw - tmpfs tmpfs rw\n"
                          "34 22 0:50 / /broken\n"
                          "\n";

QString mountPoint(const MountTable &table, const QString &path)
{
    const auto entry = table.entryOf(path);
    return entry ? entry->mountPoint : QString();
}

} // namespace

TEST(MountTableTest, PathIsOnTheDeepestMountAboveIt)
{
    const MountTable table{QByteArray(kTable)};
    EXPECT_EQ(mountPoint(table, "/"), "/");
    EXPECT_EQ(mountPoint(table, "/srv/films/a.mkv"), "/");
    EXPECT_EQ(mountPoint(table, "/mnt/disc"), "/mnt/disc");
    EXPECT_EQ(mountPoint(table, "/mnt/disc/BDMV/index.bdmv"), "/mnt/disc");
}

TEST(MountTableTest, NameThatOnlyBeginsLikeAMountIsNotOnIt)
{
    const MountTable table{QByteArray(kTable)};
    EXPECT_EQ(mountPoint(table, "/mnt/discs"), "/");
    EXPECT_EQ(mountPoint(table, "/network"), "/");
}

TEST(MountTableTest, BlanksInNamesAreUnescaped)
{
    const MountTable table{QByteArray(kTable)};
    const auto entry = table.entryOf("/media/My Films/a.mkv");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->mountPoint, "/media/My Films");
    EXPECT_EQ(entry->device, "8:17");
    EXPECT_EQ(entry->fileSystem, "vfat");
    EXPECT_EQ(entry->source, "/dev/sdb1");
}

TEST(MountTableTest, LaterMountOnTheSameFolderHidesTheEarlier)
{
    const MountTable table{QByteArray(kTable)};
    EXPECT_EQ(table.entryOf("/net/a")->fileSystem, "tmpfs");
}

TEST(MountTableTest, DeviceIsFoundWhereItIsMounted)
{
    const MountTable table{QByteArray(kTable)};
    EXPECT_EQ(table.entryOfSource("/dev/sr0")->mountPoint, "/mnt/disc");
    EXPECT_FALSE(table.entryOfSource("/dev/sr1"));
}

TEST(MountTableTest, RubbishIsLeftOut)
{
    const MountTable table{QByteArray("a b c\n - \n\\0 - -\n1 2 3 4 5 6 -\n")};
    EXPECT_FALSE(table.entryOf("/"));
    EXPECT_FALSE(MountTable(QByteArray()).entryOf("/"));
}

TEST(MountTableTest, ThisMachineHasARoot)
{
    EXPECT_TRUE(MountTable::current().entryOf("/"));
}
