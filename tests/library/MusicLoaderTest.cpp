#include "MusicFixture.h"

#include <atomic>
#include <thread>

namespace {

class MusicLoaderCase : public MusicFixture {};

TEST_F(MusicLoaderCase, SixListsInOrderWithTheirSignals)
{
    startManager();
    answerSongs(TwoSongs);
    load(6);
    EXPECT_EQ(m_log.lines(),
              (QStringList{"sig_mediaScanStateChanged 6", "sig_reLoadData 6", "sig_musicSongLoaded 1",
                           "sig_musicSongLikeChanged 1", "sig_musicSongLoaded 2", "sig_musicRecentClean",
                           "sig_musicRecentSongChanged 2", "sig_musicRecentSongChanged 1",
                           "sig_musicPlaylistLoaded 4", "sig_musicAlbumLoaded 6", "sig_musicArtistLoaded Ann",
                           "sig_musicGenresLoaded Rock", "sig_mediaScanStateChanged 6"}));
    const MusicCache &music = m_manager->music();
    EXPECT_EQ(music.likedSongs(), QStringList{"1"});
    EXPECT_EQ(music.recentSongs(), (QStringList{"2", "1"}));
    EXPECT_TRUE(music.song("1").like);
    EXPECT_EQ(music.song("1").iTrack, -1);
    EXPECT_EQ(music.songByPath("/b.mp3"), "2");
    EXPECT_EQ(music.playlist("4").songs, (QStringList{"2", "1"})) << "one id each";
    EXPECT_EQ(music.playlist("4").overview, "o");
    EXPECT_EQ(music.album("6").year, 1999);
    EXPECT_EQ(music.album("6").songs, QStringList{"1"});
    EXPECT_EQ(music.artist("Ann").poster, "ann.jpg");
    EXPECT_EQ(music.artist("Ann").songs, QStringList{"2"});
    EXPECT_EQ(music.genres(), QStringList{"Rock"});
    EXPECT_EQ(statistics(), QStringList{"UserBehaviour|LibraryMusicContentCount|less than 50"});
}

TEST_F(MusicLoaderCase, TotalOfZeroSendsASecondRequestWithEndZero)
{
    startManager();
    m_server.answer("VMusicLibrary.GetMusics", json(NoSongs));
    load(6);
    const auto requests = m_server.requests("VMusicLibrary.GetMusics");
    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests[1].params["limits"].toObject(), json("{'start':0,'end':0}"));
    EXPECT_TRUE(m_manager->music().songs().isEmpty());
}

TEST_F(MusicLoaderCase, SecondStepAsksForTheWholeList)
{
    startManager();
    answerSongs(TwoSongs);
    load(6);
    const auto requests = m_server.requests("VMusicLibrary.GetMusics");
    ASSERT_EQ(requests.size(), 2);
    EXPECT_EQ(requests[1].params["limits"].toObject(), json("{'start':0,'end':2}"));
    EXPECT_EQ(requests[1].params["idlibrary"], MusicId);
}

TEST_F(MusicLoaderCase, TrackOfACueSheetCarriesItsNumberInThePath)
{
    startManager();
    answerSongs("{'musicTotal':1,'musicList':[{'idFile':1,'iTrack':3,'path':'D:\\\\a.cue','cuePath':'c'}]}");
    load(6);
    EXPECT_EQ(m_manager->music().song("1").path, "3_D:\\a.cue");
    EXPECT_EQ(m_manager->music().songByPath("3_D:\\a.cue"), "1");
}

TEST_F(MusicLoaderCase, SortStaysWhateverTheUserChoseForVideoLists)
{
    startManager();
    m_manager->setSortMethod(3);
    m_manager->setSortOrder(true);
    answerSongs(TwoSongs);
    load(6);
    for (const auto &request : m_server.requests("VMusicLibrary.GetMusics"))
        EXPECT_EQ(request.params["sort"].toObject(),
                  json("{'ignorearticle':false,'method':'dateadded','order':'descending'}"));
}

TEST_F(MusicLoaderCase, ListThatCannotBeFetchedLeavesTheCachesEmpty)
{
    startManager();
    answerSongs(TwoSongs);
    load(6);
    for (const QString &method : m_server.methods())
        m_server.forget(method);
    m_log.clear();
    load(6);
    EXPECT_TRUE(m_manager->music().songs().isEmpty());
    EXPECT_TRUE(m_manager->music().likedSongs().isEmpty());
    EXPECT_TRUE(m_manager->music().playlists().isEmpty());
}

TEST_F(MusicLoaderCase, GettersMayRunWhileAllRolesLoad)
{
    startManager();
    answerSongs(TwoSongs);
    m_server.answer("VLibrary.GetMovies", json("{'movieTotal':200,'movieList':[{'idFile':1,'title':'x'}]}"));
    m_server.answer("VLibrary.GetTVShows", json("{'limits':{'total':50},'tvshowList':[{'idTvshow':1}]}"));
    std::atomic<bool> isDone{false};
    std::thread reader([&] {
        while (!isDone) {
            (void)m_manager->videos().item(VideoCache::Movies, "1");
            (void)m_manager->videos().ids(VideoCache::Shows);
            (void)m_manager->music().playlist("4");
            (void)m_manager->music().likedSongs();
            (void)m_manager->isLoading(1);
            (void)m_manager->isScanFinished();
            (void)m_manager->videoPaths();
            (void)m_manager->lookupEpisodeByPath("/x");
        }
    });
    for (int round = 0; round < 5; ++round) {
        for (int role = 1; role <= 6; ++role)
            m_manager->reloadLibrary(role);
    }
    for (int role = 1; role <= 6; ++role)
        m_manager->waitForLoad(role);
    isDone = true;
    reader.join();
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 1);
    EXPECT_EQ(m_manager->music().playlist("4").songs.size(), 2);
}

} // namespace
