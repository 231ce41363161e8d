#include "names/VideoName.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char *name;
    const char *title;
    int year;
};

class VideoNameTest : public testing::TestWithParam<Row> {};

TEST_P(VideoNameTest, TitleAndYearAreRead)
{
    const VideoName name = VideoName::parse(QString::fromUtf8(GetParam().name));
    EXPECT_EQ(name.title.toStdString(), GetParam().title) << GetParam().name;
    EXPECT_EQ(name.year, GetParam().year) << GetParam().name;
}

const Row plain[] = {
    {"Northern Light", "Northern Light", 0},
    {"Northern Light (2010)", "Northern Light", 2010},
    {"Northern Light [2010]", "Northern Light", 2010},
    {"Northern.Light.2010", "Northern Light", 2010},
    {"Northern_Light_2010", "Northern Light", 2010},
    {"Northern Light 2010", "Northern Light", 2010},
    {"Northern Light, 2010", "Northern Light", 2010},
    {"(2010) Northern Light", "Northern Light", 2010},
    {"2010 - Northern Light", "Northern Light", 2010},
    {"northern-light-over-water-2010", "northern light over water", 2010},
    {"Spider-Rose (2014)", "Spider-Rose", 2014},
    {"Dr. Winter (1964)", "Dr. Winter", 1964},
    {"S.P.I.N.E.2003.1080p.BluRay", "S.P.I.N.E.", 2003},
    {"E.G.the.Visitor.1982", "E.G. the Visitor", 1982},
    {"Who Goes There? (1951)", "Who Goes There?", 1951},
    {"Alles über Öl (1999)", "Alles über Öl", 1999},
    {"千の風 (2001)", "千の風", 2001},
    {"Сталкеры 1979", "Сталкеры", 1979},
    {"Part of Me (2012)", "Part of Me", 2012},
    {"10 (1979)", "10", 1979},
};
INSTANTIATE_TEST_SUITE_P(Plain, VideoNameTest, testing::ValuesIn(plain));

const Row releases[] = {
    {"Northern.Light.2010.1080p.BluRay.x264-GROUP", "Northern Light", 2010},
    {"Northern.Light.2010.PROPER.720p.WEB-DL.DD5.1.H.264-GRP", "Northern Light", 2010},
    {"Northern.Light.1080p.BluRay.x264-GROUP", "Northern Light", 0},
    {"Northern.Light.EXTENDED.1080p.BluRay.x264", "Northern Light", 0},
    {"Northern Light 1080p", "Northern Light", 0},
    {"Northern.Light.2010.DVDRip.XviD-GRP", "Northern Light", 2010},
    {"Northern.Light.DVDRip.2010", "Northern Light", 2010},
    {"Northern.Light.2010.2160p.UHD.BluRay.x265.10bit.HDR.TrueHD.7.1.Atmos-X", "Northern Light", 2010},
    {"[GRP] Northern Light (2010) [BD 1080p][AAC]", "Northern Light", 2010},
    {"[ www.site.example ] Northern Light 2010 HDRip", "Northern Light", 2010},
    {"Northern Light (Extended Edition) (2010)", "Northern Light", 2010},
    {"Northern Light (Unrated)", "Northern Light", 0},
    {"Northern Light (The Long Way)", "Northern Light (The Long Way)", 0},
    {"Northern Light (2010) [1080p] {Directors Cut}", "Northern Light", 2010},
    {"Northern.Light.1920x1080.hevc", "Northern Light", 0},
    {"Northern_Light_(2010)_[720p]", "Northern Light", 2010},
    {"Web of Days 2006 1080p", "Web of Days", 2006},
    {"The Final Cut (2004)", "The Final Cut", 2004},
    {"Extended Family (2010)", "Extended Family", 2010},
    {"Northern.Light.2010.MULTI.1080p.WEB.H264-GRP", "Northern Light", 2010},
    {"Northern.Light.2010.German.DL.1080p.BluRay.x264", "Northern Light", 2010},
    {"Northern.Light.3D.HSBS.1080p.BluRay", "Northern Light", 0},
};
INSTANTIATE_TEST_SUITE_P(Releases, VideoNameTest, testing::ValuesIn(releases));

const Row years[] = {
    {"2012", "2012", 0},
    {"2012 (2009)", "2012", 2009},
    {"1917.2019.1080p.BluRay", "1917", 2019},
    {"Harbour 2049 (2017)", "Harbour 2049", 2017},
    {"Harbour 2049", "Harbour 2049", 0},
    {"2001 A Star Voyage (1968)", "2001 A Star Voyage", 1968},
    {"2001 A Star Voyage", "2001 A Star Voyage", 0},
    {"Heroine.1984.2020.2160p.WEB-DL", "Heroine 1984", 2020},
    {"Class of 1999 (1990)", "Class of 1999", 1990},
    {"Northern Light (2010) 2012 remux", "Northern Light", 2010},
    {"Northern.Light.2010.1080p.2012", "Northern Light", 2010},
    {"Northern Light 20101", "Northern Light 20101", 0},
    {"Northern Light 1899", "Northern Light 1899", 0},
    {"Concert 2010-05-12", "Concert 2010-05-12", 0},
    {"Concert.12.05.2010", "Concert 12 05 2010", 0},
    {"Show (1999-2005)", "Show", 1999},
    {"Northern.Light.2010.5.1.x264", "Northern Light", 2010},
    {"1408 (2007)", "1408", 2007},
    {"300 (2006)", "300", 2006},
    {"x2010y", "x2010y", 0},
};
INSTANTIATE_TEST_SUITE_P(Years, VideoNameTest, testing::ValuesIn(years));

const Row hostile[] = {
    {"", "", 0},
    {"....", "", 0},
    {"----", "", 0},
    {"()", "()", 0},
    {"[]", "", 0},
    {"(2010)", "(2010)", 2010},
    {"[2010", "[2010", 0},
    {"12345678", "12345678", 0},
    {"99999999999999999999999999", "99999999999999999999999999", 0},
    {"Northern\nLight\t(2010)", "Northern Light", 2010},
    {"Northern\x01Light 2010", "Northern Light", 2010},
    {"\xe2\x80\xaeNorthern Light\xe2\x80\xac (2010)", "Northern Light", 2010},
    {"\"Northern\" 'Light' (2010)", "\"Northern\" 'Light'", 2010},
    {"'; DROP TABLE item; --", "'; DROP TABLE item", 0},
    {"<b>Northern</b> & Light (2010)", "<b>Northern</b> & Light", 2010},
    {"%s%n%1 (2010)", "%s%n%1", 2010},
    {"../../etc (2010)", "/ /etc", 2010},
    {"((((2010))))", "((((2010))))", 2010},
    {"[[[[x]]]]", "x", 0},
    {"😀 Film (2010)", "😀 Film", 2010},
};
INSTANTIATE_TEST_SUITE_P(Hostile, VideoNameTest, testing::ValuesIn(hostile));

struct IdentityRow {
    const char *name;
    const char *key;
    const char *value;
};

TEST(VideoNameIdentityTest, IdsInBracketsAreTakenFromTheTitle)
{
    const IdentityRow rows[] = {
        {"Northern Light (2010) [imdbid-tt0123456]", "imdb", "tt0123456"},
        {"Northern Light (2010) [tt0123456]", "imdb", "tt0123456"},
        {"Northern Light (2010) {tmdb-27205}", "tmdb", "27205"},
        {"Northern Light (2010) [tmdbid=27205]", "tmdb", "27205"},
        {"Northern Light [tvdbid-81189] (2010)", "tvdb", "81189"},
        {"{imdb-tt01234567} Northern Light (2010)", "imdb", "tt01234567"},
        {"Northern Light (2010) [IMDBID-TT0123456]", "imdb", "tt0123456"},
    };
    for (const IdentityRow &row : rows) {
        const VideoName name = VideoName::parse(row.name);
        EXPECT_EQ(name.title, "Northern Light") << row.name;
        EXPECT_EQ(name.year, 2010) << row.name;
        EXPECT_EQ(name.identities.value(row.key), row.value) << row.name;
        EXPECT_EQ(name.identities.size(), 1) << row.name;
    }
}

TEST(VideoNameIdentityTest, WhatIsNoIdIsNotTakenForOne)
{
    for (const char *text : {"F [tmdbid-]", "F [tmdbid-12a]", "F [imdbid-xx1]", "F [tt12]", "F [tmdb27205]",
                             "F {tmdb-99999999999}", "F [imdbid-../../x]", "F (tmdb-12)"})
        EXPECT_TRUE(VideoName::parse(text).identities.isEmpty()) << text;
}

TEST(VideoNameTest, NamesOfAnyLengthAndMakeEndSoon)
{
    for (const char *part :
         {"(", "[", "2010 ", "(2010", "S01E01", "cd1 ", "1x", "a.", "[x] ", "第", "x264.", "5.1."}) {
        const QString name = QString::fromUtf8(part).repeated(4096);
        EXPECT_LE(VideoName::parse(name).title.size(), 4096) << part;
    }
    QString halves;
    for (int i = 0; i < 100; ++i)
        halves += QChar(0xd800 + i);
    EXPECT_TRUE(VideoName::parse(halves).title.isEmpty());
    EXPECT_EQ(VideoName::parse(QString::fromUtf8("A\xff\xfe B (2010)")).year, 2010);
}

TEST(VideoNameTest, SpellingsOfOneFilmAreTheSame)
{
    const VideoName one = VideoName::parse("Northern.Light.2010.720p");
    EXPECT_TRUE(one.isSameAs(VideoName::parse("northern light (2010)")));
    EXPECT_FALSE(one.isSameAs(VideoName::parse("northern light (2011)")));
    EXPECT_FALSE(one.isSameAs(VideoName::parse("northern lights (2010)")));
}

} // namespace
