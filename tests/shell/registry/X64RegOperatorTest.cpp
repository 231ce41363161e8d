#include "RegistrySandbox.h"
#include "RunProgram.h"

#include "registry/JRegReader.h"
#include "registry/JX64RegOperator.h"
#include "registry/ProgramPlace.h"

#include <gtest/gtest.h>

namespace {

constexpr char kFile[] = "OP_RegList.dat";

std::optional<int> refused(const std::string &, const std::string &, int)
{
    return std::nullopt;
}

std::optional<int> failed(const std::string &, const std::string &, int)
{
    return 1;
}

// The real helper, without the question for rights.
std::optional<int> runDirectly(const std::string &program, const std::string &argument, int)
{
    return runProgram(program, {argument});
}

class X64RegOperatorTest : public testing::Test {
protected:
    // Any file will do where the runner does not run it.
    std::string helper() const
    {
        m_sandbox.write("helper", "");
        return m_sandbox.path("helper");
    }

    RegistrySandbox m_sandbox;
    const std::string m_key = RegistrySandbox::key("Helper");
};

TEST_F(X64RegOperatorTest, TheHelperLiesBesideTheProgramUnderTheProcessWideName)
{
    const std::string before = JX64RegOperator::helperName();
    EXPECT_EQ(before, ProgramPlace::programFile("KelRegOp"));
    JX64RegOperator::setHelperName("Another.exe");
    EXPECT_EQ(JX64RegOperator().helperPath(),
              ProgramPlace::joined(ProgramPlace::programFolder(), "Another.exe"));
    JX64RegOperator::setHelperName(before);
    EXPECT_FALSE(ProgramPlace::programFolder().empty());
}

TEST_F(X64RegOperatorTest, EachOperationIsRecordedWithTheNumberOfItsRoot)
{
    JX64RegOperator registry(helper(), refused);
    EXPECT_EQ(registry.SetStringValue(Roots::Classes, "k", "n", "v"), 0);
    EXPECT_EQ(registry.SetDwordValue(Roots::User, "k", "n", 0xFFFFFFFFu), 0);
    EXPECT_EQ(registry.SetStringValue64(Roots::Machine, "k", "n", "v"), 0);
    EXPECT_EQ(registry.SetDwordValue64(RegRoots::handle(RegRoots::Users), "k", "n", 3), 0);
    EXPECT_EQ(registry.DeleteValue(RegRoots::handle(RegRoots::CurrentConfig), "k", "n"), 0);
    EXPECT_EQ(registry.DeleteValue64(Roots::User, "k", "n"), 0);
    EXPECT_EQ(registry.DeleteKey(Roots::User, "k", "n"), 0);
    EXPECT_EQ(registry.DeleteKey64(Roots::User, "k", "n"), 0);
    EXPECT_EQ(registry.RegisterServer("f", "n"), 0);
    EXPECT_EQ(registry.UnregisterServer("f", "n"), 0);
    const auto &tasks = registry.tasks().tasks();
    ASSERT_EQ(tasks.size(), 10u);
    const int ops[] = {0, 0, 1, 1, 2, 3, 4, 5, 6, 7};
    const int roots[] = {0, 1, 2, 3, 4, 1, 1, 1, 5, 5};
    for (std::size_t index = 0; index < tasks.size(); ++index) {
        EXPECT_EQ(tasks[index].opType, ops[index]) << index;
        EXPECT_EQ(tasks[index].rootType, roots[index]) << index;
    }
    EXPECT_EQ(tasks[1].keyValue, "-1");
}

TEST_F(X64RegOperatorTest, ARootThatIsNoneIsAFailureAndNotRecorded)
{
    JX64RegOperator registry(helper(), refused);
    EXPECT_EQ(registry.SetStringValue(nullptr, "k", "n", "v"), RegResults::Failure);
    EXPECT_TRUE(registry.tasks().tasks().empty());
}

TEST_F(X64RegOperatorTest, ACommitWithoutTheHelperFailsAndTheTaskFileStays)
{
    JX64RegOperator registry(m_sandbox.path("missing"), runDirectly);
    registry.SetStringValue(Roots::User, m_key, "v", "x");
    EXPECT_EQ(registry.Commit(), 0);
    DRegTaskManager file;
    ASSERT_EQ(file.Load(m_sandbox.path(kFile)), 0);
    EXPECT_EQ(file.tasks().size(), 1u);
    EXPECT_FALSE(JRegReader().hasKey(Roots::User, m_key));
}

TEST_F(X64RegOperatorTest, ARefusalLeavesTheTasksAndTheNextCommitBringsThemWithTheNewOnes)
{
    JX64RegOperator registry(helper(), refused);
    registry.SetStringValue(Roots::User, m_key, "first", "x");
    EXPECT_EQ(registry.Commit(), 0);
    registry.SetStringValue(Roots::User, m_key, "second", "x");
    EXPECT_EQ(registry.Commit(), 0);
    DRegTaskManager file;
    ASSERT_EQ(file.Load(m_sandbox.path(kFile)), 0);
    ASSERT_EQ(file.tasks().size(), 2u);
    EXPECT_EQ(file.tasks()[0].keyName, "first");
    EXPECT_EQ(file.tasks()[1].keyName, "second");
}

TEST_F(X64RegOperatorTest, AHelperThatEndsWithAnErrorIsAFailure)
{
    JX64RegOperator registry(helper(), failed);
    registry.SetStringValue(Roots::User, m_key, "v", "x");
    EXPECT_EQ(registry.Commit(), 0);
}

TEST_F(X64RegOperatorTest, ATaskFileThatCannotBeWrittenIsAFailureAndTheHelperDoesNotRun)
{
    JX64RegOperator registry(helper(), [](const std::string &, const std::string &, int) {
        ADD_FAILURE() << "the helper was started";
        return std::optional<int>(0);
    });
    registry.SetStringValue(Roots::User, m_key, "v", "x");
    std::filesystem::permissions(m_sandbox.path(kFile), std::filesystem::perms::owner_read);
    EXPECT_EQ(registry.Commit(), 0);
    std::filesystem::permissions(m_sandbox.path(kFile), std::filesystem::perms::owner_all);
}

TEST_F(X64RegOperatorTest, TheRealHelperRunsWhatWasRecordedAndEmptiesTheFile)
{
    JX64RegOperator registry(kHelperProgram, runDirectly);
    registry.SetStringValue(Roots::User, m_key, "Command", "\"C:\\a b.exe\" \"%1\"");
    registry.SetDwordValue(Roots::User, m_key, "Number", 0x80000001u);
    registry.DeleteKey(Roots::User, m_key, "Missing");
    EXPECT_EQ(registry.Commit(), 1);
    const JRegReader reader;
    EXPECT_EQ(reader.stringValue(Roots::User, m_key, "Command"), "\"C:\\a b.exe\" \"%1\"");
    EXPECT_EQ(reader.dwordValue(Roots::User, m_key, "Number"), 0x80000001u);
    EXPECT_EQ(DRegTaskManager().Load(m_sandbox.path(kFile)), RegResults::Failure);
}

TEST_F(X64RegOperatorTest, TheHelperTellsByItsExitCodeWhetherThereWasATaskFile)
{
    m_sandbox.write("none.dat", "[Task]\nCount=0\n");
    m_sandbox.write("other.dat", "no task file");
    EXPECT_EQ(runProgram(kHelperProgram, {m_sandbox.path("none.dat")}), 0);
    EXPECT_EQ(runProgram(kHelperProgram, {m_sandbox.path("other.dat")}), 1);
    EXPECT_EQ(runProgram(kHelperProgram, {m_sandbox.path("missing.dat")}), 1);
    EXPECT_EQ(runProgram(kHelperProgram, {}), 2);
}

} // namespace
