#include "RegistrySandbox.h"

#include "registry/ElevatedHelper.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

namespace {

// A stand-in for the program that asks the user: a script of the test's own.
class ElevatedHelperTest : public testing::Test {
protected:
    ElevatedHelperTest()
        : m_pathBefore(std::getenv("PATH"))
    {
        std::filesystem::create_directory(m_sandbox.folder() / "bin");
        ::setenv("PATH", (m_sandbox.path("bin") + ':' + m_pathBefore).c_str(), 1);
    }
    ~ElevatedHelperTest() override { ::setenv("PATH", m_pathBefore.c_str(), 1); }

    void answer(const std::string &script) const
    {
        m_sandbox.write("bin/pkexec", "#!/bin/sh\n" + script + '\n');
        std::filesystem::permissions(m_sandbox.folder() / "bin/pkexec", std::filesystem::perms::owner_all);
    }

    const std::string m_pathBefore;
    RegistrySandbox m_sandbox;
};

TEST_F(ElevatedHelperTest, ProgramAndArgumentArriveWholeAndTheExitCodeComesBack)
{
    answer("printf '%s|%s|%s' $# \"$1\" \"$2\" >\"$TMPDIR/said\"; exit 7");
    EXPECT_EQ(ElevatedHelper::run("/a program", "/a file's \"name\""), 7);
    EXPECT_EQ(m_sandbox.content("said"), "2|/a program|/a file's \"name\"");
}

TEST_F(ElevatedHelperTest, WithoutTheProgramThatAsksThereIsNoAnswer)
{
    ::setenv("PATH", m_sandbox.path("bin").c_str(), 1);
    EXPECT_EQ(ElevatedHelper::run("/program", "/file"), std::nullopt);
}

TEST_F(ElevatedHelperTest, AProgramThatOutlastsTheLimitIsEnded)
{
    answer("exec sleep 60");
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(ElevatedHelper::run("/program", "/file", 200), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
}

TEST_F(ElevatedHelperTest, AProgramThatWasKilledHasNoExitCode)
{
    answer("kill -KILL $$");
    EXPECT_EQ(ElevatedHelper::run("/program", "/file"), std::nullopt);
}

} // namespace
