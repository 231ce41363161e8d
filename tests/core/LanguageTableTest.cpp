#include "core/LanguageTable.h"

#include <QSet>

#include <gtest/gtest.h>

namespace {

TEST(LanguageTableTest, NamesStandInTheOrderOfThePage)
{
    QStringList names;
    for (const LanguageEntry &entry : LanguageTable::entries())
        names << entry.name;
    EXPECT_EQ(names, (QStringList{"English (United States)",
                                  "Arablic (KSA)",
                                  "Bulgarian",
                                  "Catalan (Spain)",
                                  "Chinese (PRC)",
                                  "Chinese Traditional (Taiwan)",
                                  "Czech",
                                  "Denmark",
                                  "Dutch (Netherlands)",
                                  "Finnish (Suomi)",
                                  "French (France)",
                                  "German (Germany)",
                                  "Greek",
                                  "Hrvatski (Croatian)",
                                  "Hungarian",
                                  "Italiano (Italia)",
                                  "Japanese",
                                  "korean",
                                  "Norwegian",
                                  "Polish (Poland)",
                                  "Portuguese (Brazil)",
                                  "Portuguese (Portugal)",
                                  "Romanian",
                                  "Russia",
                                  "Slovak"}));
}

TEST(LanguageTableTest, NamesAndCodesLeadToEachOther)
{
    QSet<QString> codes;
    for (const auto *list : {&LanguageTable::entries(), &LanguageTable::interfaceLanguages()}) {
        for (const LanguageEntry &entry : *list) {
            EXPECT_EQ(entry.code.size(), 3);
            EXPECT_EQ(LanguageTable::codeOf(entry.name), entry.code);
            EXPECT_EQ(LanguageTable::nameOf(entry.code), entry.name);
            codes << entry.code;
        }
    }
    for (const char *code : {"ENU", "CHS", "CHT", "FRA", "GER", "JPN", "POL", "ESP"})
        EXPECT_TRUE(codes.contains(code)) << code;
}

TEST(LanguageTableTest, UnknownNamesAndCodesGiveNothing)
{
    EXPECT_EQ(LanguageTable::codeOf("Klingon"), "");
    EXPECT_EQ(LanguageTable::nameOf("ZZZ"), "");
    EXPECT_EQ(LanguageTable::nameOf(""), "");
}

} // namespace
