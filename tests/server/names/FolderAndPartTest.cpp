#include "names/CameraName.h"
#include "names/DiscStructure.h"
#include "names/ExtraName.h"
#include "names/MediaSuffix.h"
#include "names/MoviePart.h"
#include "names/MovieVersion.h"
#include "names/SeasonFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

struct SeasonRow {
    const char *name;
    int number;
    const char *series;
};

TEST(SeasonFolderTest, SeasonsAreReadInManyLanguages)
{
    const SeasonRow rows[] = {
        {"Season 1", 1, ""},
        {"season 01", 1, ""},
        {"Season1", 1, ""},
        {"Season.02", 2, ""},
        {"Season 2010", 2010, ""},
        {"S01", 1, ""},
        {"s3", 3, ""},
        {"Staffel 1", 1, ""},
        {"1. Staffel", 1, ""},
        {"Saison 4", 4, ""},
        {"Temporada 1", 1, ""},
        {"Stagione 2", 2, ""},
        {"Seizoen 2", 2, ""},
        {"S\xc3\xa4song 2", 2, ""},
        {"2nd Season", 2, ""},
        {"Series 5", 5, ""},
        {"第1季", 1, ""},
        {"第 2 季", 2, ""},
        {"第十二季", 12, ""},
        {"第二十季", 20, ""},
        {"Сезон 3", 3, ""},
        {"3 сезон", 3, ""},
        {"시즌 2", 2, ""},
        {"Specials", 0, ""},
        {"SPECIALS", 0, ""},
        {"Season 0", 0, ""},
        {"Season 00", 0, ""},
        {"Foo Season 1", 1, "Foo"},
        {"Foo - Season 1", 1, "Foo"},
        {"Foo.S01.1080p.BluRay", 1, "Foo"},
        {"Foo S02", 2, "Foo"},
        {"某剧第1季", 1, "某剧"},
        {"Season 1 (2010)", 1, ""},
        {"Season 1 - The Start", 1, ""},
        {"Season 1 [1080p]", 1, ""},
        {"Season.1.(2010)", 1, ""},
        {"Season 1 1080p (2010)", 1, ""},
    };
    for (const SeasonRow &row : rows) {
        const SeasonFolder folder = SeasonFolder::parse(QString::fromUtf8(row.name));
        EXPECT_EQ(folder.number, row.number) << row.name;
        EXPECT_EQ(folder.series.toStdString(), row.series) << row.name;
    }
}

TEST(SeasonFolderTest, OtherFoldersAreNone)
{
    for (const char *name : {"",
                             "Season",
                             "Seasons",
                             "Seasons of Love",
                             "Season of the Witch",
                             "Season 1 of Love",
                             "Series 7 - The Contenders (2001)",
                             "Series 7 The Contenders (2001)",
                             "Series 7: The Contenders (2001)",
                             "S",
                             "S01E02",
                             "Staff 1",
                             "2010",
                             "1",
                             "Film (2010)",
                             "Series",
                             "Special Forces",
                             "第季",
                             "第",
                             "Season 99999",
                             "Seasoning 2",
                             "ss01",
                             "...",
                             "\n\n"})
        EXPECT_FALSE(SeasonFolder::parse(QString::fromUtf8(name)).isValid()) << name;
}

struct PartRow {
    const char *name;
    const char *stem;
    int number;
};

TEST(MoviePartTest, PartsShareTheirStem)
{
    const PartRow rows[] = {
        {"Film CD1", "Film", 1},
        {"Film.cd2", "Film", 2},
        {"Film-cd 3", "Film", 3},
        {"Film (2010) part1", "Film (2010)", 1},
        {"Film_pt2", "Film", 2},
        {"Film disc a", "Film", 1},
        {"Film.disk.b", "Film", 2},
        {"Film dvd2", "Film", 2},
        {"Film (Part 2)", "Film", 2},
        {"Film [cd1]", "Film", 1},
        {"Film.CD1.DVDRip-GRP", "Film.DVDRip-GRP", 1},
        {"Disc 1", "", 1},
        {"Part of Me part 2", "Part of Me", 2},
        {"Film part d", "Film", 4},
    };
    for (const PartRow &row : rows) {
        const MoviePart part = MoviePart::parse(row.name);
        EXPECT_EQ(part.number, row.number) << row.name;
        EXPECT_EQ(part.stem, row.stem) << row.name;
    }
}

TEST(MoviePartTest, OtherNamesAreNoParts)
{
    for (const char *name : {"", "Film", "Film part", "Film part e", "Film part two", "Filmcd1", "Film cd0",
                             "Film cd123", "Partner 2", "ptx", "DVDRip", "Film part about", "cdx"})
        EXPECT_FALSE(MoviePart::parse(name).isValid()) << name;
}

TEST(MovieVersionTest, ResolutionsComeFirstFromTheHighestDown)
{
    const QString folder = "Film (2010)";
    QStringList names{"Film (2010) - Directors Cut", "Film (2010) - 720p",  "Film (2010)",
                      "Film (2010) - 2160p",         "Film (2010) [1080i]", "Film (2010) - 4K",
                      "Film.2010.480p.DVDRip"};
    std::sort(names.begin(), names.end(), [&folder](const QString &a, const QString &b) {
        return MovieVersion::parse(a, folder) < MovieVersion::parse(b, folder);
    });
    const QStringList wanted{"Film (2010) - 2160p",        "Film (2010) - 4K",      "Film (2010) [1080i]",
                             "Film (2010) - 720p",         "Film.2010.480p.DVDRip", "Film (2010)",
                             "Film (2010) - Directors Cut"};
    EXPECT_EQ(names, wanted);
}

TEST(MovieVersionTest, OtherFilmsOfAFolderAreNoVersions)
{
    for (const char *name :
         {"Other", "Film (2010)x", "Film (2010) 2", "Film (2011)", "Film", "Film (2010) The Return"})
        EXPECT_FALSE(MovieVersion::parse(name, "Film (2010)").isValid()) << name;
    EXPECT_FALSE(MovieVersion::parse("Film", "").isValid());
}

struct ExtraRow {
    const char *name;
    ExtraName::Certainty certainty;
    const char *stem;
};

TEST(ExtraNameTest, SuffixesAndWholeNamesAreKnown)
{
    constexpr ExtraName::Certainty Sure = ExtraName::Certainty::Sure;
    constexpr ExtraName::Certainty Beside = ExtraName::Certainty::BesideFilm;
    constexpr ExtraName::Certainty None = ExtraName::Certainty::None;
    const ExtraRow rows[] = {
        {"trailer", Sure, ""},
        {"Trailer 2", Sure, ""},
        {"Film-trailer", Sure, "Film"},
        {"sample", Sure, ""},
        {"Film.sample", Sure, "Film"},
        {"sample-film", Sure, "film"},
        {"theme", Sure, ""},
        {"Film-featurette", Sure, "Film"},
        {"Film-behindthescenes", Sure, "Film"},
        {"Film-deleted", Beside, "Film"},
        {"Film-short", Beside, "Film"},
        {"Film-extra", Beside, "Film"},
        {"Film-clip", Beside, "Film"},
        {"Film clip", None, ""},
        {"The Trailer Park", None, ""},
        {"Free Sample", None, ""},
        {"Film short", None, ""},
        {"The.Big.Short", None, ""},
        {"-trailer", None, ""},
        {"", None, ""},
        {"trailers of old", None, ""},
    };
    for (const ExtraRow &row : rows) {
        const ExtraName::File file = ExtraName::ofFile(row.name);
        EXPECT_EQ(int(file.certainty), int(row.certainty)) << row.name;
        EXPECT_EQ(file.stem, row.stem) << row.name;
    }
}

TEST(ExtraNameTest, FoldersAreKnown)
{
    for (const char *name :
         {"trailers", "Behind The Scenes", "deleted scenes", "Featurettes", "Sample", "samples"})
        EXPECT_EQ(int(ExtraName::ofFolder(name)), int(ExtraName::Certainty::Sure)) << name;
    for (const char *name : {"interviews", "scenes", "Shorts", "clips", "Extras", "other"})
        EXPECT_EQ(int(ExtraName::ofFolder(name)), int(ExtraName::Certainty::BesideFilm)) << name;
    for (const char *name : {"", "Others", "Film (2010)", "Extra Terrestrials"})
        EXPECT_EQ(int(ExtraName::ofFolder(name)), int(ExtraName::Certainty::None)) << name;
}

TEST(CameraNameTest, CamerasAndRecordersAreKnown)
{
    for (const char *name : {"IMG_1234",
                             "VID_20200101_120000",
                             "DSC00012",
                             "MVI_0042",
                             "GOPR0001",
                             "GH010123",
                             "20200101_120000",
                             "2020-01-01 12.00.00",
                             "PXL_20210101_123456789",
                             "VID-20200512-WA0003",
                             "WhatsApp Video 2020-05-01 at 12.00.00",
                             "Screen Recording 2020-01-01 at 10.00.00",
                             "DJI_0001",
                             "P1010001",
                             "MOV_0001",
                             "00012",
                             "img_1234(1)",
                             "Screencast from 2020-01-01 12-00-00",
                             "Bildschirmaufnahme 2020-01-01 um 12.00.00",
                             "Grabación de pantalla 2020-01-01 a las 12.00.00"})
        EXPECT_TRUE(CameraName::isCamera(name)) << name;
    for (const char *name : {"", "Image of Love", "Film (2010)", "2012", "1917", "300", "VID", "IMG",
                             "Video Days 2010", "Morning 12345", "Pi", "P2", "Clip", "20209999_120000"})
        EXPECT_FALSE(CameraName::isCamera(name)) << name;
    EXPECT_TRUE(CameraName::isHome("Anna's Birthday 2015"));
    EXPECT_FALSE(CameraName::isHome("Northern Light 2015"));
}

TEST(DiscStructureTest, EachStructureHasItsPseudoFile)
{
    EXPECT_EQ(DiscStructure::pseudoFile("VIDEO_TS", {"VIDEO_TS.IFO", "VTS_01_1.VOB"}), "folder.ifo");
    EXPECT_EQ(DiscStructure::pseudoFile("video_ts", {"video_ts.ifo"}), "folder.ifo");
    EXPECT_EQ(DiscStructure::pseudoFile("BDMV", {"index.bdmv", "STREAM"}), "folder.bdmv");
    EXPECT_EQ(DiscStructure::pseudoFile("BDMV", {"INDEX.BDM", "STREAM"}), "folder.bdm");
    EXPECT_EQ(DiscStructure::pseudoFile("BDAV", {"info.bdav"}), "folder.bdav");
    EXPECT_EQ(DiscStructure::pseudoFile("DVD_RTAV", {"VR_MANGR.IFO"}), "folder.dvdvr");
    EXPECT_EQ(DiscStructure::pseudoFile("VIDEO_TS", {}), "");
    EXPECT_EQ(DiscStructure::pseudoFile("Film", {"VIDEO_TS.IFO"}), "");
    EXPECT_TRUE(DiscStructure::isStructure("bdmv"));
    EXPECT_FALSE(DiscStructure::isStructure("bdmv2"));
}

TEST(MediaSuffixTest, SuffixesTellTheKind)
{
    EXPECT_EQ(MediaSuffix::kindOf("a.MKV"), MediaSuffix::Kind::Video);
    EXPECT_EQ(MediaSuffix::kindOf("a.iso"), MediaSuffix::Kind::DiscImage);
    EXPECT_EQ(MediaSuffix::kindOf("a.flac"), MediaSuffix::Kind::Audio);
    EXPECT_EQ(MediaSuffix::kindOf("a.jpeg"), MediaSuffix::Kind::Image);
    EXPECT_EQ(MediaSuffix::kindOf("a.en.srt"), MediaSuffix::Kind::Subtitle);
    EXPECT_EQ(MediaSuffix::kindOf("a.nfo"), MediaSuffix::Kind::Nfo);
    EXPECT_EQ(MediaSuffix::kindOf("a.cue"), MediaSuffix::Kind::Cue);
    for (const char *name : {"", ".", ".mkv", "mkv", "a.", "a.mkv.part", "a.exe", "a.m\nkv"})
        EXPECT_EQ(MediaSuffix::kindOf(name), MediaSuffix::Kind::None) << name;
    EXPECT_LT(MediaSuffix::imageRank("a.jpg"), MediaSuffix::imageRank("a.png"));
    EXPECT_EQ(MediaSuffix::imageRank("a.txt"), -1);
}

} // namespace
