#include "ProtocolFixture.h"

#include "support/TestLog.h"

#include <random>

namespace {

using RpcDispatcherTest = ProtocolFixture;

const char list[] =
    R"({"idlibrary":1,"limits":{"start":0,"end":1},"sort":{"method":"title","order":"ascending"}})";

} // namespace

TEST_F(RpcDispatcherTest, EveryMethodOfTheProtocolIsInTheTable)
{
    const QStringList expected =
        QStringLiteral(
            "Server.CancelProxy Server.GetLibraries Server.GetLibraryDetail Server.Heartbeat Server.SetProxy "
            "VLibrary.AddPath VLibrary.DeleteEpisode VLibrary.DeleteMovie VLibrary.DeletePath "
            "VLibrary.GetAvDetails VLibrary.GetAvs VLibrary.GetCountries VLibrary.GetEpisodeDetails "
            "VLibrary.GetGenres VLibrary.GetMovieDetails VLibrary.GetMovieGroupDetails "
            "VLibrary.GetMovieGroups "
            "VLibrary.GetMovies VLibrary.GetSeasonDetails VLibrary.GetTVShows VLibrary.GetTvEpisodes "
            "VLibrary.GetTvSeasons VLibrary.GetVideos VLibrary.GetYears VLibrary.ModifiedToEpisode "
            "VLibrary.ModifiedToMovie VLibrary.Rebuild VLibrary.ScraperSearchMovie "
            "VLibrary.ScraperSearchTvshow "
            "VLibrary.Update VLibrary.UpdateByLanguage VMusicLibrary.AddMusicToLike "
            "VMusicLibrary.AddMusicToPlayList VMusicLibrary.AddPath VMusicLibrary.AddRecentPlaySong "
            "VMusicLibrary.CreatePlayList VMusicLibrary.DelAllMusic VMusicLibrary.DelMusic "
            "VMusicLibrary.DelMusicToLike VMusicLibrary.DelMusicToPlayList VMusicLibrary.DelPlist "
            "VMusicLibrary.DeletePath VMusicLibrary.EditeMusic VMusicLibrary.FixAlbum "
            "VMusicLibrary.FixArtist "
            "VMusicLibrary.FixMusic VMusicLibrary.FixPlaylist VMusicLibrary.GetAlbumMusics "
            "VMusicLibrary.GetAlbums VMusicLibrary.GetArtistMusics VMusicLibrary.GetArtists "
            "VMusicLibrary.GetGenreMusics VMusicLibrary.GetGenres VMusicLibrary.GetLibraries "
            "VMusicLibrary.GetLibraryDetail VMusicLibrary.GetMusics VMusicLibrary.GetPlayListMusics "
            "VMusicLibrary.GetPlayLists VMusicLibrary.GetRencentSongs VMusicLibrary.GetStatisticsData "
            "VMusicLibrary.SearchScraperMusics VMusicLibrary.UpdateLibrary")
            .split(QLatin1Char(' '));
    EXPECT_EQ(m_dispatcher.table().names(), expected);
}

TEST_F(RpcDispatcherTest, AMissingKeyIsNamedByEveryMethodThatNeedsOne)
{
    for (const QString &name : m_dispatcher.table().names()) {
        for (const ParamRow &row : m_dispatcher.table().find(name)->params) {
            if (row.need == Need::Optional)
                continue;
            const std::string message = refusal(qPrintable(name), "{}");
            EXPECT_NE(message.find("is missing"), std::string::npos) << qPrintable(name) << ' ' << message;
            break;
        }
    }
}

TEST_F(RpcDispatcherTest, AWrongTypeOfAnyKeyIsAnErrorThatNamesIt)
{
    for (const QString &name : m_dispatcher.table().names()) {
        QJsonObject params;
        for (const ParamRow &row : m_dispatcher.table().find(name)->params) {
            params.insert(row.key, QJsonValue());
            const QByteArray body = QJsonDocument(QJsonObject{{"method", name}, {"params", params}}).toJson();
            const QJsonObject reply = send(body);
            EXPECT_EQ(reply.value("ret").toInt(-1), 1) << body.constData();
            EXPECT_TRUE(reply.value("message").toString().startsWith("key \"")) << body.constData();
        }
    }
}

TEST_F(RpcDispatcherTest, TheIdComesBackAsItCame)
{
    for (const char *id : {"\"-4107005651705192377\"", "7", "-9007199254740991", "1.5", "null", "true",
                           "[1,\"a\"]", "{\"a\":{}}", "\"\""}) {
        const QJsonObject reply = send(QByteArray("{\"id\":") + id + ",\"method\":\"Server.Heartbeat\"}");
        const QJsonArray expected = QJsonDocument::fromJson(QByteArray("[") + id + ']').array();
        EXPECT_EQ(reply.value("id"), expected.first()) << id;
        EXPECT_EQ(reply.value("ret"), QJsonValue(0)) << id;
        EXPECT_EQ(reply.value("jsonrpc"), QJsonValue("2.0")) << id;
    }
    EXPECT_TRUE(send("{").value("id").isNull());
}

TEST_F(RpcDispatcherTest, ParamsMayBeAbsentOnlyWhereNoKeyIsNeeded)
{
    EXPECT_EQ(send(R"({"method":"Server.Heartbeat"})").value("ret"), QJsonValue(0));
    const QJsonObject reply = send(R"({"method":"VLibrary.GetMovies"})");
    EXPECT_EQ(reply.value("ret"), QJsonValue(1));
    EXPECT_TRUE(reply.value("message").toString().startsWith("key \"params\" is missing"));
}

TEST_F(RpcDispatcherTest, AnUnknownMethodIsAnError)
{
    EXPECT_EQ(refusal("VLibrary.getmovies", "{}"), "there is no such method: VLibrary.getmovies");
}

TEST_F(RpcDispatcherTest, AMethodThatThrowsIsAnErrorAndTheNextCallWorks)
{
    TestLog::expectWarning(QRegularExpression(QStringLiteral("method has thrown")));
    m_videos.throws = true;
    EXPECT_EQ(refusal("VLibrary.GetMovies", list), "the server could not carry out the method");
    m_videos.throws = false;
    EXPECT_EQ(result("VLibrary.GetMovies", list).value("movieTotal"), QJsonValue(0));
}

TEST_F(RpcDispatcherTest, TheHeartbeatTellsScansAsTextAndProvidersAsTruth)
{
    m_tasks.finished = false;
    m_tasks.scraperFinished = true;
    QJsonObject beat = result("Server.Heartbeat", "{}");
    EXPECT_EQ(beat.value("Finished"), QJsonValue("0"));
    EXPECT_EQ(beat.value("ScraperFinished"), QJsonValue(true));
    m_tasks.finished = true;
    beat = result("Server.Heartbeat", "{}");
    EXPECT_EQ(beat.value("Finished"), QJsonValue("1"));
    EXPECT_EQ(beat.value("ScraperFinished"), QJsonValue(false));
}

TEST_F(RpcDispatcherTest, StatisticsAreATextThatIsJsonItself)
{
    m_videos.items[Role::Movies] = QVector<MovieRecord>(3);
    m_music.all = QVector<SongRecord>(5);
    const QJsonValue text = call("VMusicLibrary.GetStatisticsData", "{}").value("result");
    ASSERT_TRUE(text.isString());
    const QJsonObject counts =
        QJsonDocument::fromJson(text.toString().toLatin1()).object().value("movieServer").toObject();
    EXPECT_EQ(counts.value("movies"), QJsonValue(3));
    EXPECT_EQ(counts.value("songs"), QJsonValue(5));
    EXPECT_EQ(counts.value("artists"), QJsonValue(1));
}

TEST_F(RpcDispatcherTest, TasksAndTheProviderAreTold)
{
    EXPECT_TRUE(result("VLibrary.Update", R"({"LibraryId":1,"scanType":1})").value("update").toBool());
    EXPECT_TRUE(result("VMusicLibrary.UpdateLibrary", R"({"idlibrary":2})").value("update").toBool());
    EXPECT_TRUE(result("VLibrary.Rebuild", "{}").value("rebuild").toBool());
    EXPECT_TRUE(result("VLibrary.UpdateByLanguage", R"({"LibraryId":1,"language":"zh-TW"})")
                    .value("update")
                    .toBool());
    EXPECT_TRUE(result("Server.SetProxy", R"({"ip":"h","port":"80","username":"","password":""})")
                    .value("setResult")
                    .toBool());
    EXPECT_TRUE(result("Server.CancelProxy", "{}").value("CancelProxy").toBool());
    EXPECT_EQ(m_tasks.calls.join(','), QStringLiteral("update 1,update 2,rebuild,language zh-TW"));
    EXPECT_EQ(m_metadata.calls.join(','), QStringLiteral("zh-TW,h:80,cancel"));
    EXPECT_EQ(refusal("VLibrary.Update", R"({"LibraryId":2})"), "there is no such library: 2");
    EXPECT_EQ(refusal("VLibrary.UpdateByLanguage", R"({"LibraryId":1,"language":"../x"})"),
              "key \"language\" names no language");
}

TEST_F(RpcDispatcherTest, ThousandsOfDamagedRequestsAllGetAReply)
{
    std::mt19937 random(20240817);
    QVector<QByteArray> seeds;
    for (const QString &name : m_dispatcher.table().names())
        seeds.append(R"({"id":"1","method":")" + name.toUtf8() + R"(","params":)"
                     + QByteArray(list).replace("\"idlibrary\"", R"("idFile":1,"type":"movie","idlibrary")")
                     + '}');
    const QByteArray odd("{}[]\",:\\0-e.\xff\xc3 \n", 17);
    for (int i = 0; i < 5000; ++i) {
        QByteArray body = seeds.at(int(random() % unsigned(seeds.size())));
        for (unsigned n = random() % 6; n > 0 && !body.isEmpty(); --n) {
            const int at = int(random() % unsigned(body.size()));
            switch (random() % 4) {
            case 0:
                body[at] = odd.at(int(random() % unsigned(odd.size())));
                break;
            case 1:
                body.remove(at, int(random() % 8));
                break;
            case 2:
                body.insert(at, body.mid(int(random() % unsigned(body.size())), int(random() % 16)));
                break;
            default:
                body.truncate(at);
            }
        }
        const QJsonObject reply = send(body);
        const int ret = reply.value("ret").toInt(-1);
        ASSERT_TRUE(ret == 0 || ret == 1) << body.constData();
        ASSERT_EQ(reply.contains("result"), ret == 0) << body.constData();
        ASSERT_EQ(reply.value("message").toString().isEmpty(), ret == 0) << body.constData();
    }
}
