#include "LibraryFixture.h"

#include "support/Eventually.h"
#include "support/TestLog.h"

#include "library/LibraryFilters.h"
#include "library/MediaPath.h"

#include "core/SettingsKeys.h"

#include <QMetaMethod>

namespace {

class MediaServerManagerCase : public LibraryFixture {};

TEST_F(MediaServerManagerCase, SignalsStandInTheirDeclaredOrder)
{
    QStringList names;
    const QMetaObject &meta = LibrarySignals::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    EXPECT_EQ(names, (QStringList{"sig_newMovieLoaded(QString)",
                                  "sig_newCollectionLoaded(QString)",
                                  "sig_newTvShowLoaded(QString)",
                                  "sig_newVideoLoaded(QString)",
                                  "sig_newAdultContentLoad(QString)",
                                  "sig_reLoadData(int)",
                                  "sig_videoPathChanged()",
                                  "sig_updateLibraryCompleted(bool)",
                                  "sig_rebuildLibraryCompleted(bool)",
                                  "sig_mediaScanStateChanged(int)",
                                  "sig_updateHeartBeat()",
                                  "sig_meidaServerPathLoaded()",
                                  "sig_musicPlaylistLoaded(QString)",
                                  "sig_musicPlaylistSongLoaded(QString,QString)",
                                  "sig_musicPlaylistSongRemove(QString,QString)",
                                  "sig_musicAlbumLoaded(QString)",
                                  "sig_musicArtistLoaded(QString)",
                                  "sig_musicGenresLoaded(QString)",
                                  "sig_musicSongLoaded(QString)",
                                  "sig_musicPlaylistRemoved(QString)",
                                  "sig_musicAlbumRemoved(QString)",
                                  "sig_musicArtistRemoved(QString)",
                                  "sig_musicGenreRemoved(QString)",
                                  "sig_musicPathChanged()",
                                  "sig_musicSongLikeChanged(QString)",
                                  "sig_musicSongRemoved(QString)",
                                  "sig_musicRecentClean()",
                                  "sig_musicRecentSongChanged(QString)",
                                  "sig_musicSongUpdated(QString)"}));
}

TEST_F(MediaServerManagerCase, NumbersThatAreNoRoleDoNothing)
{
    startManager();
    for (const int role : {0, 7, -1}) {
        m_manager->reloadLibrary(role);
        m_manager->waitForLoad(role);
        EXPECT_FALSE(m_manager->isLoading(role));
    }
    EXPECT_TRUE(m_log.lines().isEmpty());
    for (int role = 1; role <= 6; ++role)
        EXPECT_FALSE(m_manager->isLoading(role)) << "before its first load";
}

TEST_F(MediaServerManagerCase, SameLanguageAgainStartsNothing)
{
    startManager();
    m_manager->setScraperLanguage("fr");
    ASSERT_EVENTUALLY(m_server.count("VLibrary.UpdateByLanguage") == 1);
    m_manager->setScraperLanguage("fr");
    m_manager->setScraperLanguage("de");
    ASSERT_EVENTUALLY(m_server.count("VLibrary.UpdateByLanguage") == 2);
    EXPECT_EQ(m_server.requests("VLibrary.UpdateByLanguage")[1].params,
              json("{'LibraryId':7,'language':'de'}"));
    EXPECT_EQ(m_manager->scraperLanguage(), "de");
}

TEST_F(MediaServerManagerCase, LanguageChosenWhileAnotherIsToldIsToldAfterIt)
{
    startManager();
    m_server.hold("VLibrary.UpdateByLanguage");
    m_manager->setScraperLanguage("fr");
    ASSERT_TRUE(m_server.waitUntilHeld());
    m_manager->setScraperLanguage("de");
    m_server.letGo();
    ASSERT_EVENTUALLY(m_server.count("VLibrary.UpdateByLanguage") == 2);
}

TEST_F(MediaServerManagerCase, LanguageChosenBeforeTheServerIsKnownWaitsForItsLibrary)
{
    answerStart();
    m_server.hold("Server.GetLibraries");
    makeManager();
    m_manager->setScraperLanguage("fr");
    ASSERT_TRUE(m_server.waitUntilHeld());
    m_server.letGo();
    ASSERT_EVENTUALLY(m_server.count("VLibrary.UpdateByLanguage") == 1);
    EXPECT_EQ(m_server.requests("VLibrary.UpdateByLanguage")[0].params["LibraryId"], VideoId);
}

TEST_F(MediaServerManagerCase, UpdateAndRebuildTellBeforeAndAfterTheirRequests)
{
    startManager();
    m_manager->startLibraryUpdate();
    ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateLibraryCompleted true"));
    EXPECT_EQ(m_log.lines(),
              (QStringList{"sig_updateLibraryCompleted false", "sig_updateLibraryCompleted true"}));
    EXPECT_EQ(m_server.requests("VLibrary.Update")[0].params, json("{'LibraryId':7,'scanType':1}"));
    EXPECT_EQ(m_server.requests("VMusicLibrary.UpdateLibrary")[0].params, json("{'idlibrary':8}"));
    m_log.clear();
    m_manager->startLibraryRebuild();
    ASSERT_EVENTUALLY(m_log.lines().size() == 2);
    EXPECT_EQ(m_log.lines(),
              (QStringList{"sig_rebuildLibraryCompleted false", "sig_rebuildLibraryCompleted true"}));
    EXPECT_EQ(m_server.count("VLibrary.Rebuild"), 1);
}

TEST_F(MediaServerManagerCase, FirstUpdateBeginsFiveSecondsAfterTheManager)
{
    startManager();
    QElapsedTimer timer;
    timer.start();
    ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateLibraryCompleted true"));
    EXPECT_GT(timer.elapsed(), 3000);
}

TEST_F(MediaServerManagerCase, VideoFoldersAreAddedAndRemovedWithTheirSignal)
{
    startManager();
    EXPECT_FALSE(m_manager->addVideoPath("/more", "common")) << "no answer";
    EXPECT_TRUE(m_log.lines().isEmpty());
    m_server.answer("VLibrary.AddPath", json("{'PathId':5}"));
    EXPECT_TRUE(m_manager->addVideoPath("/more", "avScraper"));
    EXPECT_EQ(m_manager->videoPaths(), (LibraryPaths::Map{{1, "/films"}, {5, "/more"}}));
    EXPECT_EQ(m_server.requests("VLibrary.AddPath").last().params["scraperType"], "avScraper");
    m_server.answer("VLibrary.DeletePath", json("{'deletePath':false}"));
    EXPECT_FALSE(m_manager->deleteVideoPath("/more"));
    m_server.answer("VLibrary.DeletePath", json("{'deletePath':true}"));
    EXPECT_TRUE(m_manager->deleteVideoPath("/more"));
    EXPECT_EQ(m_manager->videoPaths(), (LibraryPaths::Map{{1, "/films"}}));
    EXPECT_EQ(m_log.lines(), (QStringList{"sig_videoPathChanged", "sig_videoPathChanged"}));
}

TEST_F(MediaServerManagerCase, CountsAreLoggedWhenTheLoadsHaveEnded)
{
    startManager();
    m_server.answer("VLibrary.GetMovies", json("{'movieTotal':1,'movieList':[{'idFile':1}]}"));
    load(1);
    EXPECT_TRUE(
        TestLog::infoLines().contains("[library] 1 movies, 0 collections, 0 shows (0 episodes), 0 videos, "
                                      "0 adult, 0 songs, 0 albums, 0 artists, 0 genres, 0 playlists"));
    EXPECT_EQ(statistics(), QStringList{"UserBehaviour|LibraryMovieCount|less than 10"});
    m_log.clear();
    load(1);
    EXPECT_EQ(statistics().size(), 1) << "once a run";
}

TEST_F(MediaServerManagerCase, EndDoesNotWaitForPausesOrHeldRequests)
{
    startManager();
    m_server.answer("VLibrary.GetMovies", json("{'movieTotal':100000,'movieList':[{'idFile':1}]}"));
    m_server.hold("VLibrary.GetMovies");
    m_manager->reloadLibrary(1);
    ASSERT_TRUE(m_server.waitUntilHeld());
    m_manager.reset();
    EXPECT_LT(m_server.count("VLibrary.GetMovies"), 3);
}

TEST_F(MediaServerManagerCase, NothingIsLoadedAfterTheShutDown)
{
    startManager();
    m_manager->shutDown();
    m_manager->reloadLibrary(1);
    m_manager->waitForLoad(1);
    EXPECT_EQ(m_server.count("VLibrary.GetMovies"), 0);
}

// ---- filters

TEST_F(MediaServerManagerCase, SortIsTakenFromTheSettingsAndStoredThere)
{
    LibraryFilters fresh(m_settings);
    EXPECT_EQ(fresh.query().sortMethod, "title");
    EXPECT_EQ(fresh.query().sortOrder, "ascending") << "an absent order reads true";
    fresh.setSortOrder(false);
    struct Row {
        int index;
        const char *text;
    };
    for (const Row &row : {Row{0, "title"}, Row{1, "year"}, Row{2, "dateadded"}, Row{3, "rating"},
                           Row{4, "rating"}, Row{99, "rating"}}) {
        fresh.setSortMethod(row.index);
        EXPECT_EQ(fresh.query().sortMethod, row.text);
        EXPECT_EQ(m_settings.mediaServerSortMethod(), row.index);
    }
    m_settings.setMediaServerSortMethod(2);
    const LibraryFilters again(m_settings);
    EXPECT_EQ(again.query().sortMethod, "dateadded");
    EXPECT_EQ(again.query().sortOrder, "descending");
}

TEST_F(MediaServerManagerCase, FiltersAreKeptByTypeAndOtherTypesAreRefused)
{
    LibraryFilters filters(m_settings);
    filters.setGenre("movie", "Drama");
    filters.setYear("tvshow", "1999");
    filters.setCountry("song", "France");
    EXPECT_EQ(filters.genre("movie"), "Drama");
    EXPECT_EQ(filters.genre("tvshow"), "");
    EXPECT_EQ(filters.year("tvshow"), "1999");
    EXPECT_EQ(filters.country("song"), "");
}

// ---- paths

TEST(MediaPath, DiscMarksAreTakenOffBehindEitherSeparator)
{
    for (const char *mark : {"folder.bdmv", "folder.ifo", "folder.bdav", "folder.dvdvr", "folder.bdm"}) {
        EXPECT_EQ(MediaPath::resolveMediaPath(QString("D:\\Film\\") + mark), "D:\\Film") << mark;
        EXPECT_EQ(MediaPath::resolveMediaPath(QString("/films/Film/") + mark), "/films/Film") << mark;
    }
}

TEST(MediaPath, PathsWithoutADiscMarkStay)
{
    for (const char *path : {"/f/film.mkv", "/f/myfolder.ifo", "folder.ifo", "/f/folder.ifo/film.mkv", ""})
        EXPECT_EQ(MediaPath::resolveMediaPath(path), path);
}

} // namespace
