#include "RegistrySandbox.h"
#include "support/FileSizeLimit_linux.h"

#include "registry/DRegTaskManager.h"
#include "support/FileSizeLimit_linux.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

constexpr char kFile[] = "OP_RegList.dat";

TEST(TaskFileTest, AFullDiskLeavesTheTasksThatWereInTheFile)
{
    const RegistrySandbox sandbox;
    DRegTaskManager before;
    before.Init();
    before.AddSetString(1, "old", "n", "v");
    ASSERT_EQ(before.Save(), 0);
    const std::string text = sandbox.content(kFile);

    DRegTaskManager manager;
    manager.Init();
    for (int index = 0; index < 50; ++index)
        manager.AddSetString(1, "new", "n", std::string(200, 'v'));
    {
        const FileSizeLimit limit(2000);
        EXPECT_EQ(manager.Save(), RegResults::Failure);
    }
    EXPECT_EQ(sandbox.content(kFile), text);
    EXPECT_EQ(sandbox.names(), std::vector<std::string>{kFile});
    EXPECT_TRUE(sandbox.logged("cannot write"));
    EXPECT_EQ(manager.Save(), 0);
}

TEST(TaskFileTest, NobodyElseMayWriteIntoAFileThatIsMadeHere)
{
    const RegistrySandbox sandbox;
    DRegTaskManager manager;
    ASSERT_EQ(manager.Init(), 1);
    struct stat facts {};
    ASSERT_EQ(::stat(manager.FilePath().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0077u, 0u);
    manager.AddSetString(1, "k", "n", "v");
    ASSERT_EQ(manager.Save(), 0);
    ASSERT_EQ(::stat(manager.FilePath().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0077u, 0u);
}

TEST(TaskFileTest, ALinkInTheFilesPlaceIsNotFollowed)
{
    const RegistrySandbox sandbox;
    sandbox.write("precious", "precious");
    std::filesystem::create_symlink(sandbox.folder() / "precious", sandbox.folder() / kFile);
    DRegTaskManager manager;
    manager.Init();
    manager.AddSetString(1, "k", "n", "v");
    EXPECT_EQ(manager.Save(), RegResults::Failure);
    EXPECT_EQ(sandbox.content("precious"), "precious");
}

TEST(TaskFileTest, APipeInTheFilesPlaceIsAFailureWithoutAStall)
{
    const RegistrySandbox sandbox;
    ASSERT_EQ(::mkfifo(sandbox.path(kFile).c_str(), S_IRUSR | S_IWUSR), 0);
    DRegTaskManager manager;
    manager.Init();
    manager.AddSetString(1, "k", "n", "v");
    EXPECT_EQ(manager.Save(), RegResults::Failure);
    EXPECT_EQ(manager.Load(sandbox.path(kFile)), RegResults::Failure);
}

} // namespace
