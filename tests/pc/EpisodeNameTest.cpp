#include "playcontrol/EpisodeName.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

struct Row {
    const char *file;
    const char *folder;
    const char *show;
    int season;
    int first;
    int last;
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.folder << "/" << row.file;
}

class EpisodeSpelling : public testing::TestWithParam<Row> {};

TEST_P(EpisodeSpelling, IsRead)
{
    const Row &row = GetParam();
    const auto name = EpisodeName::parse(row.file, row.folder);
    ASSERT_TRUE(name);
    EXPECT_EQ(name->show.toStdString(), row.show);
    EXPECT_EQ(name->season, row.season);
    EXPECT_EQ(name->first, row.first);
    EXPECT_EQ(name->last, row.last);
}

INSTANTIATE_TEST_SUITE_P(
    All, EpisodeSpelling,
    testing::Values(
        Row{"The Long Road S01E02", "", "the long road", 1, 2, 2},
        Row{"the.long.road.s01.e02.720p.x264", "", "the long road", 1, 2, 2},
        Row{"The_Long_Road - s2e10 - A Title", "", "the long road", 2, 10, 10},
        Row{"Show S01E01-E02", "", "show", 1, 1, 2}, Row{"Show S01E01E02", "", "show", 1, 1, 2},
        Row{"Show S01E01-02 1080p", "", "show", 1, 1, 2}, Row{"Show 2x05 Title", "Season 2", "show", 2, 5, 5},
        Row{"Show 1920x1080 1x07", "", "show 1920x1080", 1, 7, 7}, Row{"Season 3 Episode 9", "", "", 3, 9, 9},
        Row{"Show Season 3, Episode 9", "", "show", 3, 9, 9}, Row{"Ep 04", "Staffel 02", "", 2, 4, 4},
        Row{"Show ep04", "Show", "show", 1, 4, 4}, Row{"E01 Pilot", "S03", "", 3, 1, 1},
        Row{"S00E03 Making of", "Specials", "", 0, 3, 3}, Row{"Show (2010) S02E01", "", "show 2010", 2, 1, 1},
        Row{"Show S2019E101", "", "show", 2019, 101, 101}));

class NoEpisode : public testing::TestWithParam<const char *> {};

TEST_P(NoEpisode, IsFoundInTheName)
{
    EXPECT_FALSE(EpisodeName::parse(GetParam(), "Films"));
}

INSTANTIATE_TEST_SUITE_P(All, NoEpisode,
                         testing::Values("", "Northern Line (2021)", "Film 1920x1080", "Film.2019.1080p.x264",
                                         "Ocean 11", "Wall E", "Se7en", "Film H264 DTS5.1", "Heroes", "Se1 e",
                                         "Recipe 12", "Wall E 2008"));

} // namespace

TEST(EpisodeNameTest, SeasonOfAFolder)
{
    EXPECT_EQ(EpisodeName::seasonOfFolder("Season 01"), 1);
    EXPECT_EQ(EpisodeName::seasonOfFolder("season.12 (1999)"), 12);
    EXPECT_EQ(EpisodeName::seasonOfFolder("Staffel 3"), 3);
    EXPECT_EQ(EpisodeName::seasonOfFolder("S04"), 4);
    EXPECT_EQ(EpisodeName::seasonOfFolder("Specials"), 0);
    EXPECT_EQ(EpisodeName::seasonOfFolder("Seasonal films"), -1);
    EXPECT_EQ(EpisodeName::seasonOfFolder("Show"), -1);
}

TEST(EpisodeNameTest, AFileOfSeveralEpisodesIsFollowedByTheOneBehindItsLast)
{
    const EpisodeName both = *EpisodeName::parse("Show S01E01-E02");
    EXPECT_FALSE(EpisodeName::parse("Show S01E02")->isAfter(both));
    EXPECT_TRUE(EpisodeName::parse("Show S01E03")->isAfter(both));
    EXPECT_TRUE(EpisodeName::parse("Show S02E01")->isAfter(both));
}
