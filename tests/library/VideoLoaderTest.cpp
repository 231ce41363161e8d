#include "LibraryFixture.h"

#include "support/TestLog.h"

#include "library/LibraryFilters.h"

namespace {

class VideoLoaderCase : public LibraryFixture {
protected:
    // A list of films with the ids 1 to count, one an answer.
    void answerList(const QString &method, const QString &listKey, bool hasNestedTotal, int count,
                    const QString &idKey = "idFile")
    {
        m_server.answer(method, [=](const QJsonObject &params) -> QJsonValue {
            const QJsonObject limits = params.value("limits").toObject();
            QJsonArray list;
            for (int i = limits.value("start").toInt(); i < qMin(count, limits.value("end").toInt()); ++i)
                list.append(QJsonObject{{idKey, i + 1}, {"title", QStringLiteral("t%1").arg(i + 1)}});
            QJsonObject result{{listKey, list}};
            if (hasNestedTotal)
                result.insert("limits", QJsonObject{{"total", count}});
            else
                result.insert("movieTotal", count);
            return result;
        });
    }
};

TEST_F(VideoLoaderCase, EachRoleAsksForTheTotalAndThenForOneRecordAtATime)
{
    struct Row {
        int role;
        const char *method;
        const char *list;
        bool hasNestedTotal;
        const char *idKey;
        const char *signal;
        VideoCache::Kind kind;
    };
    startManager();
    for (const Row &row :
         {Row{1, "VLibrary.GetMovies", "movieList", false, "idFile", "sig_newMovieLoaded",
              VideoCache::Movies},
          Row{2, "VLibrary.GetMovieGroups", "groups", true, "idGroup", "sig_newCollectionLoaded",
              VideoCache::Collections},
          Row{3, "VLibrary.GetTVShows", "tvshowList", true, "idTvshow", "sig_newTvShowLoaded",
              VideoCache::Shows},
          Row{4, "VLibrary.GetVideos", "videoList", true, "idFile", "sig_newVideoLoaded", VideoCache::Videos},
          Row{5, "VLibrary.GetAvs", "avList", false, "idFile", "sig_newAdultContentLoad",
              VideoCache::AdultItems}}) {
        answerList(row.method, row.list, row.hasNestedTotal, 2, row.idKey);
        m_log.clear();
        load(row.role);
        QStringList limits;
        const auto requests = m_server.requests(row.method);
        for (const auto &request : requests) {
            const QJsonObject asked = request.params.value("limits").toObject();
            EXPECT_EQ(request.params.value("idlibrary").toInt(), VideoId);
            limits.append(QStringLiteral("%1-%2").arg(asked["start"].toInt()).arg(asked["end"].toInt()));
        }
        EXPECT_EQ(limits, (QStringList{"0-1", "0-1", "1-2"})) << row.method;
        const QString state = QStringLiteral("sig_mediaScanStateChanged %1").arg(row.role);
        const QString name = QLatin1String(row.signal);
        EXPECT_EQ(m_log.lines(), (QStringList{state, QStringLiteral("sig_reLoadData %1").arg(row.role),
                                              name + " 1", name + " 2", state}));
        EXPECT_EQ(m_manager->videos().ids(row.kind), (QStringList{"1", "2"})) << row.method;
        EXPECT_EQ(m_manager->videos().item(row.kind, "2").title, "t2") << row.method;
    }
}

TEST_F(VideoLoaderCase, TotalOfZeroSendsExactlyOneRequest)
{
    startManager();
    answerList("VLibrary.GetMovies", "movieList", false, 0);
    load(1);
    EXPECT_EQ(m_server.count("VLibrary.GetMovies"), 1);
}

TEST_F(VideoLoaderCase, RetOfOneWithAResultYieldsNoRecords)
{
    startManager();
    m_server.answerRaw("VLibrary.GetMovies",
                       R"({"ret":1,"result":{"movieTotal":1,"movieList":[{"idFile":1,"title":"x"}]}})");
    load(1);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 0);
    EXPECT_EQ(m_server.count("VLibrary.GetMovies"), 1);
}

TEST_F(VideoLoaderCase, ReloadEmptiesTheModelBeforeTheFirstRecordOfTheNewList)
{
    startManager();
    answerList("VLibrary.GetMovies", "movieList", false, 3);
    load(1);
    answerList("VLibrary.GetMovies", "movieList", false, 1);
    m_log.clear();
    load(1);
    EXPECT_EQ(m_log.lines().indexOf("sig_reLoadData 1"), 1);
    EXPECT_EQ(m_log.lines().indexOf("sig_newMovieLoaded 1"), 2);
    EXPECT_EQ(m_manager->videos().ids(VideoCache::Movies), QStringList{"1"});
}

TEST_F(VideoLoaderCase, AllThreeFiltersSendThreeElementsCountryFirst)
{
    startManager();
    m_manager->filters().setYear("movie", "2016");
    m_manager->filters().setGenre("movie", "Drama");
    m_manager->filters().setCountry("movie", "France");
    load(1);
    const QJsonArray conditions =
        m_server.requests("VLibrary.GetMovies")[0].params["filter"].toObject()["and"].toArray();
    ASSERT_EQ(conditions.size(), 3);
    EXPECT_EQ(conditions[0].toObject(), json("{'field':'country','operator':'contains','value':'France'}"));
    EXPECT_EQ(conditions[1].toObject()["field"], "genre");
    EXPECT_EQ(conditions[2].toObject()["field"], "year");
}

TEST_F(VideoLoaderCase, YearOfZeroIsEmptyAndOthersAreText)
{
    startManager();
    m_server.answer("VLibrary.GetMovies", json("{'movieTotal':1,'movieList':[{'idFile':1,'year':0,"
                                               "'rating':'7.5'},{'idFile':2,'year':2016,'rating':7.5}]}"));
    load(1);
    EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, "1").year, "");
    EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, "2").year, "2016");
    EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, "1").rating, "7.5");
    EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, "2").rating, "7.5");
}

TEST_F(VideoLoaderCase, UnknownIdGivesEmptyFieldsAndNoFiles)
{
    startManager();
    const MediaItem item = m_manager->videos().item(VideoCache::Collections, "99");
    EXPECT_TRUE(item.title.isEmpty());
    EXPECT_EQ(item.fileCount, 0);
}

TEST_F(VideoLoaderCase, RecordsWithoutAnIdAreLeftOutWithALogLine)
{
    startManager();
    m_server.answer("VLibrary.GetVideos",
                    json("{'limits':{'total':1},'videoList':[5,{'title':'x'},{'idFile':'4'},{'idFile':3}]}"));
    load(4);
    EXPECT_EQ(m_manager->videos().ids(VideoCache::Videos), QStringList{"3"});
    EXPECT_EQ(TestLog::infoLines().filter("names a record without idFile").size(), 3);
}

TEST_F(VideoLoaderCase, CollectionHoldsItsMembersBeforeItIsTold)
{
    startManager();
    m_server.answer("VLibrary.GetMovieGroups",
                    json("{'limits':{'total':1},'groups':[{'idGroup':4,'title':'Trilogy','fileCount':2}]}"));
    m_server.answer("VLibrary.GetMovieGroupDetails",
                    json("{'groupDetails':[{'idFile':12,'title':'b'},{'idFile':11,'title':'a'}]}"));
    QStringList seen;
    QObject::connect(
        m_manager.get(), &MediaServerManager::sig_newCollectionLoaded, m_manager.get(),
        [&](const QString &id) { seen = m_manager->videos().linked(VideoCache::CollectionToMembers, id); },
        Qt::DirectConnection);
    load(2);
    EXPECT_EQ(seen, (QStringList{"12", "11"}));
    EXPECT_EQ(m_manager->videos().item(VideoCache::CollectionMembers, "11").title, "a");
    EXPECT_EQ(m_manager->videos().item(VideoCache::Collections, "4").fileCount, 2);
    EXPECT_EQ(m_server.requests("VLibrary.GetMovieGroupDetails")[0].params["idMediaGroup"], 4);
}

TEST_F(VideoLoaderCase, ShowOfFiveSeasonsOfTwentyCostsWhatTheProtocolSays)
{
    startManager();
    answerList("VLibrary.GetTVShows", "tvshowList", true, 1, "idTvshow");
    m_server.answer("VLibrary.GetTvSeasons",
                    json("{'seasonList':[{'iSeason':1},{'iSeason':2},{'iSeason':3},{'iSeason':4},"
                         "{'iSeason':5}]}"));
    m_server.answer("VLibrary.GetSeasonDetails", [](const QJsonObject &params) -> QJsonValue {
        const int season = params["iseason"].toInt();
        return QJsonObject{{"seasonDetils", QJsonObject{{"idSeason", 100 + season}, {"iSeason", season}}}};
    });
    m_server.answer("VLibrary.GetTvEpisodes", [](const QJsonObject &) -> QJsonValue {
        QJsonArray list;
        for (int i = 1; i <= 20; ++i)
            list.append(QJsonObject{{"iEpisode", i}});
        return QJsonObject{{"episodeList", list}};
    });
    m_server.answer("VLibrary.GetEpisodeDetails", [](const QJsonObject &params) -> QJsonValue {
        const int episode = params["iepisode"].toInt();
        const int id = params["iseason"].toInt() * 1000 + episode;
        return QJsonObject{{"episodeDetils", QJsonObject{{"idFile", id},
                                                         {"iEpisode", episode},
                                                         {"title", "Pilot"},
                                                         {"path", QStringLiteral("/tv/%1.mkv").arg(id)}}}};
    });
    load(3);
    // The total, and then the show with all that belongs to it.
    EXPECT_EQ(m_server.requests().size() - m_server.count("Server.Heartbeat"), 1 + 1 + 1 + 5 + 5 + 100);
    const VideoCache &cache = m_manager->videos();
    EXPECT_EQ(cache.linked(VideoCache::ShowToSeasons, "1"), (QStringList{"101", "102", "103", "104", "105"}));
    EXPECT_EQ(cache.linked(VideoCache::SeasonToEpisodes, "102").size(), 20);
    EXPECT_EQ(cache.item(VideoCache::Seasons, "102").seasonTitle, "t1: Season 2");
    EXPECT_EQ(cache.item(VideoCache::Seasons, "102").number, 2);
    EXPECT_EQ(cache.item(VideoCache::Episodes, "2003").episodeTitle, "t1 S2E3: Pilot");
    EXPECT_EQ(cache.item(VideoCache::Episodes, "2003").number, 3);
    EXPECT_EQ(m_manager->lookupEpisodeByPath("/tv/2003.mkv"), "2003");
    EXPECT_EQ(m_manager->lookupEpisodeByPath("/tv/none.mkv"), "");
    EXPECT_EQ(m_log.lines().filter("sig_newTvShowLoaded"), QStringList{"sig_newTvShowLoaded 1"});
    EXPECT_EQ(statistics(), QStringList{"UserBehaviour|LibraryTvshowEpisodeCount|50 ~ 200"});
}

TEST_F(VideoLoaderCase, ReloadEndsTheLoadThatRunsAndLosesNothingOfOtherRoles)
{
    startManager();
    answerList("VLibrary.GetMovies", "movieList", false, 1000);
    answerList("VLibrary.GetVideos", "videoList", true, 3);
    m_server.hold("VLibrary.GetMovies");
    m_manager->reloadLibrary(1);
    ASSERT_TRUE(m_server.waitUntilHeld());
    EXPECT_TRUE(m_manager->isLoading(1));
    m_manager->reloadLibrary(4);
    m_manager->waitForLoad(4);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Videos), 3);
    answerList("VLibrary.GetMovies", "movieList", false, 2);
    m_server.letGo();
    m_manager->reloadLibrary(1);
    m_manager->waitForLoad(1);
    EXPECT_EQ(m_manager->videos().ids(VideoCache::Movies), (QStringList{"1", "2"}));
    EXPECT_FALSE(m_manager->isLoading(1));
}

} // namespace
