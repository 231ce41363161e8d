#include "RegistrySandbox.h"
#include "support/FileSizeLimit_linux.h"

#include "registry/HiveFile_linux.h"
#include "registry/HiveOperator_linux.h"
#include "support/FileSizeLimit_linux.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include <sys/stat.h>

namespace {

class HiveFileTest : public testing::Test {
protected:
    std::string file() const { return m_sandbox.path("registry.hive"); }

    // A hive with some keys and values of both kinds, and its text.
    std::string filled() const
    {
        HiveOperator registry(file());
        registry.SetStringValue(Roots::Machine, "SOFTWARE\\One", "", "default");
        registry.SetStringValue(Roots::Machine, "SOFTWARE\\One", "Name", "100% of\ttwo\nlines\\ \xC3\xA4");
        registry.SetDwordValue(Roots::User, "SOFTWARE\\Two", "Number", 4294967295u);
        return m_sandbox.content("registry.hive");
    }

    RegistrySandbox m_sandbox;
};

TEST_F(HiveFileTest, EveryCharacterOfNamesAndValuesComesBack)
{
    HiveOperator registry(file());
    std::string all;
    for (int code = 0; code < 256; ++code)
        all += static_cast<char>(code);
    EXPECT_EQ(registry.SetStringValue(Roots::User, "Key with %, \t and \xFF", all, all), 0);
    EXPECT_EQ(registry.stringValue(Roots::User, "Key with %, \t and \xFF", all), all);
    HiveFile hive(file());
    EXPECT_TRUE(hive.load());
    EXPECT_FALSE(hive.isDamaged());
}

TEST_F(HiveFileTest, NoFileIsAnEmptyHiveAndItsFolderIsMade)
{
    HiveOperator registry(m_sandbox.path("a/b/registry.hive"));
    EXPECT_FALSE(registry.hasKey(Roots::User, "SOFTWARE"));
    EXPECT_EQ(registry.SetDwordValue(Roots::User, "SOFTWARE", "v", 1), 0);
    EXPECT_EQ(registry.dwordValue(Roots::User, "SOFTWARE", "v"), 1u);
    EXPECT_TRUE(m_sandbox.log().empty());
}

TEST_F(HiveFileTest, RootsAreHivesOfTheirOwnAndSeparatorsMayBeDoubled)
{
    HiveOperator registry(file());
    registry.SetStringValue(Roots::User, "\\a\\\\b\\", "v", "user");
    EXPECT_EQ(registry.stringValue(Roots::User, "a\\b", "v"), "user");
    EXPECT_EQ(registry.stringValue(Roots::Machine, "a\\b", "v"), std::nullopt);
}

TEST_F(HiveFileTest, AHiveCutAtAnyByteGivesItsWholeLinesAndIsKept)
{
    const std::string whole = filled();
    ASSERT_GT(whole.size(), 60u);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        const std::string cut = whole.substr(0, size);
        m_sandbox.write("registry.hive", cut);
        HiveOperator registry(file());
        // A value is there as it was or not at all.
        const auto name = registry.stringValue(Roots::Machine, "SOFTWARE\\One", "Name");
        EXPECT_TRUE(!name || name == "100% of\ttwo\nlines\\ \xC3\xA4");
        const auto number = registry.dwordValue(Roots::User, "SOFTWARE\\Two", "Number");
        EXPECT_TRUE(!number || number == 4294967295u);
        EXPECT_EQ(registry.SetStringValue(Roots::User, "SOFTWARE\\Three", "v", "new"), 0);
        EXPECT_EQ(registry.stringValue(Roots::User, "SOFTWARE\\Three", "v"), "new");
        EXPECT_EQ(registry.stringValue(Roots::Machine, "SOFTWARE\\One", "Name"), name);
        if (size > 0) {
            EXPECT_EQ(m_sandbox.content("registry.hive.damaged"), cut);
            EXPECT_TRUE(m_sandbox.logged("is damaged"));
        }
        std::filesystem::remove(m_sandbox.folder() / "registry.hive.damaged");
    }
}

TEST_F(HiveFileTest, ADamagedHiveIsKeptBesideEarlierOnes)
{
    for (int number = 1; number <= 9; ++number) {
        m_sandbox.write("registry.hive", "quorin hive 1\nkey 2\\" + std::to_string(number));
        EXPECT_EQ(HiveOperator(file()).SetDwordValue(Roots::User, "a", "v", 1), 0);
    }
    EXPECT_EQ(m_sandbox.content("registry.hive.damaged-9"), "quorin hive 1\nkey 2\\9");
    m_sandbox.write("registry.hive", "one too many");
    EXPECT_EQ(HiveOperator(file()).SetDwordValue(Roots::User, "a", "v", 1), RegResults::Failure);
    EXPECT_EQ(m_sandbox.content("registry.hive"), "one too many");
    EXPECT_TRUE(m_sandbox.logged("too many damaged files"));
}

TEST_F(HiveFileTest, LinesOfNoMeaningAreDamageAndTheOthersCount)
{
    const std::string good = "text v\twords\n";
    for (const char *bad :
         {"garbage\n", "text without separator\n", "number v\t12x\n", "number v\t4294967296\n",
          "text %4\twords\n", "text %ZZ\twords\n", "end 99\n", "\n"}) {
        SCOPED_TRACE(bad);
        m_sandbox.write("registry.hive", "quorin hive 1\nkey 1\\k\n" + good + bad + "end 5\n");
        HiveFile hive(file());
        EXPECT_TRUE(hive.load());
        EXPECT_TRUE(hive.isDamaged());
        EXPECT_EQ(hive.value(Roots::User, "k", "v"), HiveFile::Value(std::string("words")));
    }
    m_sandbox.write("registry.hive", "quorin hive 1\ntext v\tno key before\nend 3\n");
    HiveFile hive(file());
    EXPECT_TRUE(hive.load());
    EXPECT_TRUE(hive.isDamaged());
}

TEST_F(HiveFileTest, AFullDiskLeavesTheOldHiveAndNothingBesideIt)
{
    const std::string before = filled();
    {
        const FileSizeLimit limit(before.size() / 2);
        EXPECT_EQ(HiveOperator(file()).SetStringValue(Roots::User, "SOFTWARE", "v", "x"),
                  RegResults::Failure);
    }
    EXPECT_EQ(m_sandbox.content("registry.hive"), before);
    EXPECT_EQ(m_sandbox.names(), std::vector<std::string>{"registry.hive"});
    EXPECT_TRUE(m_sandbox.logged("cannot write"));
}

TEST_F(HiveFileTest, AReadOnlyHiveStaysAsItIs)
{
    const std::string before = filled();
    ASSERT_EQ(::chmod(file().c_str(), S_IRUSR), 0);
    EXPECT_EQ(HiveOperator(file()).SetStringValue(Roots::User, "SOFTWARE", "v", "x"), RegResults::Failure);
    EXPECT_EQ(m_sandbox.content("registry.hive"), before);
    EXPECT_TRUE(m_sandbox.logged("cannot write"));
}

TEST_F(HiveFileTest, AFolderOrAPipeInTheHivesPlaceIsAFailureWithoutAStall)
{
    std::filesystem::create_directory(m_sandbox.folder() / "folder.hive");
    EXPECT_EQ(HiveOperator(m_sandbox.path("folder.hive")).DeleteKey(Roots::User, "a", "b"),
              RegResults::Failure);
    ASSERT_EQ(::mkfifo(m_sandbox.path("pipe.hive").c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_EQ(HiveOperator(m_sandbox.path("pipe.hive")).DeleteKey(Roots::User, "a", "b"),
              RegResults::Failure);
    EXPECT_TRUE(m_sandbox.logged("cannot read"));
}

TEST_F(HiveFileTest, AHiveThatIsALinkIsWrittenWhereItPoints)
{
    std::filesystem::create_directory(m_sandbox.folder() / "real");
    m_sandbox.write("real/registry.hive", "quorin hive 1\nend 2\n");
    std::filesystem::create_symlink(m_sandbox.folder() / "real/registry.hive", file());
    EXPECT_EQ(HiveOperator(file()).SetDwordValue(Roots::User, "a", "v", 1), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_NE(m_sandbox.content("real/registry.hive").find("number v"), std::string::npos);
}

TEST_F(HiveFileTest, RightsOfTheFileStay)
{
    filled();
    ASSERT_EQ(::chmod(file().c_str(), S_IRUSR | S_IWUSR | S_IRGRP), 0);
    EXPECT_EQ(HiveOperator(file()).SetDwordValue(Roots::User, "a", "v", 1), 0);
    struct stat facts {};
    ASSERT_EQ(::stat(file().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777u, unsigned(S_IRUSR | S_IWUSR | S_IRGRP));
}

TEST_F(HiveFileTest, TheUsersHiveLiesInTheFolderOfTheUsersData)
{
    EXPECT_EQ(HiveFile::defaultPath(), m_sandbox.path("data/quorin-player-6/registry.hive"));
    ::unsetenv("XDG_DATA_HOME");
    EXPECT_NE(HiveFile::defaultPath().find("/quorin-player-6/registry.hive"), std::string::npos);
}

TEST_F(HiveFileTest, ThereAreNoServersToRegister)
{
    HiveOperator registry(file());
    EXPECT_EQ(registry.RegisterServer("/folder", "a.so"), RegResults::Failure);
    EXPECT_EQ(registry.UnregisterServer("/folder", "a.so"), RegResults::Failure);
    EXPECT_EQ(registry.Commit(), 1);
}

} // namespace
