#include "player/SubtitleCharsets.h"

#include "support/TestLog.h"

#include <gtest/gtest.h>

#include <set>

TEST(SubtitleCharsetsTest, CodesAndNamesGiveTheTextOfTheCode)
{
    EXPECT_EQ(SubtitleCharsets::code("1251"), QStringLiteral("1251"));
    EXPECT_EQ(SubtitleCharsets::code(" 936 "), QStringLiteral("936"));
    EXPECT_EQ(SubtitleCharsets::code("Cyrillic"), QStringLiteral("1251"));
    EXPECT_EQ(SubtitleCharsets::code("japanese"), QStringLiteral("932"));
    EXPECT_EQ(SubtitleCharsets::code("Auto"), QStringLiteral("0"));
    EXPECT_EQ(SubtitleCharsets::code(""), QStringLiteral("0"));
    EXPECT_TRUE(TestLog::infoLines().isEmpty());
}

TEST(SubtitleCharsetsTest, WhatIsNeitherIsToldAndFoundOutForEachFile)
{
    for (const char *text : {"Klingon", "-5", "70000", "1e3", "12 51"})
        EXPECT_EQ(SubtitleCharsets::code(text), QStringLiteral("0")) << text;
    EXPECT_EQ(TestLog::infoLines().size(), 5);
}

TEST(SubtitleCharsetsTest, EachRowHasACodeAndANameOfItsOwn)
{
    std::set<int> codes;
    std::set<std::string> names;
    for (const SubtitleCharsets::Row &row : SubtitleCharsets::rows()) {
        EXPECT_TRUE(codes.insert(row.codePage).second) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
    EXPECT_EQ(SubtitleCharsets::rows().front().codePage, 0);
}
