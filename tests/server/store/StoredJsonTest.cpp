#include "store/StoredJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

ScannedSong fullSong()
{
    ScannedSong song;
    song.path = "/music/a.flac";
    song.title = QString::fromUtf8("Straße – 歌");
    song.artist = "Artist";
    song.albumArtist = "Several";
    song.album = "Album / Disc";
    song.genre = "Rock, Jazz";
    song.poster = "cover.jpg";
    song.suffix = "flac";
    song.cuePath = "/music/a.cue";
    song.track = 3;
    song.trackNumber = 4;
    song.discNumber = 2;
    song.year = 1999;
    song.runtimeMs = 123456;
    return song;
}

void expectSame(const ScannedSong &one, const ScannedSong &other)
{
    EXPECT_EQ(one.title, other.title);
    EXPECT_EQ(one.artist, other.artist);
    EXPECT_EQ(one.albumArtist, other.albumArtist);
    EXPECT_EQ(one.album, other.album);
    EXPECT_EQ(one.genre, other.genre);
    EXPECT_EQ(one.poster, other.poster);
    EXPECT_EQ(one.suffix, other.suffix);
    EXPECT_EQ(one.cuePath, other.cuePath);
    EXPECT_EQ(one.track, other.track);
    EXPECT_EQ(one.trackNumber, other.trackNumber);
    EXPECT_EQ(one.discNumber, other.discNumber);
    EXPECT_EQ(one.year, other.year);
    EXPECT_EQ(one.runtimeMs, other.runtimeMs);
}

} // namespace

TEST(StoredJson, ASongStandsThereAsTheLibraryWritesIt)
{
    const QString text = StoredJson::ofSong(fullSong());
    const QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    EXPECT_EQ(object.size(), 13);
    EXPECT_EQ(text, QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
    expectSame(StoredJson::song(text), fullSong());
}

TEST(StoredJson, WhatIsNotKnownIsLeftOut)
{
    ScannedSong song;
    song.title = "Title";
    EXPECT_EQ(StoredJson::ofSong(song), QString(R"({"title":"Title"})"));
    song = {};
    song.year = -5;
    EXPECT_EQ(StoredJson::ofSong(song), QString(R"({"year":-5})"));
    expectSame(StoredJson::song(StoredJson::ofSong({})), {});
}

TEST(StoredJson, TextsThatHaveToBeEscapedComeBackAsTheyWere)
{
    const QStringList texts{"\"",
                            "\\",
                            "a\nb\tc",
                            QString(QChar(1)),
                            QString(QChar(0)),
                            QString::fromUtf8("😀"),
                            QString(QChar(0x7f)),
                            R"(","year":1,"x":")"};
    for (const QString &text : texts) {
        for (QString ScannedSong::*const member :
             {&ScannedSong::title, &ScannedSong::album, &ScannedSong::suffix, &ScannedSong::cuePath}) {
            ScannedSong song = fullSong();
            song.*member = text;
            expectSame(StoredJson::song(StoredJson::ofSong(song)), song);
        }
    }
}
