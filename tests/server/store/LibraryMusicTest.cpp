#include "StoreFixture.h"

namespace {

class LibraryMusicTest : public StoreFixture {
protected:
    void storeSongs(const QVector<ScannedSong> &songs)
    {
        ScannedFolder all = folder(musicRoot, "/music");
        all.songs = songs;
        EXPECT_TRUE(store(all));
    }

    static QStringList titlesOf(const Page<SongRecord> &page)
    {
        QStringList titles;
        for (const SongRecord &row : page.rows)
            titles << row.title;
        return titles;
    }

    static ListRequest newestFirst() { return everything(SortMethod::DateAdded, false); }
};

} // namespace

TEST_F(LibraryMusicTest, ASongsRecordIsWhatItsFileSays)
{
    ScannedSong one = song("/music/a.flac", "Title", "Artist", "Album");
    one.genre = "Rock";
    one.poster = "cover.jpg";
    one.year = 1999;
    one.runtimeMs = 1234;
    storeSongs({one, song("/music/no tags.mp3", {})});
    const SongRecord record = music->song(idOfSong("Title"));
    EXPECT_EQ(record.artist, one.artist);
    EXPECT_EQ(record.album, one.album);
    EXPECT_EQ(record.genre, one.genre);
    EXPECT_EQ(record.poster, one.poster);
    EXPECT_EQ(record.path, one.path);
    EXPECT_EQ(record.suffix, QString("flac"));
    EXPECT_EQ(record.year, 1999);
    EXPECT_EQ(record.runtime, 1234);
    EXPECT_EQ(record.iTrack, -1);
    EXPECT_FALSE(record.liked);
    EXPECT_EQ(songTitles(), (QStringList{"no tags", "Title"}));
    EXPECT_EQ(music->filesOf(record.idFile), QStringList{"/music/a.flac"});
    EXPECT_EQ(music->song(4711).idFile, 0);
    EXPECT_TRUE(music->filesOf(4711).isEmpty());
}

TEST_F(LibraryMusicTest, AlbumsAreKnownByAlbumArtistElseByArtist)
{
    QVector<ScannedSong> songs{song("/music/1.mp3", "1", "A", "Hits"), song("/music/2.mp3", "2", "B", "Hits"),
                               song("/music/3.mp3", "3", "C", "Sampler"),
                               song("/music/4.mp3", "4", "D", "sampler"), song("/music/5.mp3", "5", "E")};
    songs[2].albumArtist = "Various";
    songs[3].albumArtist = "Various";
    songs[3].year = 2001;
    songs[2].year = 1999;
    songs[3].poster = "cover.jpg";
    songs[3].genre = "Pop";
    storeSongs(songs);
    const Page<AlbumRecord> albums = music->albums(everything());
    ASSERT_EQ(albums.total, 3);
    EXPECT_EQ(albums.rows[0].title, QString("Hits"));
    EXPECT_EQ(albums.rows[0].year, QString());
    EXPECT_EQ(albums.rows[2].title, QString("Sampler"));
    EXPECT_EQ(albums.rows[2].artist, QString("Various"));
    EXPECT_EQ(albums.rows[2].year, QString("1999"));
    EXPECT_EQ(albums.rows[2].poster, QString("cover.jpg"));
    EXPECT_EQ(albums.rows[2].genre, QString("Pop"));
    EXPECT_EQ(music->albumSongs(albums.rows[2].idAlbum, everything()).total, 2);

    ASSERT_TRUE(music->setAlbumPoster(albums.rows[2].idAlbum, "mine.jpg"));
    storeSongs(songs);
    EXPECT_EQ(music->albums(everything()).rows.at(2).poster, QString("mine.jpg"));
    EXPECT_FALSE(music->setAlbumPoster(4711, "mine.jpg"));
}

TEST_F(LibraryMusicTest, SongsOfAnAlbumObeyTheSortAndTiesAreByDiscAndTrack)
{
    QVector<ScannedSong> songs{song("/music/1.mp3", "Z", "A", "Album"),
                               song("/music/2.mp3", "Y", "A", "Album"),
                               song("/music/3.mp3", "X", "A", "Album")};
    songs[0].discNumber = 1;
    songs[0].trackNumber = 1;
    songs[1].discNumber = 1;
    songs[1].trackNumber = 2;
    songs[2].discNumber = 2;
    songs[2].trackNumber = 1;
    storeSongs(songs);
    const int album = music->albums(everything()).rows.at(0).idAlbum;
    EXPECT_EQ(titlesOf(music->albumSongs(album, everything())), (QStringList{"X", "Y", "Z"}));
    EXPECT_EQ(titlesOf(music->albumSongs(album, newestFirst())), (QStringList{"Z", "Y", "X"}));
    EXPECT_EQ(music->songIdsOfAlbum(album), (QVector<int>{idOfSong("Z"), idOfSong("Y"), idOfSong("X")}));
}

TEST_F(LibraryMusicTest, ArtistsAndGenresAreParted)
{
    QVector<ScannedSong> songs{song("/music/1.mp3", "1", "AC/DC; Other"),
                               song("/music/2.mp3", "2", "Earth, Wind"), song("/music/3.mp3", "3", "ac/dc"),
                               song("/music/4.mp3", "4")};
    songs[0].genre = "Hard Rock, Rock/Pop;Blues";
    songs[1].genre = "rock";
    songs[2].poster = "cover.jpg";
    storeSongs(songs);
    const QVector<ArtistRecord> artists = music->artists();
    ASSERT_EQ(artists.size(), 3);
    EXPECT_EQ(artists[0].name.toLower(), QString("ac/dc"));
    EXPECT_EQ(artists[0].localPath, QString("cover.jpg"));
    EXPECT_EQ(artists[1].name, QString("Earth, Wind"));
    EXPECT_EQ(artists[2].name, QString("Other"));
    EXPECT_EQ(titlesOf(music->artistSongs("AC/DC", everything())), (QStringList{"1", "3"}));
    EXPECT_EQ(music->songIdsOfArtist("Other"), QVector<int>{idOfSong("1")});
    EXPECT_TRUE(titlesOf(music->artistSongs("Nobody", everything())).isEmpty());
    EXPECT_EQ(music->genres().size(), 4);
    EXPECT_EQ(titlesOf(music->genreSongs("Rock", everything())), (QStringList{"1", "2"}));
    EXPECT_EQ(music->songIdsOfGenre("Blues"), QVector<int>{idOfSong("1")});

    ASSERT_TRUE(music->setArtistPoster("AC/DC", "mine.jpg"));
    EXPECT_EQ(music->artists().first().localPath, QString("mine.jpg"));
    EXPECT_FALSE(music->setArtistPoster("Nobody", "mine.jpg"));
}

TEST_F(LibraryMusicTest, AnEditWinsOverScansUntilItIsTakenBack)
{
    ScannedSong one = song("/music/a.mp3", "Title", "Artist", "Album");
    one.genre = "Rock";
    one.runtimeMs = 1000;
    storeSongs({one});
    const int id = idOfSong("Title");
    SongRecord edited = music->song(id);
    edited.title = "Mine";
    edited.artist = "Me";
    edited.runtime = 0;
    ASSERT_TRUE(music->editSong(edited));
    one.genre = "Jazz";
    one.artist = "Another";
    one.stamp.modifiedMs += 1;
    storeSongs({one});
    EXPECT_EQ(music->song(id).title, QString("Mine"));
    EXPECT_EQ(music->song(id).artist, QString("Me"));
    EXPECT_EQ(music->song(id).genre, QString("Jazz"));
    EXPECT_EQ(music->song(id).runtime, 1000);
    EXPECT_EQ(music->songIdsOfArtist("Me"), QVector<int>{id});
    EXPECT_EQ(music->albums(everything()).rows.at(0).artist, QString("Me"));

    ASSERT_TRUE(music->restoreSong(id));
    EXPECT_EQ(music->song(id).title, QString("Title"));
    EXPECT_EQ(music->song(id).artist, QString("Another"));
    edited.idFile = 4711;
    EXPECT_FALSE(music->editSong(edited));
    EXPECT_FALSE(music->restoreSong(4711));
}

TEST_F(LibraryMusicTest, PlaylistsKeepTheOrderOfAddingAndEachSongOnce)
{
    storeSongs({song("/music/1.mp3", "A"), song("/music/2.mp3", "B"), song("/music/3.mp3", "C")});
    const int list = music->createPlaylist({0, "List", "About", "cover.jpg"});
    ASSERT_GT(list, 0);
    for (const char *title : {"B", "A", "C", "B"})
        EXPECT_TRUE(music->addToPlaylist(list, idOfSong(title)));
    EXPECT_EQ(titlesOf(music->playlistSongs(list, everything(SortMethod::DateAdded))),
              (QStringList{"B", "A", "C"}));
    EXPECT_EQ(titlesOf(music->playlistSongs(list, newestFirst())), (QStringList{"C", "A", "B"}));
    EXPECT_TRUE(music->removeFromPlaylist(list, idOfSong("A")));
    EXPECT_FALSE(music->removeFromPlaylist(list, idOfSong("A")));
    EXPECT_EQ(music->playlistSongs(list, everything()).total, 2);
    EXPECT_FALSE(music->addToPlaylist(list, 4711));
    EXPECT_FALSE(music->addToPlaylist(4711, idOfSong("A")));

    EXPECT_TRUE(music->changePlaylist({list, "Renamed", {}, {}}));
    EXPECT_FALSE(music->changePlaylist({4711, "Renamed", {}, {}}));
    ASSERT_EQ(music->playlists().size(), 1);
    EXPECT_EQ(music->playlists().first().title, QString("Renamed"));
    EXPECT_TRUE(music->removePlaylist(list));
    EXPECT_FALSE(music->removePlaylist(list));
    EXPECT_TRUE(music->playlists().isEmpty());
    EXPECT_EQ(music->playlistSongs(list, everything()).total, 0);
    EXPECT_GT(music->createPlaylist({0, "Next", {}, {}}), list);
}

TEST_F(LibraryMusicTest, TheHundredSongsPlayedLastComeNewestFirst)
{
    QVector<ScannedSong> songs;
    for (int index = 0; index < 105; ++index)
        songs << song(QString("/music/%1.mp3").arg(index), QString("S%1").arg(index, 3, 10, QChar('0')));
    storeSongs(songs);
    const QVector<SongRecord> all = music->songs(everything()).rows;
    for (const SongRecord &one : all)
        EXPECT_TRUE(music->notePlayed(one.idFile));
    EXPECT_TRUE(music->notePlayed(all.at(50).idFile));
    const Page<SongRecord> recent = music->recentSongs(everything(SortMethod::ModifiedTime, false));
    ASSERT_EQ(recent.total, 100);
    EXPECT_EQ(recent.rows.at(0).title, QString("S050"));
    EXPECT_EQ(recent.rows.at(1).title, QString("S104"));
    EXPECT_EQ(recent.rows.at(99).title, QString("S005"));
    EXPECT_FALSE(music->notePlayed(4711));
}

TEST_F(LibraryMusicTest, RemovedSongsLeaveEveryListAndStayOut)
{
    const QVector<ScannedSong> songs{song("/music/1.mp3", "A", "X", "Y"), song("/music/2.mp3", "B")};
    storeSongs(songs);
    const int id = idOfSong("A");
    const int list = music->createPlaylist({0, "List", {}, {}});
    ASSERT_TRUE(music->addToPlaylist(list, id));
    ASSERT_TRUE(music->notePlayed(id));
    EXPECT_FALSE(music->removeSongs({id, 4711}, Removal::FromLibrary));
    EXPECT_EQ(songTitles(), QStringList{"B"});
    EXPECT_EQ(music->playlistSongs(list, everything()).total, 0);
    EXPECT_EQ(music->recentSongs(everything()).total, 0);
    EXPECT_EQ(music->albums(everything()).total, 0);
    storeSongs(songs);
    EXPECT_EQ(songTitles(), QStringList{"B"});
    EXPECT_TRUE(music->removeSongs({}, Removal::FromLibrary));
}

TEST_F(LibraryMusicTest, LikesSurviveANewStart)
{
    storeSongs({song("/music/1.mp3", "A")});
    const int id = idOfSong("A");
    EXPECT_TRUE(music->setLiked(id, true));
    reopen();
    EXPECT_TRUE(music->song(id).liked);
    EXPECT_TRUE(music->setLiked(id, false));
    EXPECT_FALSE(music->song(id).liked);
    EXPECT_FALSE(music->setLiked(4711, true));
}
