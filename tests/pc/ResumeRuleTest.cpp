#include "playcontrol/ResumeRule.h"

#include <gtest/gtest.h>

TEST(ResumeRuleTest, SourceOfExactly120SecondsStoresNoPosition)
{
    for (int position = 0; position <= 120; ++position)
        EXPECT_FALSE(ResumeRule::storesPosition(position, 120)) << position;
}

TEST(ResumeRuleTest, SourceOf121SecondsStoresNotAtAll)
{
    for (int position = 0; position <= 121; ++position)
        EXPECT_FALSE(ResumeRule::storesPosition(position, 121)) << position;
}

TEST(ResumeRuleTest, SourceOf122SecondsStoresAt61Alone)
{
    for (int position = 0; position <= 122; ++position)
        EXPECT_EQ(ResumeRule::storesPosition(position, 122), position == 61) << position;
}

TEST(ResumeRuleTest, PositionMustLieMoreThanAMinuteFromBothEnds)
{
    const struct {
        qint64 position, total;
        bool stores;
    } rows[] = {{60, 3600, false},   {61, 3600, true},    {3539, 3600, true}, {3540, 3600, false},
                {3600, 3600, false}, {4000, 3600, false}, {-5, 3600, false},  {100, 0, false}};
    for (const auto &row : rows)
        EXPECT_EQ(ResumeRule::storesPosition(row.position, row.total), row.stores) << row.position;
}

TEST(ResumeRuleTest, TimesAreCutToWholeSeconds)
{
    EXPECT_EQ(ResumeRule::secondsOf(61999), 61);
    EXPECT_EQ(ResumeRule::secondsOf(999), 0);
    EXPECT_EQ(ResumeRule::secondsOf(-1), 0);
}

TEST(ResumeRuleTest, DriveLetterIsKeptUnderTheNameOfItsDisc)
{
    EXPECT_EQ(ResumeRule::storeKey("D", "NORTHERN_LINE"), "NORTHERN_LINE");
    EXPECT_EQ(ResumeRule::storeKey("D", ""), "D");
    EXPECT_EQ(ResumeRule::storeKey("/films/a.mkv", "NORTHERN_LINE"), "/films/a.mkv");
}

TEST(ResumeRuleTest, OnlyRememberedPositionsAreTheStart)
{
    EXPECT_EQ(ResumeRule::startSeconds(true, 700), 700);
    EXPECT_EQ(ResumeRule::startSeconds(false, 700), 0);
    EXPECT_EQ(ResumeRule::startSeconds(true, -3), 0);
}

TEST(ResumeRuleTest, NoteIsForThePlayViewWithoutMenuWhenNothingIsRemembered)
{
    EXPECT_TRUE(ResumeRule::showsNote(true, std::nullopt, false));
    EXPECT_TRUE(ResumeRule::showsNote(true, false, false));
    EXPECT_FALSE(ResumeRule::showsNote(true, true, false));
    EXPECT_FALSE(ResumeRule::showsNote(false, false, false));
    EXPECT_FALSE(ResumeRule::showsNote(true, false, true));
}
