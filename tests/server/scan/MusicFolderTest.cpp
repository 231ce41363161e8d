#include "scan/MusicFolder.h"

#include <gtest/gtest.h>

namespace {

ScannedSong song(const char *artist, const char *album, const char *albumArtist = "")
{
    ScannedSong made;
    made.title = artist;
    made.artist = artist;
    made.album = album;
    made.albumArtist = albumArtist;
    return made;
}

QVector<ScannedSong> finished(const QVector<ScannedSong> &songs)
{
    FolderWork work;
    work.result.songs = songs;
    MusicFolder().finish(work);
    return work.result.songs;
}

} // namespace

TEST(MusicFolder, AnAlbumOfSeveralArtistsInOneFolderStaysOne)
{
    const QVector<ScannedSong> songs =
        finished({song("One", "Mixed"), song("Two", "Mixed"), song("One", "Own")});
    EXPECT_EQ(songs[0].albumArtist, QString("Various Artists"));
    EXPECT_EQ(songs[1].albumArtist, QString("Various Artists"));
    EXPECT_EQ(songs[2].albumArtist, QString());
}

TEST(MusicFolder, AnAlbumThatNamesItsArtistKeepsIt)
{
    const QVector<ScannedSong> songs =
        finished({song("One", "Live", "Band"), song("One & Guest", "Live", "Band"), song("Three", "Live")});
    EXPECT_EQ(songs[0].albumArtist, QString("Band"));
    EXPECT_EQ(songs[1].albumArtist, QString("Band"));
    EXPECT_EQ(songs[2].albumArtist, QString());
}

TEST(MusicFolder, ASongThatJoinsAKnownCompilationBelongsToIt)
{
    const QVector<ScannedSong> songs =
        finished({song("One", "Mixed", "Various Artists"), song("Two", "Mixed")});
    EXPECT_EQ(songs[1].albumArtist, QString("Various Artists"));
}

TEST(MusicFolder, SongsWithoutAnAlbumAreNone)
{
    const QVector<ScannedSong> songs = finished({song("One", ""), song("Two", "")});
    EXPECT_EQ(songs[0].albumArtist, QString());
}
