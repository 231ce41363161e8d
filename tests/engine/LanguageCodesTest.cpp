#include "engine/LanguageCodes.h"

#include <gtest/gtest.h>

TEST(LanguageCodesTest, OneLanguageHasManyNamesAndOneCode)
{
    for (const char *name : {"de", "DE", "ger", "deu", "German", "deutsch", "de-AT", "de_DE"})
        EXPECT_EQ(LanguageCodes::canonical(name), "ger") << name;
    for (const char *name : {"pt-BR", "ptb", "pt", "por", "Portuguese"})
        EXPECT_EQ(LanguageCodes::canonical(name), "por") << name;
    for (const char *name : {"zh", "zh-Hans", "zho", "chs", "cht", "中文", "简体"})
        EXPECT_EQ(LanguageCodes::canonical(name), "chi") << name;
    EXPECT_EQ(LanguageCodes::canonical("日本語"), "jpn");
    EXPECT_EQ(LanguageCodes::canonical("Français"), "fre");
}

TEST(LanguageCodesTest, WhatIsNoLanguageHasNoCode)
{
    for (const char *name :
         {"", " ", "-", "_", "xx", "1080p", "forced", "english subtitles", "x-en", "\xFF\xFE"})
        EXPECT_EQ(LanguageCodes::canonical(name), "") << name;
}

TEST(LanguageCodesTest, AListKeepsItsOrder)
{
    EXPECT_EQ(LanguageCodes::canonicalList("de,eng,nonsense,fr"),
              (std::vector<std::string>{"ger", "eng", "fre"}));
    EXPECT_TRUE(LanguageCodes::canonicalList("").empty());
    EXPECT_TRUE(LanguageCodes::canonicalList(",,").empty());
}
