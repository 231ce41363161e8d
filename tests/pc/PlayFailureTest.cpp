#include "playcontrol/PlayFailure.h"

#include <gtest/gtest.h>

TEST(PlayFailureTest, EachCodeHasItsLogLineAndText)
{
    const struct {
        int code;
        const char *log;
        const char *text;
        const char *title;
        const char *link;
    } rows[] = {
        {0xD1, "[Player fail]: UHD Disc ReadDataKey : 209",
         "Quorin does not support your UHD drive, please check the supported drives here.", "",
         "More Info..."},
        {0x134, "[Player fail]: UHD Disc FFClient_Reading : 308",
         "Oops! This disc is not supported yet. Please try again at a later time.", "", ""},
        {0x12E, "[Player fail]: Disc_Error_InternetUnavailable : 302",
         "A live Internet is required to play back the disc, please check your network and try again.",
         "Failed to play back the disc.", ""},
        {0x135, "[Player fail]: Disc_Error_FFClient_ServerError : 309",
         "An unknown error happened, please update to the newest version at", "", ""},
    };
    for (const auto &row : rows) {
        const PlayFailure::Row &found = PlayFailure::rowOf(row.code);
        EXPECT_EQ(found.code, row.code);
        EXPECT_EQ(PlayFailure::logLine(row.code), row.log);
        EXPECT_EQ(PlayFailure::text(found, {}), row.text);
        EXPECT_EQ(PlayFailure::title(found), row.title);
        EXPECT_EQ(PlayFailure::linkText(found), row.link);
    }
}

TEST(PlayFailureTest, AnyOtherCodeIsAGeneralFailure)
{
    for (const int code : {0, 3, 8, -1, 0xD2, 99999}) {
        const PlayFailure::Row &row = PlayFailure::rowOf(code);
        EXPECT_EQ(row.code, 0);
        EXPECT_FALSE(PlayFailure::text(row, {}).isEmpty());
        EXPECT_EQ(PlayFailure::logLine(code),
                  QStringLiteral("[Player fail]: UHD Disc unknown : %1").arg(code));
    }
}

TEST(PlayFailureTest, WhyAFileCantBePlayedIsTold)
{
    QStringList texts;
    for (const int code : {1, 2, 4, 5, 6, 7, 99}) {
        const PlayFailure::Row &row = PlayFailure::rowOf(code);
        EXPECT_TRUE(row.namesSource) << code;
        EXPECT_EQ(PlayFailure::title(row), "Playback failed.");
        EXPECT_EQ(PlayFailure::logLine(code),
                  QStringLiteral("[Player fail]: UHD Disc unknown : %1").arg(code));
        texts << PlayFailure::text(row, {});
    }
    EXPECT_EQ(texts.removeDuplicates(), 0);
}

TEST(PlayFailureTest, MakersSiteStandsBehindTheTextAsALink)
{
    const PlayFailure::Row &row = PlayFailure::rowOf(0x135);
    const QString text = PlayFailure::text(row, QUrl(QStringLiteral("https://example.org/a?x=1&y=2")));
    EXPECT_TRUE(
        text.startsWith("An unknown error happened, please update to the newest version at <a href="));
    EXPECT_TRUE(text.contains("x=1&amp;y=2"));
}

TEST(PlayFailureTest, ReportLinesFollowInOrder)
{
    EXPECT_EQ(PlayFailure::reportLines(308, 7, "Simple"),
              QStringList({"[Error code]: 308", "[Disc Last Error code]: 7", "[PlayMode]: Simple",
                           "[Error of modules]: PC"}));
}
