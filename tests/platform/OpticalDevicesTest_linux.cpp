#include "platform/OpticalDevices_linux.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(OpticalDevicesTest, DevicesComeInTheOrderOfTheirNumbers)
{
    QTemporaryDir folder;
    for (const char *name : {"sr10", "sda", "sr2", "sr0", "loop0", "srx", "sr"})
        ASSERT_TRUE(QDir(folder.path()).mkdir(name));
    EXPECT_EQ(opticalDevices(folder.path()), (QStringList{"sr0", "sr2", "sr10"}));
}

TEST(OpticalDevicesTest, AMachineWithoutTheFolderHasNone)
{
    EXPECT_TRUE(opticalDevices("/no/such/folder").isEmpty());
}

} // namespace
