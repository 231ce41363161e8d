#include "RegistrySandbox.h"

#include "registry/ProfileFile.h"

#include <gtest/gtest.h>

namespace {

class ProfileFileTest : public testing::Test {
protected:
    std::string file(const std::string &content) const
    {
        m_sandbox.write("profile.ini", content);
        return m_sandbox.path("profile.ini");
    }

    // What a value is after it went into a file and out of it.
    std::string throughFile(const std::string &value) const
    {
        ProfileFile profile(m_sandbox.path("through.ini"));
        EXPECT_TRUE(profile.writeSections({{"0", {{"KeyValue", value}}}}));
        return ProfileFile(m_sandbox.path("through.ini")).readString("0", "KeyValue", "missing");
    }

    RegistrySandbox m_sandbox;
};

TEST_F(ProfileFileTest, ReadsTextsAndNumbersInAnyCaseOfTheirNames)
{
    const ProfileFile profile(file("[Task]\nCount=2\n[0]\nKeyPath= SOFTWARE\\Example \nFlag=-1\n"));
    EXPECT_EQ(profile.readInt("task", "COUNT", 7), 2);
    EXPECT_EQ(profile.readString("0", "keypath", "none"), "SOFTWARE\\Example");
    EXPECT_EQ(profile.readInt("0", "Flag", 7), -1);
    EXPECT_EQ(profile.readInt("0", "Missing", 7), 7);
    EXPECT_EQ(profile.readString("1", "KeyPath", "none"), "none");
}

TEST_F(ProfileFileTest, AnEmptyTextIsThereAndAnEmptyNumberIsNot)
{
    const ProfileFile profile(file("[0]\nKeyValue=\nOPType=\n"));
    EXPECT_EQ(profile.readString("0", "KeyValue", "none"), "");
    EXPECT_EQ(profile.readInt("0", "OPType", 65553), 65553);
}

TEST_F(ProfileFileTest, TextThatIsNoNumberIsZeroAndANumberEndsAtTheFirstLetter)
{
    const ProfileFile profile(file("[0]\na=word\nb=12x\nc=007\n"));
    EXPECT_EQ(profile.readInt("0", "a", 9), 0);
    EXPECT_EQ(profile.readInt("0", "b", 9), 12);
    EXPECT_EQ(profile.readInt("0", "c", 9), 7);
}

TEST_F(ProfileFileTest, ValuesLongerThanTheBufferAreCutAt1040Characters)
{
    const ProfileFile profile(
        file("[0]\nlong=" + std::string(1041, 'a') + "\nfits=" + std::string(1040, 'b') + "\n"));
    EXPECT_EQ(profile.readString("0", "long", ""), std::string(1040, 'a'));
    EXPECT_EQ(profile.readString("0", "fits", ""), std::string(1040, 'b'));
}

TEST_F(ProfileFileTest, ValuesComeBackAsTheyWereWritten)
{
    for (const char *value :
         {"Example", "", "\"C:\\Program Files\\Player.exe\" \"%1\"", "\"C:\\Player.exe\",0", "'single'",
          "  blanks  ", "a=b;c", "[0]", "\"", "\"\"", "; no comment", "#neither"})
        EXPECT_EQ(throughFile(value), value);
}

TEST_F(ProfileFileTest, OneLayerOfQuotesIsTakenOff)
{
    const ProfileFile profile(file("[0]\na=\"quoted\"\nb='single'\nc=\"open\nd=\"mixed'\n"));
    EXPECT_EQ(profile.readString("0", "a", ""), "quoted");
    EXPECT_EQ(profile.readString("0", "b", ""), "single");
    EXPECT_EQ(profile.readString("0", "c", ""), "\"open");
    EXPECT_EQ(profile.readString("0", "d", ""), "\"mixed'");
}

TEST_F(ProfileFileTest, WritingReplacesItsSectionsAndLeavesTheOthers)
{
    ProfileFile profile(file("[Task]\nCount=3\n[0]\nOPType=1\nOld=1\n[2]\nOPType=5\n"));
    ASSERT_TRUE(profile.writeSections({{"Task", {{"Count", "1"}}}, {"0", {{"OPType", "4"}}}}));
    const ProfileFile after(m_sandbox.path("profile.ini"));
    EXPECT_EQ(after.readInt("Task", "Count", 0), 1);
    EXPECT_EQ(after.readInt("0", "OPType", 0), 4);
    EXPECT_EQ(after.readInt("0", "Old", 9), 9);
    EXPECT_EQ(after.readInt("2", "OPType", 0), 5);
    EXPECT_EQ(after.sectionNames(), (std::vector<std::string>{"Task", "0", "2"}));
    EXPECT_EQ(m_sandbox.names(), std::vector<std::string>{"profile.ini"});
}

TEST_F(ProfileFileTest, KeysAreWrittenInTheirOrder)
{
    ProfileFile profile(m_sandbox.path("order.ini"));
    ASSERT_TRUE(profile.writeSections({{"0", {{"b", "1"}, {"a", "2"}, {"c", "3"}}}}));
    const std::string text = m_sandbox.content("order.ini");
    EXPECT_LT(text.find("[0]"), text.find("b=1"));
    EXPECT_LT(text.find("b=1"), text.find("a=2"));
    EXPECT_LT(text.find("a=2"), text.find("c=3"));
}

TEST_F(ProfileFileTest, AReadOnlyFileStaysAsItIsAndTheLogTells)
{
    const std::string before = "[Task]\nCount=3\n";
    ProfileFile profile(file(before));
    std::filesystem::permissions(m_sandbox.path("profile.ini"),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::group_read);
    EXPECT_FALSE(profile.writeSections({{"Task", {{"Count", "0"}}}}));
    EXPECT_TRUE(m_sandbox.logged("cannot write")) << m_sandbox.log().size();
    EXPECT_EQ(m_sandbox.content("profile.ini"), before);
    EXPECT_EQ(m_sandbox.names(), std::vector<std::string>{"profile.ini"});
    std::filesystem::permissions(m_sandbox.path("profile.ini"), std::filesystem::perms::owner_all);
}

TEST_F(ProfileFileTest, AFolderThatIsNotThereIsAFailure)
{
    ProfileFile profile(m_sandbox.path("missing/profile.ini"));
    EXPECT_FALSE(profile.writeSections({{"Task", {{"Count", "1"}}}}));
    EXPECT_TRUE(m_sandbox.logged("cannot write"));
}

TEST_F(ProfileFileTest, AFolderInTheFilesPlaceIsAFailure)
{
    std::filesystem::create_directory(m_sandbox.folder() / "folder.ini");
    ProfileFile profile(m_sandbox.path("folder.ini"));
    EXPECT_EQ(profile.readInt("Task", "Count", 5), 5);
    EXPECT_FALSE(profile.writeSections({{"Task", {{"Count", "1"}}}}));
}

TEST_F(ProfileFileTest, LineEndsAndZeroBytesCannotBeHeld)
{
    EXPECT_TRUE(ProfileFile::canHold("plain \"text\" = ; [x]"));
    EXPECT_FALSE(ProfileFile::canHold("two\nlines"));
    EXPECT_FALSE(ProfileFile::canHold("two\rlines"));
    EXPECT_FALSE(ProfileFile::canHold(std::string("zero\0byte", 9)));
}

} // namespace
