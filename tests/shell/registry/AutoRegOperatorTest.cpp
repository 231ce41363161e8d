#include "RecordingOperator.h"
#include "RegistrySandbox.h"

#include "registry/JAutoRegOperator.h"
#include "registry/JRegOperator.h"
#include "registry/JRegReader.h"
#include "registry/JX64RegOperator.h"
#include "registry/ProgramPlace.h"

#include <gtest/gtest.h>

namespace {

class AutoRegOperatorTest : public testing::Test {
protected:
    using Calls = std::vector<std::string>;

    // An operator of two with these results.
    std::unique_ptr<JAutoRegOperator> made(RecordingOperator::Answers first,
                                           RecordingOperator::Answers second)
    {
        JAutoRegOperator::Operators operators;
        operators.push_back(std::make_unique<RecordingOperator>(m_first, first));
        operators.push_back(std::make_unique<RecordingOperator>(m_second, second));
        return std::make_unique<JAutoRegOperator>(std::move(operators));
    }

    RegistrySandbox m_sandbox;
    Calls m_first;
    Calls m_second;
};

template<typename Wanted>
bool holds(const JAutoRegOperator &registry)
{
    return registry.operators().size() == 1 && dynamic_cast<Wanted *>(registry.operators()[0].get());
}

TEST_F(AutoRegOperatorTest, TheWayFollowsTheSystemUnlessDirectIsAskedFor)
{
    EXPECT_TRUE(holds<JRegOperator>(JAutoRegOperator(true)));
    EXPECT_TRUE(holds<JRegOperator>(JAutoRegOperator(true, true)));
    EXPECT_TRUE(holds<JX64RegOperator>(JAutoRegOperator(false, true)));
    EXPECT_EQ(holds<JX64RegOperator>(JAutoRegOperator()), ProgramPlace::needsElevation());
}

TEST_F(AutoRegOperatorTest, ASystemWithoutElevationWritesDirectlyAndCommitsWithoutAHelper)
{
    JAutoRegOperator registry(false, false);
    EXPECT_TRUE(holds<JRegOperator>(registry));
    EXPECT_EQ(registry.SetStringValue(Roots::User, RegistrySandbox::key(), "v", "direct"), 0);
    EXPECT_EQ(JRegReader().stringValue(Roots::User, RegistrySandbox::key(), "v"), "direct");
    EXPECT_EQ(registry.Commit(), 1);
    EXPECT_FALSE(ProgramPlace::fileExists(m_sandbox.path("OP_RegList.dat")));
}

TEST_F(AutoRegOperatorTest, TheFirstThatDoesNotFailEndsTheCall)
{
    EXPECT_EQ(made({0, 1}, {0, 1})->DeleteValue(Roots::User, "k", "n"), 0);
    EXPECT_EQ(m_first.size(), 1u);
    EXPECT_TRUE(m_second.empty());
    EXPECT_EQ(made({RegResults::Failure, 1}, {5, 1})->DeleteValue(Roots::User, "k", "n"), 5);
    EXPECT_EQ(m_second.size(), 1u);
}

TEST_F(AutoRegOperatorTest, WhenAllFailTheResultIsFailure)
{
    const RegResult other = static_cast<RegResult>(0x80070005u);
    EXPECT_EQ(made({other, 1}, {other, 1})->DeleteKey(Roots::User, "k", "n"), RegResults::Failure);
    EXPECT_EQ(m_second.size(), 1u);
}

TEST_F(AutoRegOperatorTest, EveryOperationIsPassedOn)
{
    auto registry = made({0, 1}, {0, 1});
    registry->SetStringValue(Roots::Machine, "k", "n", "v");
    registry->SetDwordValue(Roots::Machine, "k", "n", 1);
    registry->SetStringValue64(Roots::Machine, "k", "n", "v");
    registry->SetDwordValue64(Roots::Machine, "k", "n", 1);
    registry->DeleteValue(Roots::Machine, "k", "n");
    registry->DeleteValue64(Roots::Machine, "k", "n");
    registry->DeleteKey(Roots::Machine, "k", "n");
    registry->DeleteKey64(Roots::Machine, "k", "n");
    registry->RegisterServer("f", "n");
    registry->UnregisterServer("f", "n");
    const Calls wanted{"set | 2 | k | n | v",         "number | 2 | k | n | 1",
                       "set64 | 2 | k | n | v",       "number64 | 2 | k | n | 1",
                       "delete value | 2 | k | n | ", "delete value64 | 2 | k | n | ",
                       "delete key | 2 | k | n | ",   "delete key64 | 2 | k | n | ",
                       "register | -1 | f | n | ",    "unregister | -1 | f | n | "};
    EXPECT_EQ(m_first, wanted);
}

TEST_F(AutoRegOperatorTest, CommitAsksEachAndsTheResultsAndEmptiesTheList)
{
    auto both = made({0, 1}, {0, 1});
    EXPECT_EQ(both->Commit(), 1);
    EXPECT_TRUE(both->operators().empty());
    EXPECT_EQ(both->SetStringValue(Roots::User, "k", "n", "v"), RegResults::NoOperator);
    EXPECT_EQ(both->RegisterServer("f", "n"), RegResults::NoOperator);
    EXPECT_EQ(both->Commit(), 1);
    EXPECT_EQ(made({0, 0}, {0, 1})->Commit(), 0);
    EXPECT_EQ(made({0, 1}, {0, 0})->Commit(), 0);
    // A first failure does not keep the second from its commit.
    EXPECT_EQ(m_second, (Calls{"commit", "commit", "commit"}));
}

} // namespace
