#include "RegistrySandbox.h"

#include "registry/DRegTaskManager.h"
#include "registry/JRegOperator.h"
#include "registry/JRegReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

namespace {

constexpr char kFile[] = "OP_RegList.dat";

// One task's section; a missing line is left out by giving it no text.
struct Lines {
    std::string opType{"OPType=0\n"};
    std::string rootType{"RootType=1\n"};
    std::string keyPath{"KeyPath=" + RegistrySandbox::key() + "\n"};
    std::string keyName{"KeyName=Name\n"};
    std::string valueType{"ValueType=0\n"};
    std::string keyValue{"KeyValue=Example\n"};

    std::string text() const { return opType + rootType + keyPath + keyName + valueType + keyValue; }
};

class RegTaskManagerTest : public testing::Test {
protected:
    void write(const std::string &content) const { m_sandbox.write(kFile, content); }

    // The tasks that a file of these sections, counted rightly, is loaded to.
    std::vector<RegTask> loaded(const std::vector<Lines> &sections)
    {
        std::string text = "[Task]\nCount=" + std::to_string(sections.size()) + "\n";
        for (std::size_t index = 0; index < sections.size(); ++index)
            text += '[' + std::to_string(index) + "]\n" + sections[index].text();
        write(text);
        EXPECT_EQ(m_manager.Load(m_sandbox.path(kFile)), RegResults::Success);
        return m_manager.tasks();
    }

    RegistrySandbox m_sandbox;
    DRegTaskManager m_manager;
};

TEST_F(RegTaskManagerTest, InitMakesAnEmptyFileOnceAndFindsItThen)
{
    EXPECT_EQ(m_manager.Init(), 1);
    EXPECT_EQ(std::filesystem::path(m_manager.FilePath()).filename(), kFile);
    EXPECT_EQ(m_sandbox.names(), std::vector<std::string>{kFile});
    EXPECT_EQ(m_sandbox.content(kFile), "");
    m_sandbox.write(kFile, "[Task]\n");
    EXPECT_EQ(m_manager.Init(), 0);
    EXPECT_EQ(m_sandbox.content(kFile), "[Task]\n");
    EXPECT_EQ(m_manager.Release(), 0);
}

TEST_F(RegTaskManagerTest, InitWithoutATemporaryFolderFailsAndSoDoesSave)
{
    std::filesystem::remove_all(m_sandbox.folder());
    EXPECT_EQ(m_manager.Init(), RegResults::Failure);
    m_manager.AddSetString(1, "a", "b", "c");
    EXPECT_EQ(m_manager.Save(), RegResults::Failure);
}

TEST_F(RegTaskManagerTest, SavedFileHasItsSectionsAndKeysInOrder)
{
    m_manager.Init();
    EXPECT_EQ(m_manager.AddSetString(2, "SOFTWARE\\Clients\\Media\\Example", "ApplicationName", "Example"),
              0);
    EXPECT_EQ(m_manager.AddSetNumber(2, "SOFTWARE\\Example", "Flag", 1), 0);
    EXPECT_EQ(m_manager.Save(), 0);
    std::string text = m_sandbox.content(kFile);
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    // Blank lines between sections are the system's affair.
    for (auto place = text.find("\n\n"); place != std::string::npos; place = text.find("\n\n"))
        text.erase(place, 1);
    EXPECT_EQ(text, "[Task]\nCount=2\n"
                    "[0]\nOPType=0\nRootType=2\nKeyPath=SOFTWARE\\Clients\\Media\\Example\n"
                    "KeyName=ApplicationName\nValueType=0\nKeyValue=Example\n"
                    "[1]\nOPType=0\nRootType=2\nKeyPath=SOFTWARE\\Example\nKeyName=Flag\nValueType=2\n"
                    "KeyValue=1\n");
    EXPECT_EQ(m_manager.tasks().size(), 2u);
}

TEST_F(RegTaskManagerTest, EveryKindOfTaskComesBackAsItWasRecorded)
{
    m_manager.Init();
    m_manager.AddSetString(0, "p", "n", "\"C:\\a b.exe\" \"%1\"");
    m_manager.AddSetNumber(1, "p", "n", -1);
    m_manager.AddSetString64(2, "p", "", "");
    m_manager.AddSetNumber64(3, "p", "n", 2147483647);
    m_manager.AddDeleteValue(4, "p", "n");
    m_manager.AddDeleteValue64(0, "p", "n");
    m_manager.AddDeleteKey(0, "p", "n");
    m_manager.AddDeleteKey64(0, "p", "n");
    m_manager.AddRegisterServer("C:\\folder", "a.dll");
    m_manager.AddUnregisterServer("C:\\folder", "b.dll");
    ASSERT_EQ(m_manager.Save(), 0);

    DRegTaskManager other;
    ASSERT_EQ(other.Load(m_manager.FilePath()), 0);
    const auto &tasks = other.tasks();
    ASSERT_EQ(tasks.size(), 10u);
    const auto &recorded = m_manager.tasks();
    const int ops[] = {0, 0, 1, 1, 2, 3, 4, 5, 6, 7};
    const int roots[] = {0, 1, 2, 3, 4, 0, 0, 0, 5, 5};
    const int types[] = {0, 2, 0, 2, 0, 0, 0, 0, 0, 0};
    for (std::size_t index = 0; index < tasks.size(); ++index) {
        SCOPED_TRACE(index);
        EXPECT_EQ(tasks[index].opType, ops[index]);
        EXPECT_EQ(tasks[index].rootType, roots[index]);
        EXPECT_EQ(tasks[index].valueType, types[index]);
        EXPECT_EQ(tasks[index].keyPath, recorded[index].keyPath);
        EXPECT_EQ(tasks[index].keyName, recorded[index].keyName);
        EXPECT_EQ(tasks[index].keyValue, recorded[index].keyValue);
        EXPECT_EQ(tasks[index].numberValue, recorded[index].numberValue);
    }
}

TEST_F(RegTaskManagerTest, AnEmptyListWritesTheCountAlone)
{
    m_manager.Init();
    EXPECT_EQ(m_manager.Save(), 0);
    EXPECT_EQ(m_sandbox.content(kFile).find("[0]"), std::string::npos);
    EXPECT_NE(m_sandbox.content(kFile).find("Count=0"), std::string::npos);
    EXPECT_TRUE(m_manager.hasCount());
}

TEST_F(RegTaskManagerTest, AShorterListLeavesTheLaterSectionsAndTheCountHidesThem)
{
    m_manager.Init();
    for (int index = 0; index < 3; ++index)
        m_manager.AddDeleteValue(1, "old", std::to_string(index));
    ASSERT_EQ(m_manager.Save(), 0);
    DRegTaskManager shorter;
    shorter.Init();
    shorter.AddDeleteValue(1, "new", "x");
    ASSERT_EQ(shorter.Save(), 0);
    EXPECT_NE(m_sandbox.content(kFile).find("[2]"), std::string::npos);
    ASSERT_EQ(m_manager.Load(), 0);
    ASSERT_EQ(m_manager.tasks().size(), 1u);
    EXPECT_EQ(m_manager.tasks()[0].keyPath, "new");
}

TEST_F(RegTaskManagerTest, AMissingFileOrCountIsAFailure)
{
    EXPECT_EQ(m_manager.Load(m_sandbox.path("missing.dat")), RegResults::Failure);
    for (const char *text : {"", "[Task]\n", "[Task]\nCount=\n", "[Task]\nCount=0\n", "[Task]\nCount=-3\n",
                             "[Task]\nCount=word\n", "[Other]\nCount=1\n", "no profile at all"}) {
        SCOPED_TRACE(text);
        write(text);
        EXPECT_EQ(m_manager.Load(m_sandbox.path(kFile)), RegResults::Failure);
        EXPECT_TRUE(m_manager.tasks().empty());
    }
}

TEST_F(RegTaskManagerTest, APathThatIsNoFileLeavesTheFileThatWasFoundBefore)
{
    m_manager.Init();
    write("[Task]\nCount=1\n[0]\n" + Lines().text());
    EXPECT_EQ(m_manager.Load(m_sandbox.path("missing.dat")), RegResults::Success);
    EXPECT_EQ(std::filesystem::path(m_manager.FilePath()).filename(), kFile);
}

TEST_F(RegTaskManagerTest, AMissingKeyCostsItsTaskAlone)
{
    std::string Lines::*const keys[] = {&Lines::opType,  &Lines::rootType,  &Lines::keyPath,
                                        &Lines::keyName, &Lines::valueType, &Lines::keyValue};
    for (const auto key : keys) {
        std::vector<Lines> sections(3);
        sections[1].*key = "";
        EXPECT_EQ(loaded(sections).size(), 2u);
    }
}

TEST_F(RegTaskManagerTest, AMissingSectionCostsItsTaskAlone)
{
    write("[Task]\nCount=3\n[0]\n" + Lines().text() + "[2]\n" + Lines().text());
    ASSERT_EQ(m_manager.Load(m_sandbox.path(kFile)), 0);
    EXPECT_EQ(m_manager.tasks().size(), 2u);
}

TEST_F(RegTaskManagerTest, AValueContainingTheTextOfAMissingOneReadsAsMissing)
{
    std::vector<Lines> sections(4);
    sections[0].keyPath = "KeyPath=__NULL_DATA__\n";
    sections[1].keyName = "KeyName=before__NULL_DATA__\n";
    sections[2].keyValue = "KeyValue=__NULL_DATA__after\n";
    EXPECT_EQ(loaded(sections).size(), 1u);
}

TEST_F(RegTaskManagerTest, TheNumber65553ReadsAsMissing)
{
    std::vector<Lines> sections(4);
    sections[0].opType = "OPType=65553\n";
    sections[1].rootType = "RootType=65553\n";
    sections[2].valueType = "ValueType=65553\n";
    EXPECT_EQ(loaded(sections).size(), 1u);
    write("[Task]\nCount=65553\n[0]\n" + Lines().text());
    EXPECT_EQ(m_manager.Load(m_sandbox.path(kFile)), RegResults::Failure);
}

TEST_F(RegTaskManagerTest, ANumberEndsAtTheFirstLetter)
{
    std::vector<Lines> sections(3);
    for (Lines &lines : sections)
        lines.valueType = "ValueType=2\n";
    sections[0].keyValue = "KeyValue=12x\n";
    sections[1].keyValue = "KeyValue=x12\n";
    sections[2].keyValue = "KeyValue=4294967295\n";
    const auto tasks = loaded(sections);
    ASSERT_EQ(tasks.size(), 3u);
    EXPECT_EQ(tasks[0].numberValue, 12);
    EXPECT_EQ(tasks[1].numberValue, 0);
    EXPECT_EQ(tasks[2].numberValue, -1);
}

TEST_F(RegTaskManagerTest, LongValuesAreCutAt1040Characters)
{
    std::vector<Lines> sections(1);
    sections[0].keyValue = "KeyValue=" + std::string(3000, 'v') + "\n";
    const auto tasks = loaded(sections);
    ASSERT_EQ(tasks.size(), 1u);
    EXPECT_EQ(tasks[0].keyValue, std::string(1040, 'v'));
}

TEST_F(RegTaskManagerTest, ACountOfBillionsIsReadInNoTime)
{
    write("[Task]\nCount=2000000000\n[1]\n" + Lines().text() + "[1999999999]\n" + Lines().text());
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(m_manager.Load(m_sandbox.path(kFile)), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
    EXPECT_EQ(m_manager.tasks().size(), 2u);
}

TEST_F(RegTaskManagerTest, TextsThatCouldForgeALineAreNotRecorded)
{
    EXPECT_EQ(m_manager.AddSetString(1, "p\n[9]", "n", "v"), RegResults::Failure);
    EXPECT_EQ(m_manager.AddSetString(1, "p", "n\r", "v"), RegResults::Failure);
    EXPECT_EQ(m_manager.AddSetString(1, "p", "n", std::string("v\0w", 3)), RegResults::Failure);
    EXPECT_EQ(m_manager.AddRegisterServer("a\nb", "c"), RegResults::Failure);
    EXPECT_TRUE(m_manager.tasks().empty());
}

TEST_F(RegTaskManagerTest, ATaskFileCutAtAnyByteLoadsWhatIsWhole)
{
    m_manager.Init();
    for (int index = 0; index < 3; ++index)
        m_manager.AddSetString(1, RegistrySandbox::key(), "Name" + std::to_string(index), "Value");
    ASSERT_EQ(m_manager.Save(), 0);
    const std::string whole = m_sandbox.content(kFile);
    // Each cut is a file of its own, as the system may keep what it read.
    for (std::size_t size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        const std::string name = "cut" + std::to_string(size) + ".dat";
        m_sandbox.write(name, whole.substr(0, size));
        DRegTaskManager cut;
        if (cut.Load(m_sandbox.path(name)) != RegResults::Success)
            continue;
        EXPECT_LE(cut.tasks().size(), 3u);
        for (const RegTask &task : cut.tasks())
            EXPECT_EQ(task.keyPath, RegistrySandbox::key());
    }
}

TEST_F(RegTaskManagerTest, ExecuteRunsEachKindAndTheFileCannotRunTwice)
{
    const std::string key = RegistrySandbox::key("Executed");
    JRegOperator().SetStringValue(Roots::User, key, "Gone", "x");
    JRegOperator().SetStringValue(Roots::User, key + "\\Branch\\Leaf", "", "x");
    m_manager.Init();
    m_manager.AddSetString(1, key, "Text", "words");
    m_manager.AddSetNumber(1, key, "Number", -1);
    m_manager.AddDeleteValue(1, key, "Gone");
    m_manager.AddDeleteKey(1, key, "Branch");
    ASSERT_EQ(m_manager.Save(), 0);

    DRegTaskManager helper;
    ASSERT_EQ(helper.Load(m_manager.FilePath()), 0);
    EXPECT_EQ(helper.Execute(), 0);
    const JRegReader reader;
    EXPECT_EQ(reader.stringValue(Roots::User, key, "Text"), "words");
    EXPECT_EQ(reader.dwordValue(Roots::User, key, "Number"), 0xFFFFFFFFu);
    EXPECT_EQ(reader.stringValue(Roots::User, key, "Gone"), std::nullopt);
    EXPECT_FALSE(reader.hasKey(Roots::User, key + "\\Branch"));
    EXPECT_EQ(helper.Load(m_manager.FilePath()), RegResults::Failure);
    EXPECT_EQ(DRegTaskManager().Load(m_manager.FilePath()), RegResults::Failure);
}

TEST_F(RegTaskManagerTest, TasksOfNoMeaningAreSkippedAndTheRestRuns)
{
    std::vector<Lines> sections(7);
    sections[0].opType = "OPType=99\n";
    sections[1].opType = "OPType=-1\n";
    sections[2].rootType = "RootType=5\n";
    sections[3].valueType = "ValueType=1\n";
    sections[4].opType = "OPType=6\n";
    sections[5].opType = "OPType=4\n";
    sections[5].keyName = "KeyName=\n";
    sections[6].keyName = "KeyName=Last\n";
    EXPECT_EQ(loaded(sections).size(), 7u);
    EXPECT_EQ(m_manager.Execute(), 0);
    const JRegReader reader;
    EXPECT_EQ(reader.stringValue(Roots::User, RegistrySandbox::key(), "Name"), std::nullopt);
    EXPECT_EQ(reader.stringValue(Roots::User, RegistrySandbox::key(), "Last"), "Example");
}

TEST_F(RegTaskManagerTest, HundredsOfTasksAreSavedAndLoadedInSeconds)
{
    m_manager.Init();
    for (int index = 0; index < 700; ++index)
        m_manager.AddSetString(2, "SOFTWARE\\Classes\\SystemFileAssociations\\.ext" + std::to_string(index),
                               "Name", "\"C:\\Program Files\\Player\\Player.exe\" \"%1\"");
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(m_manager.Save(), 0);
    ASSERT_EQ(m_manager.Load(), 0);
    const auto took = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(m_manager.tasks().size(), 700u);
    EXPECT_LT(took, std::chrono::seconds(20));
    RecordProperty("milliseconds",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(took).count()));
}

} // namespace
