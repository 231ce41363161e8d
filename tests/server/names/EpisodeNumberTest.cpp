#include "names/EpisodeNumber.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char *name;
    int season;
    int episode;
    int last;
    const char *series;
    const char *title;
};

class EpisodeNumberTest : public testing::TestWithParam<Row> {};

TEST_P(EpisodeNumberTest, TheNumberIsReadWithoutHelp)
{
    const Row &row = GetParam();
    const EpisodeNumber number = EpisodeNumber::parse(QString::fromUtf8(row.name));
    EXPECT_EQ(number.source, EpisodeNumber::Source::Explicit) << row.name;
    EXPECT_EQ(number.season, row.season) << row.name;
    EXPECT_EQ(number.episode, row.episode) << row.name;
    EXPECT_EQ(number.lastEpisode, row.last) << row.name;
    EXPECT_EQ(number.series.toStdString(), row.series) << row.name;
    EXPECT_EQ(number.title.toStdString(), row.title) << row.name;
}

const Row explicitRows[] = {
    {"Foo S01E02", 1, 2, 2, "Foo", ""},
    {"Foo.S01E02.The.Start.1080p.WEB-DL.x264-GRP", 1, 2, 2, "Foo", "The Start"},
    {"Foo.S01E02.1080p.WEB-DL.x264-GRP", 1, 2, 2, "Foo", ""},
    {"Foo.S01E02.PROPER.HDTV.x264", 1, 2, 2, "Foo", ""},
    {"foo.s01e02.720p", 1, 2, 2, "foo", ""},
    {"Foo s01.e02", 1, 2, 2, "Foo", ""},
    {"Foo - S01 E02 - The Start", 1, 2, 2, "Foo", "The Start"},
    {"Foo_S01_E02", 1, 2, 2, "Foo", ""},
    {"Foo S1E2", 1, 2, 2, "Foo", ""},
    {"Foo S01Ep02", 1, 2, 2, "Foo", ""},
    {"Foo S01x02", 1, 2, 2, "Foo", ""},
    {"Foo S00E05 Making of", 0, 5, 5, "Foo", "Making of"},
    {"Foo S2010E12", 2010, 12, 12, "Foo", ""},
    {"Foo S01E100", 1, 100, 100, "Foo", ""},
    {"Foo (2010) - S01E02 - The Start", 1, 2, 2, "Foo", "The Start"},
    {"S01E02", 1, 2, 2, "", ""},
    {"S01E02 - The Start", 1, 2, 2, "", "The Start"},
    {"Foo S01E02v2", 1, 2, 2, "Foo", "v2"},
    {"Foo S01E01-E03", 1, 1, 3, "Foo", ""},
    {"Foo S01E01E02", 1, 1, 2, "Foo", ""},
    {"Foo S01E01E02E03", 1, 1, 3, "Foo", ""},
    {"Foo S01E01-03 - The Start", 1, 1, 3, "Foo", "The Start"},
    {"Foo S01E01-S01E03", 1, 1, 3, "Foo", ""},
    {"Foo S01E01+E02", 1, 1, 2, "Foo", ""},
    {"Foo S01E01 - E02", 1, 1, 2, "Foo", ""},
    {"Foo S01E01-720p", 1, 1, 1, "Foo", ""},
    {"Foo S01E01-1080p.x264", 1, 1, 1, "Foo", ""},
    {"Foo S01E05-02", 1, 5, 5, "Foo", "02"},
    {"Foo S01E01 - 24 Hours", 1, 1, 1, "Foo", "24 Hours"},
    {"24 S02E03", 2, 3, 3, "24", ""},
    {"The 4400 S01E02", 1, 2, 2, "The 4400", ""},
    {"1x02 - The Start", 1, 2, 2, "", "The Start"},
    {"Foo 1x02", 1, 2, 2, "Foo", ""},
    {"Foo - 12x103 - The Start", 12, 103, 103, "Foo", "The Start"},
    {"Foo [1x02] The Start", 1, 2, 2, "Foo", "The Start"},
    {"Foo 1x02-03", 1, 2, 3, "Foo", ""},
    {"Foo 1x02-1x04", 1, 2, 4, "Foo", ""},
    {"Foo 1x02x03", 1, 2, 3, "Foo", ""},
    {"Foo Season 3 Episode 9", 3, 9, 9, "Foo", ""},
    {"Foo - Season 3, Episode 9 - The Start", 3, 9, 9, "Foo", "The Start"},
    {"Foo.Season.03.Ep.09", 3, 9, 9, "Foo", ""},
    {"Foo Staffel 3 Folge 9", 3, 9, 9, "Foo", ""},
    {"Foo Saison 3 \xc3\x89pisode 9", 3, 9, 9, "Foo", ""},
    {"Foo Temporada 2 Cap\xc3\xadtulo 4", 2, 4, 4, "Foo", ""},
    {"\xe6\x9f\x90\xe5\x89\xa7\xe7\xac\xac"
     "1"
     "\xe5\xad\xa3\xe7\xac\xac"
     "2"
     "\xe9\x9b\x86",
     1, 2, 2, "\xe6\x9f\x90\xe5\x89\xa7", ""},
    {"Foo ep01", -1, 1, 1, "Foo", ""},
    {"Foo Ep. 12 - The Start", -1, 12, 12, "Foo", "The Start"},
    {"Foo E07", -1, 7, 7, "Foo", ""},
    {"Episode 9", -1, 9, 9, "", ""},
    {"Foo Episode 9-10", -1, 9, 10, "Foo", ""},
};
INSTANTIATE_TEST_SUITE_P(Explicit, EpisodeNumberTest, testing::ValuesIn(explicitRows));

TEST(EpisodeNumberNoneTest, WhatIsNoEpisodeGivesNone)
{
    for (const char *name : {"Northern Light",
                             "Northern Light (2010)",
                             "Northern Light 1080p",
                             "Northern.Light.720p.x264",
                             "Film 1920x1080",
                             "Film 640x480",
                             "Film 16x9",
                             "Film 4x4",
                             "Film DD5.1",
                             "Film h.265",
                             "Film h264",
                             "Apollo 13",
                             "Ocean's 11",
                             "300",
                             "1408",
                             "24",
                             "2012",
                             "Se7en",
                             "S1m0ne",
                             "s",
                             "S01",
                             "E",
                             "Film e5",
                             "Season 3",
                             "IMG_1234",
                             "VID_20200101_120000",
                             "2020-05-12",
                             "12.05.2010",
                             "2020-05-12 Birthday",
                             "S999999E01",
                             "S01E999999",
                             "Films01e02x",
                             "x264",
                             "ep",
                             "Episode",
                             "Episode One",
                             "",
                             "....",
                             "1x",
                             "x02",
                             "99999999999999999999",
                             "[GRP] Northern Light (2010) [1080p]",
                             "[GRP]",
                             "[GRP] - 12",
                             "Film [12]",
                             "Part 2",
                             "cd1"})
        EXPECT_EQ(EpisodeNumber::parse(QString::fromUtf8(name)).source, EpisodeNumber::Source::None) << name;
}

TEST(EpisodeNumberTest, ATitleWithAYearInRoundBracketsBehindAWordOrACrossIsAFilms)
{
    const struct {
        const char *name;
        bool episode;
    } rows[] = {
        {"Star Wars Episode 4 (1977)", false},
        {"Saga Episode 4 - A Title (1977) 1080p", false},
        {"10x10 (2018)", false},
        {"Show S01E02 (2010)", true},
        {"Show Season 1 Episode 2 (2010)", true},
        {"Show 1x02 - Title (2010)", true},
        {"Show (2010) Episode 4", true},
        {"Show (2010) 1x02", true},
        {"Show Episode 4 2010", true},
    };
    EpisodeNumber::Surroundings around;
    around.show = true;
    for (const auto &row : rows) {
        EXPECT_EQ(EpisodeNumber::parse(row.name).isValid(), row.episode) << row.name;
        EXPECT_TRUE(EpisodeNumber::parse(row.name, around).isValid()) << row.name;
    }
}

struct DateRow {
    const char *name;
    int year;
    int month;
    int day;
    const char *title;
};

TEST(EpisodeNumberDateTest, DailyShowsAreReadByTheirDate)
{
    const DateRow rows[] = {
        {"Evening Talk 2010.05.12", 2010, 5, 12, ""},
        {"Evening.Talk.2010.05.12.720p.HDTV", 2010, 5, 12, ""},
        {"Evening Talk - 2010-05-12 - A Guest", 2010, 5, 12, "A Guest"},
        {"Evening Talk 2010 05 12 A Guest", 2010, 5, 12, "A Guest"},
        {"Evening Talk 12.05.2010", 2010, 5, 12, ""},
        {"Evening_Talk_31-12-1999", 1999, 12, 31, ""},
        {"Evening Talk 1.5.2010", 2010, 5, 1, ""},
    };
    for (const DateRow &row : rows) {
        const EpisodeNumber number = EpisodeNumber::parse(row.name);
        EXPECT_EQ(number.source, EpisodeNumber::Source::Date) << row.name;
        EXPECT_EQ(number.date, QDate(row.year, row.month, row.day)) << row.name;
        EXPECT_EQ(number.series, "Evening Talk") << row.name;
        EXPECT_EQ(number.title, row.title) << row.name;
    }
}

TEST(EpisodeNumberDateTest, DaysThatDoNotExistAreNoDates)
{
    for (const char *name :
         {"Evening Talk 2010.13.12", "Evening Talk 2010.02.30", "Evening Talk 32.01.2010",
          "Evening Talk 2010.05-12", "Evening Talk 3010.05.12", "Evening Talk 2010.05.123"})
        EXPECT_FALSE(EpisodeNumber::parse(name).isValid()) << name;
}

TEST(EpisodeNumberDateTest, ADateAloneCountsInsideASeries)
{
    EpisodeNumber::Surroundings around;
    around.show = true;
    EXPECT_EQ(EpisodeNumber::parse("2010-05-12", around).date, QDate(2010, 5, 12));
}

struct BareRow {
    const char *name;
    bool show;
    int folderSeason;
    const char *series;
    EpisodeNumber::Source source;
    int season;
    int episode;
    int last;
};

class BareNumberTest : public testing::TestWithParam<BareRow> {};

TEST_P(BareNumberTest, TheFoldersAroundDecide)
{
    const BareRow &row = GetParam();
    EpisodeNumber::Surroundings around;
    around.show = row.show;
    around.season = row.folderSeason;
    around.series = QString::fromUtf8(row.series);
    const EpisodeNumber number = EpisodeNumber::parse(QString::fromUtf8(row.name), around);
    EXPECT_EQ(int(number.source), int(row.source)) << row.name;
    EXPECT_EQ(number.season, row.season) << row.name;
    EXPECT_EQ(number.episode, row.episode) << row.name;
    EXPECT_EQ(number.lastEpisode, row.last) << row.name;
}

constexpr EpisodeNumber::Source None = EpisodeNumber::Source::None;
constexpr EpisodeNumber::Source Absolute = EpisodeNumber::Source::Absolute;
constexpr EpisodeNumber::Source Guess = EpisodeNumber::Source::Guess;

const BareRow bareRows[] = {
    {"01 - Title", true, 1, "Foo", Absolute, 1, 1, 1},
    {"01", true, 2, "Foo", Absolute, 2, 1, 1},
    {"1. Title", true, 2, "Foo", Absolute, 2, 1, 1},
    {"01 Apollo 13", true, 1, "Foo", Absolute, 1, 1, 1},
    {"07-08 Title", true, 1, "Foo", Absolute, 1, 7, 8},
    {"Foo - 05", true, 1, "Foo", Absolute, 1, 5, 5},
    {"Foo - 05v2", true, 1, "Foo", Absolute, 1, 5, 5},
    {"Foo 05 1080p x264", true, 1, "Foo", Absolute, 1, 5, 5},
    {"Foo 05 DD 5.1", true, 1, "Foo", Absolute, 1, 5, 5},
    {"Foo 05 h 264", true, 1, "Foo", Absolute, 1, 5, 5},
    {"24 - 05", true, 1, "24", Absolute, 1, 5, 5},
    {"24 05", true, 1, "24", Absolute, 1, 5, 5},
    {"The 100 - 05", true, 1, "The 100", Absolute, 1, 5, 5},
    {"Foo 102", true, 1, "Foo", Guess, 1, 2, 2},
    {"102", true, 1, "Foo", Guess, 1, 2, 2},
    {"1012", true, 10, "Foo", Guess, 10, 12, 12},
    {"302", true, 1, "Foo", Absolute, 1, 302, 302},
    {"Foo 889", true, -1, "Foo", Absolute, -1, 889, 889},
    {"Foo 102", true, -1, "Foo", Guess, 1, 2, 2},
    {"Foo - 102", true, -1, "Foo", Absolute, -1, 102, 102},
    {"Foo 12", true, -1, "Foo", Absolute, -1, 12, 12},
    {"Foo 1234", true, -1, "Foo", Absolute, -1, 1234, 1234},
    {"Foo 2010", true, -1, "Foo", None, -1, -1, -1},
    {"Foo 1080", true, -1, "Foo", None, -1, -1, -1},
    {"Foo 720p", true, 1, "Foo", None, -1, -1, -1},
    {"Foo (12)", true, -1, "Foo", None, -1, -1, -1},
    {"Foo 12345", true, -1, "Foo", None, -1, -1, -1},
    {"Foo", true, 1, "Foo", None, -1, -1, -1},
    {"[GRP] Foo - 12 [1080p]", false, -1, "", Absolute, -1, 12, 12},
    {"[GRP] Foo - 12v2 (BD 720p) [A1B2C3D4]", false, -1, "", Absolute, -1, 12, 12},
    {"[GRP]_Foo_-_12_[720p]", true, -1, "Foo", Absolute, -1, 12, 12},
    {"[GRP] Foo 12", false, -1, "", None, -1, -1, -1},
    {"[GRP] Foo - 112", false, -1, "", Absolute, -1, 112, 112},
    {"Foo - 12", false, -1, "", None, -1, -1, -1},
    {"Foo 102", false, -1, "", None, -1, -1, -1},
};
INSTANTIATE_TEST_SUITE_P(Bare, BareNumberTest, testing::ValuesIn(bareRows));

TEST(EpisodeNumberNoneTest, NamesOfAnyLengthEndSoon)
{
    EpisodeNumber::Surroundings around;
    around.show = true;
    around.series = QString(4096, QLatin1Char('1'));
    for (const char *part :
         {"S01E01", "E01", "1x02", "season 1 ", "2010.05.", "[", "(", "第1", "1 - ", "ep", "\xe2\x80\xae"}) {
        const EpisodeNumber number = EpisodeNumber::parse(QString::fromUtf8(part).repeated(4096), around);
        EXPECT_LE(number.lastEpisode - number.episode, 50) << part;
    }
}

} // namespace
