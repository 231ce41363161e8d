#include "StoreFixture.h"

#include "support/TestLog.h"

#include <QRegularExpression>
#include <QSet>

#include <functional>

namespace {

constexpr qint64 kDayMs = 24LL * 60 * 60 * 1000;

class LibraryScanTest : public StoreFixture {
protected:
    // One song in a folder, with a like, a playlist and a correction.
    int touchedSong(const QString &path)
    {
        ScannedFolder from = folder(musicRoot, path);
        from.songs << song(path + "/one.mp3", "One", "Artist", "Album");
        EXPECT_TRUE(store(from));
        const int id = idOfSong("One");
        EXPECT_TRUE(music->setLiked(id, true));
        m_playlist = music->createPlaylist({0, "Mine", {}, {}});
        EXPECT_TRUE(music->addToPlaylist(m_playlist, id));
        EXPECT_TRUE(music->notePlayed(id));
        SongRecord edited = music->song(id);
        edited.genre = "Mine";
        EXPECT_TRUE(music->editSong(edited));
        return id;
    }

    void expectTouched(int id, const QString &path)
    {
        const SongRecord record = music->song(id);
        EXPECT_EQ(record.idFile, id);
        EXPECT_EQ(record.path, path);
        EXPECT_TRUE(record.liked);
        EXPECT_EQ(record.genre, QString("Mine"));
        EXPECT_EQ(music->playlistSongs(m_playlist, everything()).total, 1);
        EXPECT_EQ(music->recentSongs(everything()).total, 1);
        EXPECT_EQ(music->songs(everything()).total, 1);
    }

    ScannedFolder movedSong(const QString &path)
    {
        ScannedFolder to = folder(musicRoot, path);
        to.songs << song(path + "/other name.mp3", "One", "Artist", "Album");
        return to;
    }

    int m_playlist{0};
};

} // namespace

TEST_F(LibraryScanTest, FingerprintsComeBackAsTheyWereStored)
{
    ScannedFolder one = folder(videoRoot, "/films/a");
    one.fingerprint = QByteArray::fromHex("00ff0a27");
    EXPECT_TRUE(scans->store({one, folder(videoRoot, "/films/b")}));
    const QHash<QString, QByteArray> expected{{"/films/a", one.fingerprint}, {"/films/b", "/films/b"}};
    EXPECT_EQ(scans->fingerprints(videoRoot), expected);
    EXPECT_TRUE(scans->fingerprints(musicRoot).isEmpty());
}

TEST_F(LibraryScanTest, WhatWasScannedIsReadBackUnchanged)
{
    ScannedFolder films = folder(videoRoot, "/films/a");
    ScannedVideo video = film("/films/a/folder.ifo", "Disc", 1999);
    video.realPath = "/films/a";
    video.collection = "Trilogy";
    video.wantsMetadata = true;
    video.description.identities["tmdb"] = "17";
    video.description.rating = "7.5";
    films.videos << video;
    ScannedFolder songs = folder(musicRoot, "/music/a");
    ScannedSong track = song("/music/a/disc.cue", "Track", "Artist", "Album");
    track.track = 3;
    track.cuePath = "/music/a/disc.flac";
    track.discNumber = 2;
    songs.songs << track;
    ASSERT_TRUE(scans->store({films, songs}));

    const QVector<ScannedVideo> videosBack = scans->storedVideos(videoRoot, "/films/a");
    ASSERT_EQ(videosBack.size(), 1);
    EXPECT_EQ(videosBack[0].path, video.path);
    EXPECT_EQ(videosBack[0].realPath, video.realPath);
    EXPECT_EQ(videosBack[0].stamp, video.stamp);
    EXPECT_EQ(videosBack[0].kind, video.kind);
    EXPECT_EQ(videosBack[0].collection, video.collection);
    EXPECT_TRUE(videosBack[0].wantsMetadata);
    EXPECT_EQ(videosBack[0].description.identities, video.description.identities);
    const QVector<ScannedSong> songsBack = scans->storedSongs(musicRoot, "/music/a");
    ASSERT_EQ(songsBack.size(), 1);
    EXPECT_EQ(songsBack[0].track, 3);
    EXPECT_EQ(songsBack[0].cuePath, track.cuePath);
    EXPECT_EQ(songsBack[0].discNumber, 2);
    EXPECT_EQ(songsBack[0].stamp, track.stamp);
    EXPECT_TRUE(scans->storedSongs(videoRoot, "/music/a").isEmpty());
}

TEST_F(LibraryScanTest, ARescanKeepsIdsAndTheDateOfAdding)
{
    ScannedFolder films = folder(videoRoot, "/films");
    films.videos << film("/films/b.mkv", "B");
    ASSERT_TRUE(store(films));
    const int id = idOfFilm("B");
    now += kDayMs;
    films.videos.prepend(film("/films/a.mkv", "A"));
    films.videos[1].stamp.modifiedMs += 5;
    ASSERT_TRUE(store(films));
    EXPECT_EQ(idOfFilm("B"), id);
    EXPECT_EQ(titles(Role::Movies, everything(SortMethod::DateAdded, false)), (QStringList{"A", "B"}));
}

TEST_F(LibraryScanTest, AMovedFileKeepsWhatIsKnownOfIt)
{
    const int id = touchedSong("/music/a");
    now += kDayMs;
    const struct {
        const char *how;
        std::function<bool(const ScannedFolder &, const ScannedFolder &)> move;
    } rows[] = {
        {"in one call",
         [this](auto &from, auto &to) {
             return scans->store({from, to});
         }},
        {"in one call, the new place first",
         [this](auto &from, auto &to) {
             return scans->store({to, from});
         }},
        {"the old place first", [this](auto &from, auto &to) { return store(from) && store(to); }},
        {"the new place first", [this](auto &from, auto &to) { return store(to) && store(from); }},
        {"the old folder is gone",
         [this](auto &from, auto &to) { return scans->forgetFolders(musicRoot, {from.path}) && store(to); }},
        {"the old folder is gone, the new place first",
         [this](auto &from, auto &to) { return store(to) && scans->forgetFolders(musicRoot, {from.path}); }},
    };
    QString place = "/music/a";
    for (const auto &row : rows) {
        SCOPED_TRACE(row.how);
        now += kDayMs;
        const QString next = place + "x";
        EXPECT_TRUE(row.move(folder(musicRoot, place), movedSong(next)));
        expectTouched(id, next + "/other name.mp3");
        place = next;
    }
}

TEST_F(LibraryScanTest, AFileMovedTwiceByScansWithoutAnEndKeepsWhatIsKnownOfIt)
{
    const int id = touchedSong("/music/a");
    // Found in its new place by a scan that was killed before it missed the file in the old one.
    now += kDayMs;
    ASSERT_TRUE(store(movedSong("/music/b")));
    ASSERT_EQ(music->songs(everything()).total, 2);
    now += kDayMs;
    ASSERT_TRUE(store(movedSong("/music/c")));
    ASSERT_TRUE(scans->forgetFolders(musicRoot, {"/music/a", "/music/b"}));
    expectTouched(id, "/music/c/other name.mp3");
    EXPECT_EQ(music->songs(everything()).total, 1);
    // The same, missed in both old places before it is found in the new one.
    now += kDayMs;
    ASSERT_TRUE(store(movedSong("/music/d")));
    now += kDayMs;
    ASSERT_TRUE(
        scans->store({folder(musicRoot, "/music/c"), folder(musicRoot, "/music/d"), movedSong("/music/e")}));
    expectTouched(id, "/music/e/other name.mp3");
    EXPECT_EQ(music->songs(everything()).total, 1);
}

TEST_F(LibraryScanTest, AFilmMovedAfterItsNewPlaceWasFoundKeepsItsId)
{
    ScannedFolder from = folder(videoRoot, "/films/a");
    from.videos << film("/films/a/x.mkv", "X");
    ASSERT_TRUE(store(from));
    const int id = idOfFilm("X");
    now += kDayMs;
    ScannedFolder to = folder(videoRoot, "/films/b");
    to.videos << film("/films/b/x.mkv", "X");
    ASSERT_TRUE(store(to));
    ASSERT_TRUE(store(folder(videoRoot, "/films/a")));
    EXPECT_EQ(videos->movies(Role::Movies, everything()).total, 1);
    EXPECT_EQ(videos->movie(id).path, QString("/films/b/x.mkv"));
}

TEST_F(LibraryScanTest, FilesThatLookAlikeAreNotTakenForMoved)
{
    ScannedFolder from = folder(musicRoot, "/music/a");
    from.songs << song("/music/a/1.mp3", "One") << song("/music/a/2.mp3", "Two");
    from.songs[1].stamp = from.songs[0].stamp;
    ASSERT_TRUE(store(from));
    const QSet<int> before{idOfSong("One"), idOfSong("Two")};
    now += kDayMs;
    ScannedFolder to = folder(musicRoot, "/music/b");
    to.songs << song("/music/b/1.mp3", "New");
    to.songs[0].stamp = from.songs[0].stamp;
    ASSERT_TRUE(scans->store({folder(musicRoot, "/music/a"), to}));
    EXPECT_EQ(songTitles(), QStringList{"New"});
    EXPECT_FALSE(before.contains(idOfSong("New")));
}

TEST_F(LibraryScanTest, ACopyOfItsOwnIsNotTakenForMoved)
{
    ScannedFolder both[] = {folder(musicRoot, "/music/a"), folder(musicRoot, "/music/b")};
    both[0].songs << song("/music/a/1.mp3", "One");
    both[1].songs << song("/music/b/1.mp3", "One");
    ASSERT_TRUE(scans->store({both[0], both[1]}));
    EXPECT_EQ(music->songs(everything()).total, 2);
    const int kept = music->songs(everything()).rows.at(1).idFile;
    EXPECT_EQ(music->song(kept).path, QString("/music/b/1.mp3"));
    now += kDayMs;
    ASSERT_TRUE(store(folder(musicRoot, "/music/a")));
    EXPECT_EQ(music->songs(everything()).total, 1);
    EXPECT_EQ(idOfSong("One"), kept);
}

TEST_F(LibraryScanTest, AFolderThatIsGoneHidesWhatLiesBelowItAndItComesBack)
{
    const int id = touchedSong("/music/a/b");
    ASSERT_TRUE(scans->forgetFolders(musicRoot, {"/music/a"}));
    EXPECT_EQ(music->songs(everything()).total, 0);
    EXPECT_EQ(music->albums(everything()).total, 0);
    EXPECT_TRUE(music->artists().isEmpty());
    EXPECT_TRUE(music->genres().isEmpty());
    EXPECT_EQ(music->playlistSongs(m_playlist, everything()).total, 0);
    EXPECT_EQ(music->song(id).idFile, 0);
    EXPECT_FALSE(music->setLiked(id, false));
    EXPECT_TRUE(scans->fingerprints(musicRoot).isEmpty());
    ScannedFolder again = folder(musicRoot, "/music/a/b");
    again.songs << song("/music/a/b/one.mp3", "One", "Artist", "Album");
    ASSERT_TRUE(store(again));
    expectTouched(id, "/music/a/b/one.mp3");
    EXPECT_EQ(music->albums(everything()).total, 1);
}

TEST_F(LibraryScanTest, AFolderWithASimilarNameIsNotBelow)
{
    for (const QString &path :
         {QString("/music/a"), QString("/music/a b"), QString("/music/A"), QString("/music/a%")}) {
        ScannedFolder one = folder(musicRoot, path);
        one.songs << song(path + "/1.mp3", "In " + path);
        ASSERT_TRUE(store(one));
    }
    ASSERT_TRUE(scans->forgetFolders(musicRoot, {"/music/a"}));
    const QStringList left = songTitles();
    EXPECT_EQ(QSet<QString>(left.begin(), left.end()),
              (QSet<QString>{"In /music/a b", "In /music/a%", "In /music/A"}));
    EXPECT_EQ(music->songs(everything()).total, 3);
}

TEST_F(LibraryScanTest, AFolderThatIsOfflineLosesAndHidesNothing)
{
    const int id = touchedSong("/music/a");
    roots->setOnline(musicRoot, false);
    EXPECT_FALSE(roots->folders(roots->musicLibraryId()).first().online);
    TestLog::expectWarning(QRegularExpression("not online"));
    EXPECT_FALSE(scans->forgetFolders(musicRoot, {"/music/a"}));
    expectTouched(id, "/music/a/one.mp3");
}

TEST_F(LibraryScanTest, WhatIsMissingForThirtyDaysIsDroppedAtTheEndOfAScan)
{
    const int id = touchedSong("/music/a");
    ASSERT_TRUE(store(folder(musicRoot, "/music/a")));
    now += 30 * kDayMs;
    scans->finishScan(musicRoot);
    ASSERT_TRUE(store(movedSong("/music/b")));
    expectTouched(id, "/music/b/other name.mp3");

    ASSERT_TRUE(store(folder(musicRoot, "/music/b")));
    now += 30 * kDayMs + 1;
    scans->finishScan(videoRoot);
    scans->finishScan(musicRoot);
    ASSERT_TRUE(store(movedSong("/music/c")));
    EXPECT_NE(idOfSong("One"), id);
    EXPECT_NE(idOfSong("One"), 0);
}

TEST_F(LibraryScanTest, ARebuildKeepsWhatAUserMadeAndTheIds)
{
    const int id = touchedSong("/music/a");
    ScannedFolder films = folder(videoRoot, "/films");
    films.videos << film("/films/a.mkv", "A");
    ASSERT_TRUE(store(films));
    const int filmId = idOfFilm("A");
    Description chosen;
    chosen.title = "Chosen";
    ASSERT_TRUE(videos->matchMovie(filmId, chosen, {}));
    for (const int root : {musicRoot, videoRoot})
        ASSERT_TRUE(scans->clearForRebuild(root));
    EXPECT_EQ(music->songs(everything()).total, 0);
    EXPECT_EQ(videos->movies(Role::Movies, everything()).total, 0);
    EXPECT_EQ(scans->fingerprints(musicRoot), (QHash<QString, QByteArray>{{"/music/a", QByteArray()}}));
    EXPECT_TRUE(scans->storedSongs(musicRoot, "/music/a").isEmpty());
    EXPECT_EQ(roots->folders(roots->musicLibraryId()).size(), 1);
    EXPECT_EQ(music->playlists().size(), 1);

    ScannedFolder again = folder(musicRoot, "/music/a");
    again.songs << song("/music/a/one.mp3", "One", "Artist", "Album");
    ASSERT_TRUE(scans->store({again, films}));
    expectTouched(id, "/music/a/one.mp3");
    EXPECT_EQ(idOfFilm("Chosen"), filmId);
}

TEST_F(LibraryScanTest, ARebuildOfOneFolderLeavesTheOthers)
{
    const int second = roots->addFolder(roots->videoLibraryId(), "/more", {});
    ScannedFolder here = folder(videoRoot, "/films");
    here.videos << film("/films/a.mkv", "A") << episode("/films/s1.mkv", "/films", 1, 1);
    ScannedFolder there = folder(second, "/more");
    there.videos << film("/more/b.mkv", "B") << episode("/more/s1.mkv", "/more", 1, 1);
    ScannedFolder songs = folder(musicRoot, "/music");
    songs.songs << song("/music/one.mp3", "One");
    ASSERT_TRUE(scans->store({here, there, songs}));
    Description told;
    told.overview = "Told";
    for (const ShowRecord &show : videos->shows(everything()).rows)
        ASSERT_TRUE(videos->describeShow(show.idTvshow, told, {}));
    ASSERT_TRUE(scans->clearForRebuild(videoRoot));
    EXPECT_EQ(titles(Role::Movies), QStringList("B"));
    EXPECT_EQ(songTitles(), QStringList("One"));
    EXPECT_EQ(scans->fingerprints(second).value("/more"), there.fingerprint);
    EXPECT_EQ(scans->storedVideos(second, "/more").size(), 2);
    ASSERT_EQ(videos->shows(everything()).total, 1);
    EXPECT_EQ(videos->shows(everything()).rows.first().overview, QString("Told"));
}

TEST_F(LibraryScanTest, AFolderOfBothLibrariesHoldsVideosAndSongs)
{
    const int second = roots->addFolder(roots->musicLibraryId(), "/films", {});
    ScannedFolder films = folder(videoRoot, "/films");
    films.videos << film("/films/a.mkv", "A");
    ScannedFolder songs = folder(second, "/films");
    songs.songs << song("/films/a.mp3", "Song");
    ASSERT_TRUE(store(films));
    ASSERT_TRUE(store(songs));
    ASSERT_TRUE(store(films));
    EXPECT_EQ(titles(Role::Movies), QStringList{"A"});
    EXPECT_EQ(songTitles(), QStringList{"Song"});
}

TEST_F(LibraryScanTest, AFolderThatNoLibraryHoldsIsNotStored)
{
    ScannedFolder lost = folder(4711, "/nowhere");
    lost.songs << song("/nowhere/a.mp3", "A");
    EXPECT_FALSE(store(lost));
    EXPECT_EQ(music->songs(everything()).total, 0);
}

TEST_F(LibraryScanTest, TheSamePathTwiceInAFolderIsStoredOnce)
{
    ScannedFolder films = folder(videoRoot, "/films");
    films.videos << film("/films/a.mkv", "A") << film("/films/a.mkv", "A again") << film("", "None");
    TestLog::expectWarning(QRegularExpression("without a path of its own"));
    EXPECT_TRUE(store(films));
    EXPECT_EQ(titles(Role::Movies), QStringList{"A"});
}

TEST_F(LibraryScanTest, TheTracksOfASheetShareItsPath)
{
    ScannedFolder sheet = folder(musicRoot, "/music");
    for (int track = 1; track <= 3; ++track) {
        ScannedSong one = song("/music/disc.cue", QString("Track %1").arg(track));
        one.stamp = {500, 500};
        one.track = track;
        one.cuePath = "/music/disc.flac";
        sheet.songs << one;
    }
    ASSERT_TRUE(store(sheet));
    EXPECT_EQ(music->songs(everything()).total, 3);
    const int second = idOfSong("Track 2");
    EXPECT_EQ(music->song(second).iTrack, 2);
    // The other tracks' files too: who removes files asks for those of all.
    EXPECT_EQ(music->filesOf(second), (QStringList{"/music/disc.cue", "/music/disc.flac"}));
    ASSERT_TRUE(music->removeSongs({idOfSong("Track 1"), idOfSong("Track 3")}, Removal::FromLibrary));
    EXPECT_TRUE(store(sheet));
    EXPECT_EQ(songTitles(), QStringList{"Track 2"});
    EXPECT_EQ(idOfSong("Track 2"), second);
}
