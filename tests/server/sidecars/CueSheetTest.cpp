#include "sidecars/CueSheet.h"

#include <gtest/gtest.h>

namespace {

const QByteArray sheet =
    "REM GENRE \"Art Rock\"\r\nREM DATE 1999\r\nPERFORMER \"The Band\"\r\nTITLE \"Songs\"\r\n"
    "FILE \"band - songs.flac\" WAVE\r\n"
    "  TRACK 01 AUDIO\r\n    TITLE \"One\"\r\n    PERFORMER \"Singer\"\r\n    INDEX 01 00:00:00\r\n"
    "  TRACK 02 AUDIO\r\n    TITLE \"Two\"\r\n    INDEX 00 03:59:70\r\n    INDEX 01 04:02:15\r\n"
    "FILE \"second.flac\" WAVE\r\n"
    "  TRACK 03 AUDIO\r\n    TITLE \"Three\"\r\n    INDEX 01 00:00:00\r\n";

TEST(CueSheetTest, TracksAndTheirPlacesAreRead)
{
    const CueSheet cue = CueSheet::parse(sheet);
    EXPECT_EQ(cue.title, "Songs");
    EXPECT_EQ(cue.performer, "The Band");
    EXPECT_EQ(cue.genre, "Art Rock");
    EXPECT_EQ(cue.year, 1999);
    ASSERT_EQ(cue.tracks.size(), 3);
    EXPECT_EQ(cue.tracks.at(0).performer, "Singer");
    EXPECT_EQ(cue.tracks.at(0).startMs(), 0);
    EXPECT_EQ(cue.tracks.at(0).endFrame, (4 * 60 + 2) * 75 + 15);
    EXPECT_EQ(cue.tracks.at(1).pregapFrame, (3 * 60 + 59) * 75 + 70);
    EXPECT_EQ(cue.tracks.at(1).startMs(), 242200);
    EXPECT_EQ(cue.tracks.at(1).endMs(), -1); // the end of its file
    EXPECT_EQ(cue.tracks.at(1).fileName, "band - songs.flac");
    EXPECT_EQ(cue.tracks.at(2).fileName, "second.flac");
    EXPECT_EQ(cue.tracks.at(2).number, 3);
}

TEST(CueSheetTest, ASheetCutAnywhereGivesWholeTracks)
{
    for (int length = 0; length <= sheet.size(); ++length) {
        const CueSheet cue = CueSheet::parse(sheet.left(length));
        EXPECT_LE(cue.tracks.size(), 3) << length;
        for (const CueTrack &track : cue.tracks) {
            EXPECT_GE(track.startFrame, 0) << length;
            EXPECT_FALSE(track.fileName.isEmpty()) << length;
        }
    }
}

TEST(CueSheetTest, EncodingsAreGuessed)
{
    const QByteArray body = "FILE a.wav WAVE\nTRACK 01 AUDIO\nTITLE \"T%\"\nINDEX 01 00:00:00\n";
    for (const char *letter : {"\xc3\xa4", "\xe4"})
        EXPECT_EQ(CueSheet::parse(QByteArray(body).replace("%", letter)).tracks.value(0).title,
                  QString::fromUtf8("T\xc3\xa4"))
            << letter;
    EXPECT_EQ(CueSheet::parse("\xef\xbb\xbf" + QByteArray(body)).tracks.size(), 1);
}

TEST(CueSheetTest, OddLinesAreOverlooked)
{
    struct Row {
        const char *lines;
        int tracks;
    };
    const Row rows[] = {
        {"TRACK 01 AUDIO\nINDEX 01 00:00:00\n", 0},
        {"FILE a.wav WAVE\nTRACK 01 AUDIO\n", 0},
        {"FILE a.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 00:99:00\n", 0},
        {"FILE a.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:75\n", 0},
        {"FILE a.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 -1:00:00\n", 0},
        {"FILE a.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 99999:00:00\n", 0},
        {"FILE a.wav WAVE\nTRACK 01 MODE1/2352\nINDEX 01 00:00:00\nTRACK 02 AUDIO\nINDEX 01 00:10:00\n", 1},
        {"FILE a b c.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n", 1},
        {"file a.wav wave\ntrack 1 audio\nindex 1 0:0:0\n", 1},
        {"FILE \"a.wav\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n", 1},
        {"FILE \"..\" WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n", 0},
        {"INDEX\nTRACK\nFILE\nTITLE\nREM\n\"\n", 0},
    };
    for (const Row &row : rows)
        EXPECT_EQ(CueSheet::parse(row.lines).tracks.size(), row.tracks) << row.lines;
}

TEST(CueSheetTest, FilesNeverLeadOutOfTheFolder)
{
    for (const char *name : {"../../etc/passwd", "/etc/passwd", "C:\\x\\passwd", "..\\passwd"}) {
        const CueSheet cue =
            CueSheet::parse(QByteArray("FILE \"") + name + "\" WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\n");
        EXPECT_EQ(cue.tracks.value(0).fileName, "passwd") << name;
    }
}

TEST(CueSheetTest, APauseInTheFileBeforeBelongsToNoTrack)
{
    const CueSheet cue =
        CueSheet::parse("FILE 1.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nTRACK 02 AUDIO\n"
                        "INDEX 00 03:00:00\nFILE 2.wav WAVE\nINDEX 01 00:00:00\n");
    ASSERT_EQ(cue.tracks.size(), 2);
    EXPECT_EQ(cue.tracks.at(1).fileName, "2.wav");
    EXPECT_EQ(cue.tracks.at(1).pregapFrame, -1);
    EXPECT_EQ(cue.tracks.at(0).endFrame, -1);
}

TEST(CueSheetTest, TooLargeASheetIsRefused)
{
    EXPECT_FALSE(CueSheet::parse(sheet + QByteArray(1024 * 1024, '\n')).isValid());
}

} // namespace
