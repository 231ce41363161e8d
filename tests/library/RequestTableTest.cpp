// Every request against what the protocol says of it: method, parameters and time-out.
#include "LibraryFixture.h"

#include "library/JsonRpc.h"
#include "library/MusicProtocol.h"
#include "library/VideoProtocol.h"

#include <QJsonDocument>

#include <functional>
#include <vector>

namespace {

struct Row {
    std::function<void(const VideoProtocol &, const MusicProtocol &)> call;
    const char *method;
    const char *params;
    int timeoutSeconds;
};

LibraryQuery query(bool isFiltered)
{
    LibraryQuery query;
    query.sortMethod = "year";
    query.sortOrder = "ascending";
    query.pattern = "find";
    if (isFiltered) {
        query.movie = {"France", "Drama", "2016"};
        query.tvShow = {QString(), "Comedy", QString()};
    }
    return query;
}

void check(const std::vector<Row> &rows)
{
    ScriptedServer server;
    const auto transport = server.transport();
    const JsonRpc rpc(*transport, 32080);
    const VideoProtocol video(rpc);
    const MusicProtocol music(rpc);
    for (const Row &row : rows) {
        server.forgetRequests();
        row.call(video, music);
        const auto requests = server.requests();
        ASSERT_EQ(requests.size(), 1) << row.method;
        EXPECT_EQ(requests[0].method, row.method);
        EXPECT_EQ(requests[0].params, json(row.params))
            << row.method << QJsonDocument(requests[0].params).toJson().constData();
        EXPECT_EQ(requests[0].timeoutSeconds, row.timeoutSeconds) << row.method;
    }
}

using V = const VideoProtocol &;
using M = const MusicProtocol &;

TEST(RequestTable, ServerAndMaintenance)
{
    check({
        {[](V v, M) { (void)v.libraryId(); }, "Server.GetLibraries", "{'type':'all'}", 15},
        {[](V v, M) { (void)v.folders(7); }, "Server.GetLibraryDetail", "{'LibraryId':7}", 15},
        {[](V v, M) { (void)v.heartbeat(); }, "Server.Heartbeat", "{}", 60},
        {[](V v, M) {
             v.setProxy({"host", "80", "me", "secret"});
         },
         "Server.SetProxy", "{'port':'80','ip':'host','username':'me','password':'secret'}", 2},
        {[](V v, M) { v.cancelProxy(); }, "Server.CancelProxy", "{}", 2},
        {[](V v, M) { v.update(7); }, "VLibrary.Update", "{'LibraryId':7,'scanType':1}", 15},
        {[](V v, M) { v.rebuild(); }, "VLibrary.Rebuild", "{}", 15},
        {[](V v, M) { v.updateByLanguage(7, "zh-TW"); }, "VLibrary.UpdateByLanguage",
         "{'LibraryId':7,'language':'zh-TW'}", 60},
        {[](V v, M) { (void)v.addPath(7, "/films", "common"); }, "VLibrary.AddPath",
         "{'LibraryId':7,'path':'/films','name':'','type':'Mix','autoscan':true,'scraperType':'common'}", 15},
        {[](V v, M) { (void)v.deletePath(7, 3); }, "VLibrary.DeletePath", "{'LibraryId':7,'PathId':3}", 15},
    });
}

TEST(RequestTable, VideoLists)
{
    const auto total = [](LibraryRole role, bool isFiltered = false) {
        return [=](V v, M) { (void)v.total(VideoLists::row(role), 7, query(isFiltered)); };
    };
    const auto entry = [](LibraryRole role) {
        return [=](V v, M) { (void)v.entry(VideoLists::row(role), 7, query(false), 4); };
    };
    check({
        {total(LibraryRole::Movies), "VLibrary.GetMovies",
         "{'filter':{'and':[]},'idlibrary':7,'limits':{'start':0,'end':1},'pattern':'find',"
         "'sort':{'method':'year','order':'ascending'}}",
         15},
        {total(LibraryRole::Movies, true), "VLibrary.GetMovies",
         "{'filter':{'and':[{'field':'country','operator':'contains','value':'France'},"
         "{'field':'genre','operator':'contains','value':'Drama'},"
         "{'field':'year','operator':'contains','value':'2016'}]},'idlibrary':7,"
         "'limits':{'start':0,'end':1},'pattern':'find','sort':{'method':'year','order':'ascending'}}",
         15},
        {entry(LibraryRole::Movies), "VLibrary.GetMovies",
         "{'filter':{'and':[]},'idlibrary':7,'limits':{'start':4,'end':5},'pattern':'find',"
         "'sort':{'method':'year','order':'ascending'}}",
         15},
        {entry(LibraryRole::Collections), "VLibrary.GetMovieGroups",
         "{'idlibrary':7,'limits':{'start':4,'end':5},'sort':{'method':'year','order':'ascending'}}", 15},
        {total(LibraryRole::TvShows, true), "VLibrary.GetTVShows",
         "{'filter':{'and':[{'field':'genre','operator':'contains','value':'Comedy'}]},'idlibrary':7,"
         "'limits':{'start':0,'end':1},'pattern':'find','sort':{'method':'year','order':'ascending'}}",
         15},
        {entry(LibraryRole::Videos), "VLibrary.GetVideos",
         "{'idlibrary':7,'limits':{'start':4,'end':5},'pattern':'find'}", 15},
        {total(LibraryRole::AdultContent, true), "VLibrary.GetAvs",
         "{'filter':{'and':[]},'idlibrary':7,'limits':{'start':0,'end':1},'pattern':'find',"
         "'sort':{'method':'year','order':'ascending'}}",
         15},
    });
}

TEST(RequestTable, VideoDetailsAndChanges)
{
    check({
        {[](V v, M) { (void)v.movieDetails(5); }, "VLibrary.GetMovieDetails", "{'idFile':5}", 5},
        {[](V v, M) { (void)v.groupMembers(5, query(true)); }, "VLibrary.GetMovieGroupDetails",
         "{'idMediaGroup':5,'sort':{'method':'year','order':'ascending','ignorearticle':false}}", 15},
        {[](V v, M) { (void)v.seasons(5); }, "VLibrary.GetTvSeasons", "{'idtvshow':5}", 15},
        {[](V v, M) { (void)v.season(5, 2); }, "VLibrary.GetSeasonDetails", "{'idtvshow':5,'iseason':2}", 15},
        {[](V v, M) { (void)v.episodes(5, 2); }, "VLibrary.GetTvEpisodes", "{'idtvshow':5,'iseason':2}", 15},
        {[](V v, M) { (void)v.episode(5, 2, 3); }, "VLibrary.GetEpisodeDetails",
         "{'idtvshow':5,'iseason':2,'iepisode':3}", 15},
        {[](V v, M) { (void)v.countries("movie"); }, "VLibrary.GetCountries", "{'type':'movie'}", 2},
        {[](V v, M) { (void)v.genres("tvshow"); }, "VLibrary.GetGenres", "{'type':'tvshow'}", 2},
        {[](V v, M) { (void)v.years("movie"); }, "VLibrary.GetYears", "{'type':'movie'}", 2},
        {[](V v, M) { (void)v.deleteMovie(5, true); }, "VLibrary.DeleteMovie",
         "{'idFile':5,'deleteFile':true}", 15},
        {[](V v, M) { (void)v.deleteEpisode(5, false); }, "VLibrary.DeleteEpisode",
         "{'idFile':5,'deleteFile':false}", 15},
        {[](V v, M) { (void)v.searchMovie("film", "2010"); }, "VLibrary.ScraperSearchMovie",
         "{'language':'','strScraperName':'film','strScraperYear':'2010','strSearchFrom':'tmdb'}", 15},
        {[](V v, M) { (void)v.searchTvShow("show", ""); }, "VLibrary.ScraperSearchTvshow",
         "{'language':'','strScraperName':'show','strScraperYear':''}", 15},
        {[](V v, M) {
             (void)v.makeMovie({5, "m1", "tvshow"});
         },
         "VLibrary.ModifiedToMovie",
         "{'idFile':5,'language':'','strScraperFrom':'tmdb','strScraperId':'m1','strSourceMediaType':'tvshow'"
         "}",
         15},
        {[](V v, M) {
             (void)v.makeEpisode({5, "m1", ""}, 2, 3);
         },
         "VLibrary.ModifiedToEpisode",
         "{'idFile':5,'iSeason':2,'iEpisode':3,'language':'','strScraperFrom':'tmdb','strScraperId':'m1',"
         "'strSourceMediaType':''}",
         15},
    });
}

#define ADDED(order) "'sort':{'ignorearticle':false,'method':'" order "','order':'descending'}"

TEST(RequestTable, MusicLists)
{
    check({
        {[](V, M m) { (void)m.libraryId(); }, "VMusicLibrary.GetLibraries", "{'type':'all'}", 15},
        {[](V, M m) { (void)m.folders(8); }, "VMusicLibrary.GetLibraryDetail", "{'LibraryId':8}", 15},
        {[](V, M m) { (void)m.total(MusicLists::Songs, 8); }, "VMusicLibrary.GetMusics",
         "{'idlibrary':8,'limits':{'start':0,'end':0}," ADDED("dateadded") "}", 15},
        {[](V, M m) { (void)m.entries(MusicLists::Songs, 8, 90); }, "VMusicLibrary.GetMusics",
         "{'idlibrary':8,'limits':{'start':0,'end':90}," ADDED("dateadded") "}", 15},
        {[](V, M m) { (void)m.total(MusicLists::RecentSongs, 8); }, "VMusicLibrary.GetRencentSongs",
         "{'idlibrary':8,'limits':{'start':0,'end':0}," ADDED("modifiedtime") "}", 15},
        {[](V, M m) { (void)m.playlists(8); }, "VMusicLibrary.GetPlayLists", "{'idlibrary':8}", 15},
        {[](V, M m) { (void)m.entries(MusicLists::PlaylistSongs, 8, 2, MusicProtocol::ofPlaylist(4)); },
         "VMusicLibrary.GetPlayListMusics",
         "{'idlibrary':8,'idPlayList':4,'limits':{'start':0,'end':2}," ADDED("dateadded") "}", 15},
        {[](V, M m) { (void)m.total(MusicLists::Albums, 8); }, "VMusicLibrary.GetAlbums",
         "{'idlibrary':8,'limits':{'start':0,'end':0}," ADDED("dateadded") "}", 15},
        {[](V, M m) { (void)m.total(MusicLists::AlbumSongs, 8, MusicProtocol::ofAlbum(4)); },
         "VMusicLibrary.GetAlbumMusics", "{'idAlbum':4,'limits':{'start':0,'end':0}," ADDED("title") "}", 15},
        {[](V, M m) { (void)m.entries(MusicLists::AlbumSongs, 8, 2, MusicProtocol::ofAlbum(4)); },
         "VMusicLibrary.GetAlbumMusics", "{'idAlbum':4,'limits':{'start':0,'end':2}," ADDED("dateadded") "}",
         15},
        {[](V, M m) { (void)m.artists(8); }, "VMusicLibrary.GetArtists", "{'idlibrary':8}", 15},
        {[](V, M m) { (void)m.total(MusicLists::ArtistSongs, 8, MusicProtocol::ofArtist("Ann")); },
         "VMusicLibrary.GetArtistMusics",
         "{'idlibrary':8,'artist':'Ann','limits':{'start':0,'end':0}," ADDED("dateadded") "}", 15},
        {[](V, M m) { (void)m.genres(8); }, "VMusicLibrary.GetGenres", "{'idlibrary':8}", 15},
        {[](V, M m) { (void)m.total(MusicLists::GenreSongs, 8, MusicProtocol::ofGenre("Rock")); },
         "VMusicLibrary.GetGenreMusics",
         "{'idlibrary':8,'genre':'Rock','limits':{'start':0,'end':0}," ADDED("dateadded") "}", 15},
        {[](V, M m) { (void)m.statistics(); }, "VMusicLibrary.GetStatisticsData", "{}", 15},
    });
}

TEST(RequestTable, MusicChanges)
{
    check({
        {[](V, M m) { m.update(8); }, "VMusicLibrary.UpdateLibrary", "{'idlibrary':8}", 15},
        {[](V, M m) { (void)m.addPath(8, "/songs"); }, "VMusicLibrary.AddPath",
         "{'LibraryId':8,'path':'/songs','name':'','autoscan':true}", 15},
        {[](V, M m) { (void)m.deletePath(8, 2); }, "VMusicLibrary.DeletePath", "{'LibraryId':8,'PathId':2}",
         15},
        {[](V, M m) { (void)m.createPlaylist("p", "t", "o"); }, "VMusicLibrary.CreatePlayList",
         "{'poster':'p','title':'t','overview':'o'}", 15},
        {[](V, M m) { (void)m.fixPlaylist(4, "p", "t", "o"); }, "VMusicLibrary.FixPlaylist",
         "{'idPlaylist':4,'poster':'p','title':'t','overview':'o'}", 15},
        {[](V, M m) { (void)m.fixAlbum(4, "p"); }, "VMusicLibrary.FixAlbum", "{'idAlbum':4,'poster':'p'}",
         15},
        {[](V, M m) { (void)m.fixArtist("Ann", "p"); }, "VMusicLibrary.FixArtist",
         "{'artist':'Ann','poster':'p'}", 15},
        {[](V, M m) { (void)m.fixSong(5); }, "VMusicLibrary.FixMusic", "{'idFile':5}", 15},
        {[](V, M m) {
             (void)m.editSong(5, {"t", "p", "a", "g", 61, 1999});
         },
         "VMusicLibrary.EditeMusic",
         "{'idFile':5,'title':'t','poster':'p','artist':'a','genre':'g','runtime':61,'year':1999}", 15},
        {[](V, M m) { (void)m.addToPlaylist(4, 5); }, "VMusicLibrary.AddMusicToPlayList",
         "{'idPlayList':4,'idFile':5}", 15},
        {[](V, M m) { (void)m.removeFromPlaylist(4, 5, true); }, "VMusicLibrary.DelMusicToPlayList",
         "{'idPlayList':4,'idFile':5,'delete':true}", 15},
        {[](V, M m) { (void)m.like(5); }, "VMusicLibrary.AddMusicToLike", "{'idFile':5}", 15},
        {[](V, M m) { (void)m.unlike(5); }, "VMusicLibrary.DelMusicToLike", "{'idFile':5}", 15},
        {[](V, M m) { (void)m.deletePlaylist(4, false); }, "VMusicLibrary.DelPlist",
         "{'delete':false,'idPlayList':4}", 15},
        {[](V, M m) { (void)m.addRecent(5); }, "VMusicLibrary.AddRecentPlaySong", "{'idFile':5}", 15},
        {[](V, M m) { (void)m.deleteAll("artist", "Ann", true); }, "VMusicLibrary.DelAllMusic",
         "{'delete':true,'type':'artist','name':'Ann'}", 15},
        {[](V, M m) { (void)m.deleteAll("genre", "Rock", false); }, "VMusicLibrary.DelAllMusic",
         "{'delete':false,'type':'genre','name':'Rock'}", 15},
        {[](V, M m) { (void)m.deleteAll("album", "12", false); }, "VMusicLibrary.DelAllMusic",
         "{'delete':false,'type':'album','idAlbum':12}", 15},
        {[](V, M m) { (void)m.searchSongs("t", "a"); }, "VMusicLibrary.SearchScraperMusics",
         "{'title':'t','artist':'a'}", 30},
    });
}

} // namespace
