#include "platform/BlockDevices_linux.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A folder laid out as /sys with one disk and its first part.
class BlockDevicesTest : public testing::Test {
protected:
    void disk(const QString &bus, const QByteArray &removable)
    {
        const QString place = QStringLiteral("devices/%1/block/sdb").arg(bus);
        file(place + "/removable", removable + '\n');
        file(place + "/sdb1/partition", "1\n");
        link("8:16", place);
        link("8:17", place + "/sdb1");
    }
    void file(const QString &name, const QByteArray &text)
    {
        const QString path = m_sys.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text);
    }
    void link(const QString &numbers, const QString &place)
    {
        ASSERT_TRUE(QDir().mkpath(m_sys.filePath("dev/block")));
        ASSERT_TRUE(QFile::link(m_sys.filePath(place), m_sys.filePath("dev/block/" + numbers)));
    }
    [[nodiscard]] BlockDevices::Facts facts(const QString &device) const
    {
        return BlockDevices::factsOf(device, m_sys.path());
    }

    QTemporaryDir m_sys;
};

} // namespace

TEST_F(BlockDevicesTest, DiskInsideTheMachine)
{
    disk("pci0000:00/0000:00:1f.2/ata1/host0", "0");
    const BlockDevices::Facts disk = facts("8:16");
    EXPECT_TRUE(disk.isKnown);
    EXPECT_FALSE(disk.isRemovable);
    EXPECT_FALSE(disk.isExternal);
}

TEST_F(BlockDevicesTest, PartOfADiskHasTheFactsOfTheDisk)
{
    disk("pci0000:00/usb2/2-1/host6", "1");
    const BlockDevices::Facts part = facts("8:17");
    EXPECT_TRUE(part.isKnown);
    EXPECT_TRUE(part.isRemovable);
    EXPECT_TRUE(part.isExternal);
}

TEST_F(BlockDevicesTest, FixedDiskOnUsbOrFireWireIsExternal)
{
    disk("pci0000:00/usb2/2-1/host6", "0");
    EXPECT_FALSE(facts("8:16").isRemovable);
    EXPECT_TRUE(facts("8:16").isExternal);
}

TEST_F(BlockDevicesTest, FireWireIsExternal)
{
    disk("pci0000:00/fw0/fw1/host6", "0");
    EXPECT_TRUE(facts("8:16").isExternal);
}

TEST_F(BlockDevicesTest, UnknownDeviceHasNoFacts)
{
    EXPECT_FALSE(facts("8:16").isKnown);
    EXPECT_FALSE(facts("").isKnown);
    disk("pci0000:00/ata1", "0");
    EXPECT_FALSE(facts("0:45").isKnown);
    EXPECT_FALSE(facts("").isKnown);
}

TEST_F(BlockDevicesTest, DeviceWithoutTheFlagHasNoFacts)
{
    ASSERT_TRUE(QDir(m_sys.path()).mkpath("devices/virtual/block/odd"));
    link("7:0", "devices/virtual/block/odd");
    EXPECT_FALSE(facts("7:0").isKnown);
}
