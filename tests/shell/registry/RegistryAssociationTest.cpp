#include "RecordingOperator.h"
#include "RegistrySandbox.h"

#include "registry/JRegOperator.h"
#include "registry/JRegReader.h"
#include "registry/RegistryAssociation.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr char kOne[] = ".qsone";
constexpr char kTwo[] = ".qstwo";
constexpr char kProgId[] = "QuorinSandbox.Media";
constexpr char kCommand[] = "\"C:\\Program Files\\Player\\Player.exe\" \"%1\"";
constexpr char kIcon[] = "\"C:\\Program Files\\Player\\Player.exe\",0";
constexpr char kAutoplay[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\";
constexpr char kFileExts[] = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts";
constexpr char kClasses[] = "SOFTWARE\\Classes";
constexpr char kSystemFiles[] = "SOFTWARE\\Classes\\SystemFileAssociations";

std::string classKey(const char *extension)
{
    return std::string(kClasses) + '\\' + extension;
}

class RegistryAssociationTest : public testing::Test {
protected:
    RegistryAssociationTest() { clean(); }
    ~RegistryAssociationTest() override { clean(); }

    static RegistryAssociation::Names names()
    {
        return {"Quorin Sandbox", kProgId, "Player.exe", kCommand, kIcon, {kOne, kTwo}};
    }
    // Works on the registry itself, at once.
    RegistryAssociation direct()
    {
        return {names(), m_reader, [] { return std::make_unique<JRegOperator>(); }};
    }
    // Writes down the calls instead.
    RegistryAssociation recorded(RecordingOperator::Answers answers)
    {
        return {names(), m_reader,
                [this, answers] { return std::make_unique<RecordingOperator>(m_calls, answers); }};
    }
    RegistryAssociation recorded() { return recorded(RecordingOperator::Answers{}); }

    std::optional<std::string> machine(const std::string &key, const std::string &name) const
    {
        return m_reader.stringValue(Roots::Machine, key, name);
    }

    RegistrySandbox m_sandbox;
    JRegOperator m_registry;
    JRegReader m_reader;
    std::vector<std::string> m_calls;

private:
    void clean()
    {
        for (const char *extension : {kOne, kTwo}) {
            m_registry.DeleteKey(Roots::Machine, kClasses, extension);
            m_registry.DeleteKey(Roots::Classes, "", extension);
            m_registry.DeleteKey(Roots::Machine, kSystemFiles, extension);
            m_registry.DeleteKey(Roots::User, kFileExts, extension);
        }
    }
};

TEST_F(RegistryAssociationTest, RegisteringWritesInItsOrderWithOneCommit)
{
    EXPECT_TRUE(recorded().RegisterApplication());
    const std::string command = kCommand;
    const std::string set = "set | 2 | SOFTWARE\\";
    const std::string capabilities = "Clients\\Media\\Quorin Sandbox\\Capabilities";
    std::vector<std::string> wanted{
        set + "Classes\\QuorinSandbox.Media\\DefaultIcon |  | " + kIcon,
        set + "Classes\\QuorinSandbox.Media\\shell\\open\\command |  | " + command,
        set + capabilities + " | ApplicationDescription | Quorin Sandbox",
        set + capabilities + " | ApplicationName | Quorin Sandbox",
        set + capabilities + "\\FileAssociations | .qsone | QuorinSandbox.Media",
        set + capabilities + "\\FileAssociations | .qstwo | QuorinSandbox.Media",
        set + "RegisteredApplications | Quorin Sandbox | SOFTWARE\\" + capabilities,
    };
    for (const char *extension : {kOne, kTwo}) {
        const std::string shell = std::string("Classes\\SystemFileAssociations\\") + extension + "\\shell";
        wanted.push_back(set + shell + "\\PlayWithQuorinSix |  | Play with Quorin Player 6");
        wanted.push_back(set + shell + "\\PlayWithQuorinSix | MultiSelectModel | Player");
        wanted.push_back(set + shell + "\\PlayWithQuorinSix\\command |  | " + command);
        wanted.push_back("delete key | 2 | SOFTWARE\\" + shell + " | PlayWithQuorin | ");
    }
    wanted.push_back(set + "Classes\\Applications\\Player.exe | FriendlyAppName | Quorin Sandbox");
    wanted.push_back(set + "Classes\\Applications\\Player.exe\\shell\\open\\command |  | " + command);
    wanted.push_back(set + "Classes\\Directory\\shell\\PlayWithQuorinSix |  | Play with Quorin Player 6");
    wanted.push_back(set + "Classes\\Directory\\shell\\PlayWithQuorinSix\\command |  | " + command);
    wanted.emplace_back("commit");
    EXPECT_EQ(m_calls, wanted);
}

TEST_F(RegistryAssociationTest, UnregisteringDeletesTheSameInTheSameOrder)
{
    EXPECT_TRUE(recorded().UnregisterApplication());
    const std::vector<std::string> wanted{
        "delete key | 2 | SOFTWARE\\Classes | QuorinSandbox.Media | ",
        "delete key | 2 | SOFTWARE\\Clients\\Media | Quorin Sandbox | ",
        "delete value | 2 | SOFTWARE\\RegisteredApplications | Quorin Sandbox | ",
        "delete key | 2 | SOFTWARE\\Classes\\SystemFileAssociations\\.qsone\\shell | PlayWithQuorinSix | ",
        "delete key | 2 | SOFTWARE\\Classes\\SystemFileAssociations\\.qstwo\\shell | PlayWithQuorinSix | ",
        "delete key | 2 | SOFTWARE\\Classes\\Applications | Player.exe | ",
        "delete key | 2 | SOFTWARE\\Classes\\Directory\\shell | PlayWithQuorinSix | ",
        "commit",
    };
    EXPECT_EQ(m_calls, wanted);
}

TEST_F(RegistryAssociationTest, TheRegistryIsAsBeforeAfterRegisteringAndUnregistering)
{
    m_registry.SetStringValue(
        Roots::Machine, std::string(kSystemFiles) + '\\' + kOne + "\\shell\\PlayWithQuorin", "", "older");
    EXPECT_TRUE(direct().RegisterApplication());
    const std::string verb = std::string(kSystemFiles) + '\\' + kOne + "\\shell\\PlayWithQuorinSix";
    EXPECT_EQ(machine(verb, ""), "Play with Quorin Player 6");
    EXPECT_EQ(machine(verb, "MultiSelectModel"), "Player");
    EXPECT_EQ(machine(verb + "\\command", ""), kCommand);
    EXPECT_EQ(machine(std::string(kClasses) + "\\QuorinSandbox.Media\\DefaultIcon", ""), kIcon);
    EXPECT_EQ(machine("SOFTWARE\\Clients\\Media\\Quorin Sandbox\\Capabilities\\FileAssociations", kTwo),
              kProgId);
    EXPECT_FALSE(
        m_reader.hasKey(Roots::Machine, std::string(kSystemFiles) + '\\' + kOne + "\\shell\\PlayWithQuorin"));

    EXPECT_TRUE(direct().UnregisterApplication());
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, verb));
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, std::string(kClasses) + "\\QuorinSandbox.Media"));
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, "SOFTWARE\\Clients\\Media\\Quorin Sandbox"));
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, std::string(kClasses) + "\\Applications\\Player.exe"));
    EXPECT_EQ(machine("SOFTWARE\\RegisteredApplications", "Quorin Sandbox"), std::nullopt);
}

TEST_F(RegistryAssociationTest, AssociatingKeepsWhatWasBeforeAndRestoringGivesItBack)
{
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "", "Other.Media");
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "Content Type", "video/x-test");
    EXPECT_FALSE(direct().IsAssociated(kOne));
    EXPECT_TRUE(direct().AssociateExtensions({kOne}));
    EXPECT_TRUE(direct().IsAssociated(kOne));
    EXPECT_FALSE(direct().IsAssociated(kTwo));
    EXPECT_EQ(machine(classKey(kOne), ""), kProgId);
    EXPECT_EQ(machine(classKey(kOne), "KelFile"), kProgId);
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), "Other.Media");
    EXPECT_EQ(m_reader.stringValue(Roots::Classes, kOne, ""), kProgId);

    EXPECT_TRUE(direct().RestoreExtensions({kOne}));
    EXPECT_FALSE(direct().IsAssociated(kOne));
    EXPECT_EQ(machine(classKey(kOne), ""), "Other.Media");
    EXPECT_EQ(machine(classKey(kOne), "KelFile"), std::nullopt);
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), std::nullopt);
    EXPECT_EQ(machine(classKey(kOne), "Content Type"), "video/x-test");
}

TEST_F(RegistryAssociationTest, AssociatingTwiceKeepsTheFirstBackup)
{
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "", "Other.Media");
    EXPECT_TRUE(direct().AssociateExtensions({kOne}));
    EXPECT_TRUE(direct().AssociateExtensions({kOne}));
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), "Other.Media");
    // Another program took it in between: the first backup stays all the same.
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "", "Third.Media");
    EXPECT_TRUE(direct().AssociateExtensions({kOne}));
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), "Other.Media");
    EXPECT_EQ(machine(classKey(kOne), ""), kProgId);
}

TEST_F(RegistryAssociationTest, NoEarlierDefaultGivesAnEmptyBackupAndRestoringClearsTheDefault)
{
    EXPECT_TRUE(direct().AssociateExtensions({kOne}));
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), "");
    EXPECT_TRUE(direct().RestoreExtensions({kOne}));
    EXPECT_EQ(machine(classKey(kOne), ""), "");
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), std::nullopt);
}

TEST_F(RegistryAssociationTest, OurOwnNameIsNoBackup)
{
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "", kProgId);
    EXPECT_TRUE(direct().AssociateExtensions({kOne}));
    EXPECT_EQ(machine(classKey(kOne), "KelFile.backup"), "");
}

TEST_F(RegistryAssociationTest, RestoringWhatWasNeverAssociatedTouchesNothing)
{
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "", "Other.Media");
    EXPECT_TRUE(recorded().RestoreExtensions({kOne}));
    EXPECT_EQ(m_calls, std::vector<std::string>{"commit"});
}

TEST_F(RegistryAssociationTest, TheUsersChoiceIsDeletedAndItsAbsenceIsNoError)
{
    const std::string choice = std::string(kFileExts) + '\\' + kOne + "\\UserChoice";
    m_registry.SetStringValue(Roots::User, choice, "Progid", "Other.Media");
    EXPECT_TRUE(direct().AssociateExtensions({kOne, kTwo}));
    EXPECT_FALSE(m_reader.hasKey(Roots::User, choice));
    EXPECT_TRUE(m_reader.hasKey(Roots::User, std::string(kFileExts) + '\\' + kOne));
}

TEST_F(RegistryAssociationTest, AssociatingWritesInItsOrder)
{
    m_registry.SetStringValue(Roots::Machine, classKey(kOne), "", "Other.Media");
    m_registry.SetStringValue(Roots::Classes, kOne, "", "Other.Media");
    EXPECT_TRUE(recorded().AssociateExtensions({kOne}));
    const std::vector<std::string> wanted{
        "set | 2 | SOFTWARE\\Classes\\.qsone | KelFile | QuorinSandbox.Media",
        "set | 2 | SOFTWARE\\Classes\\.qsone | KelFile.backup | Other.Media",
        "set | 2 | SOFTWARE\\Classes\\.qsone |  | QuorinSandbox.Media",
        "set | 0 | .qsone | KelFile | QuorinSandbox.Media",
        "set | 0 | .qsone | KelFile.backup | Other.Media",
        "set | 0 | .qsone |  | QuorinSandbox.Media",
        "delete key | 1 | " + std::string(kFileExts) + "\\.qsone | UserChoice | ",
        "commit",
    };
    EXPECT_EQ(m_calls, wanted);
}

TEST_F(RegistryAssociationTest, AChangeOfBothKindsIsOneCommitAndNoChangeIsNone)
{
    EXPECT_TRUE(direct().AssociateExtensions({kTwo}));
    EXPECT_TRUE(recorded().ChangeExtensions({kOne}, {kTwo}));
    EXPECT_EQ(std::count(m_calls.begin(), m_calls.end(), "commit"), 1);
    EXPECT_EQ(m_calls.back(), "commit");
    EXPECT_NE(m_calls.front().find(kTwo), std::string::npos);
    m_calls.clear();
    EXPECT_TRUE(recorded().ChangeExtensions({}, {}));
    EXPECT_TRUE(m_calls.empty());
}

TEST_F(RegistryAssociationTest, ARefusedCommitOrAFailedWriteIsTold)
{
    EXPECT_FALSE(recorded({RegResults::Success, 0}).AssociateExtensions({kOne}));
    EXPECT_FALSE(recorded({RegResults::Failure, 1}).AssociateExtensions({kOne}));
    EXPECT_FALSE(recorded({RegResults::Success, 0}).RegisterApplication());
    EXPECT_FALSE(recorded({RegResults::Success, 0}).RegisterAutoplay(true));
    EXPECT_FALSE(RegistryAssociation(names(), m_reader, [] { return nullptr; }).RegisterApplication());
    EXPECT_FALSE(direct().IsAssociated(kOne));
}

TEST_F(RegistryAssociationTest, AutoplayWritesItsHandlerAndTakesItOutAgain)
{
    const std::string handlers = std::string(kAutoplay) + "Handlers\\QuorinSixMovieOnArrival";
    EXPECT_TRUE(direct().RegisterAutoplay(true));
    EXPECT_EQ(machine("SOFTWARE\\Classes\\QuorinSix.AutoPlay\\shell\\open\\command", ""), kCommand);
    const std::pair<const char *, const char *> values[] = {{"Action", "Play Movie"},
                                                            {"DefaultIcon", kIcon},
                                                            {"InvokeProgID", "QuorinSix.AutoPlay"},
                                                            {"InvokeVerb", "Open"},
                                                            {"Provider", "Quorin Sandbox"}};
    for (const auto &[name, value] : values)
        EXPECT_EQ(machine(handlers, name), value) << name;
    const char *const arrivals[] = {"PlayBluRayOnArrival", "PlayDVDMovieOnArrival",
                                    "PlayVideoFilesOnArrival"};
    for (const char *arrival : arrivals)
        EXPECT_EQ(machine(std::string(kAutoplay) + "EventHandlers\\" + arrival, "QuorinSixMovieOnArrival"),
                  "");
    const char *const selections[] = {"EventHandlersDefaultSelection\\PlayVideoFilesOnArrival",
                                      "UserChosenExecuteHandlers\\PlayVideoFilesOnArrival"};
    for (const char *selection : selections)
        EXPECT_EQ(machine(std::string(kAutoplay) + selection, ""), "QuorinSixMovieOnArrival");

    EXPECT_TRUE(direct().RegisterAutoplay(false));
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, handlers));
    EXPECT_FALSE(m_reader.hasKey(Roots::Machine, "SOFTWARE\\Classes\\QuorinSix.AutoPlay"));
    for (const char *arrival : arrivals)
        EXPECT_EQ(machine(std::string(kAutoplay) + "EventHandlers\\" + arrival, "QuorinSixMovieOnArrival"),
                  std::nullopt);
    for (const char *selection : selections)
        EXPECT_EQ(machine(std::string(kAutoplay) + selection, "").value_or(""), "");
}

TEST_F(RegistryAssociationTest, TakingAutoplayOutLeavesAnotherProgramsSelection)
{
    const std::string selection =
        std::string(kAutoplay) + "EventHandlersDefaultSelection\\PlayVideoFilesOnArrival";
    EXPECT_TRUE(direct().RegisterAutoplay(true));
    m_registry.SetStringValue(Roots::Machine, selection, "", "OtherHandler");
    EXPECT_TRUE(direct().RegisterAutoplay(false));
    EXPECT_EQ(machine(selection, ""), "OtherHandler");
    m_registry.DeleteValue(Roots::Machine, selection, "");
}

} // namespace
