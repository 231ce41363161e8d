#include "engine/MpvSpare.h"

#include <gtest/gtest.h>

namespace {

const MpvMap kQuiet{{"vo", std::string("null")}, {"ao", std::string("null")}, {"volume", 40.0}};

MpvMap with(MpvMap options, const std::string &name, const MpvValue &value)
{
    options[name] = value;
    return options;
}

TEST(MpvSpare, GivesTheInstanceThatWasKeptWithTheOptionsThatAreWanted)
{
    MpvSpare spare;
    auto kept = MpvHandle::create(kQuiet);
    ASSERT_TRUE(kept);
    const MpvHandle *const same = kept.get();
    spare.keep(std::move(kept), kQuiet);
    const auto handle = spare.take(with(with(kQuiet, "volume", 70.0), "pause", true));
    ASSERT_TRUE(handle);
    EXPECT_EQ(handle.get(), same);
    EXPECT_EQ(handle->readNow("volume"), MpvValue(70.0));
    EXPECT_EQ(handle->readNow("pause"), MpvValue(true));
}

TEST(MpvSpare, AnswersWithWhatTheKeptInstanceHas)
{
    MpvSpare spare;
    EXPECT_TRUE(spare.read("volume").isNone());
    spare.keep(MpvHandle::create(kQuiet), kQuiet);
    EXPECT_EQ(spare.read("volume"), MpvValue(40.0));
    ASSERT_TRUE(spare.take(kQuiet));
    EXPECT_TRUE(spare.read("volume").isNone()) << "it belongs to a play now";
}

TEST(MpvSpare, GivesItOnce)
{
    MpvSpare spare;
    spare.keep(MpvHandle::create(kQuiet), kQuiet);
    const auto first = spare.take(kQuiet);
    const auto second = spare.take(kQuiet);
    ASSERT_TRUE(first);
    ASSERT_TRUE(second);
    EXPECT_NE(first.get(), second.get());
}

TEST(MpvSpare, AnOptionThatCannotBeTakenBackWantsANewInstance)
{
    MpvSpare spare;
    auto kept = MpvHandle::create(with(kQuiet, "speed", 2.0));
    const MpvHandle *const same = kept.get();
    spare.keep(std::move(kept), with(kQuiet, "speed", 2.0));
    const auto handle = spare.take(kQuiet);
    ASSERT_TRUE(handle);
    EXPECT_NE(handle.get(), same);
    EXPECT_EQ(handle->readNow("speed"), MpvValue(1.0));
}

TEST(MpvSpare, WithoutASpareAnInstanceIsMade)
{
    MpvSpare spare;
    const auto handle = spare.take(kQuiet);
    ASSERT_TRUE(handle);
    EXPECT_EQ(handle->readNow("volume"), MpvValue(40.0));
}

} // namespace
