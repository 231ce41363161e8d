// Every method, key and fixed text that goes over the wire between the player and the media server. The
// spellings are the protocol's own.
#pragma once

namespace Rpc {

inline constexpr char RequestId[] = "-4107005651705192377";
inline constexpr char Version[] = "2.0";

namespace Method {

inline constexpr char ServerGetLibraries[] = "Server.GetLibraries";
inline constexpr char ServerGetLibraryDetail[] = "Server.GetLibraryDetail";
inline constexpr char Heartbeat[] = "Server.Heartbeat";
inline constexpr char SetProxy[] = "Server.SetProxy";
inline constexpr char CancelProxy[] = "Server.CancelProxy";

inline constexpr char Update[] = "VLibrary.Update";
inline constexpr char Rebuild[] = "VLibrary.Rebuild";
inline constexpr char UpdateByLanguage[] = "VLibrary.UpdateByLanguage";
inline constexpr char AddPath[] = "VLibrary.AddPath";
inline constexpr char DeletePath[] = "VLibrary.DeletePath";
inline constexpr char GetMovies[] = "VLibrary.GetMovies";
inline constexpr char GetMovieDetails[] = "VLibrary.GetMovieDetails";
inline constexpr char GetMovieGroups[] = "VLibrary.GetMovieGroups";
inline constexpr char GetMovieGroupDetails[] = "VLibrary.GetMovieGroupDetails";
inline constexpr char GetTVShows[] = "VLibrary.GetTVShows";
inline constexpr char GetTvSeasons[] = "VLibrary.GetTvSeasons";
inline constexpr char GetSeasonDetails[] = "VLibrary.GetSeasonDetails";
inline constexpr char GetTvEpisodes[] = "VLibrary.GetTvEpisodes";
inline constexpr char GetEpisodeDetails[] = "VLibrary.GetEpisodeDetails";
inline constexpr char GetVideos[] = "VLibrary.GetVideos";
inline constexpr char GetAvs[] = "VLibrary.GetAvs";
inline constexpr char GetCountries[] = "VLibrary.GetCountries";
inline constexpr char GetGenres[] = "VLibrary.GetGenres";
inline constexpr char GetYears[] = "VLibrary.GetYears";
inline constexpr char DeleteMovie[] = "VLibrary.DeleteMovie";
inline constexpr char DeleteEpisode[] = "VLibrary.DeleteEpisode";
inline constexpr char ScraperSearchMovie[] = "VLibrary.ScraperSearchMovie";
inline constexpr char ScraperSearchTvshow[] = "VLibrary.ScraperSearchTvshow";
inline constexpr char ModifiedToMovie[] = "VLibrary.ModifiedToMovie";
inline constexpr char ModifiedToEpisode[] = "VLibrary.ModifiedToEpisode";

inline constexpr char MusicGetLibraries[] = "VMusicLibrary.GetLibraries";
inline constexpr char MusicGetLibraryDetail[] = "VMusicLibrary.GetLibraryDetail";
inline constexpr char GetMusics[] = "VMusicLibrary.GetMusics";
inline constexpr char GetRencentSongs[] = "VMusicLibrary.GetRencentSongs";
inline constexpr char GetPlayLists[] = "VMusicLibrary.GetPlayLists";
inline constexpr char GetPlayListMusics[] = "VMusicLibrary.GetPlayListMusics";
inline constexpr char GetAlbums[] = "VMusicLibrary.GetAlbums";
inline constexpr char GetAlbumMusics[] = "VMusicLibrary.GetAlbumMusics";
inline constexpr char GetArtists[] = "VMusicLibrary.GetArtists";
inline constexpr char GetArtistMusics[] = "VMusicLibrary.GetArtistMusics";
inline constexpr char MusicGetGenres[] = "VMusicLibrary.GetGenres";
inline constexpr char GetGenreMusics[] = "VMusicLibrary.GetGenreMusics";
inline constexpr char GetStatisticsData[] = "VMusicLibrary.GetStatisticsData";
inline constexpr char UpdateLibrary[] = "VMusicLibrary.UpdateLibrary";
inline constexpr char MusicAddPath[] = "VMusicLibrary.AddPath";
inline constexpr char MusicDeletePath[] = "VMusicLibrary.DeletePath";
inline constexpr char CreatePlayList[] = "VMusicLibrary.CreatePlayList";
inline constexpr char FixPlaylist[] = "VMusicLibrary.FixPlaylist";
inline constexpr char FixAlbum[] = "VMusicLibrary.FixAlbum";
inline constexpr char FixArtist[] = "VMusicLibrary.FixArtist";
inline constexpr char FixMusic[] = "VMusicLibrary.FixMusic";
inline constexpr char EditeMusic[] = "VMusicLibrary.EditeMusic";
inline constexpr char AddMusicToPlayList[] = "VMusicLibrary.AddMusicToPlayList";
inline constexpr char DelMusicToPlayList[] = "VMusicLibrary.DelMusicToPlayList";
inline constexpr char AddMusicToLike[] = "VMusicLibrary.AddMusicToLike";
inline constexpr char DelMusicToLike[] = "VMusicLibrary.DelMusicToLike";
inline constexpr char DelPlist[] = "VMusicLibrary.DelPlist";
inline constexpr char AddRecentPlaySong[] = "VMusicLibrary.AddRecentPlaySong";
inline constexpr char DelMusic[] = "VMusicLibrary.DelMusic";
inline constexpr char DelAllMusic[] = "VMusicLibrary.DelAllMusic";
inline constexpr char SearchScraperMusics[] = "VMusicLibrary.SearchScraperMusics";

} // namespace Method

namespace Key {

// The envelope.
inline constexpr char id[] = "id";
inline constexpr char jsonrpc[] = "jsonrpc";
inline constexpr char method[] = "method";
inline constexpr char params[] = "params";
inline constexpr char ret[] = "ret";
inline constexpr char result[] = "result";

// What a list is asked for.
inline constexpr char limits[] = "limits";
inline constexpr char start[] = "start";
inline constexpr char end[] = "end";
inline constexpr char total[] = "total";
inline constexpr char sort[] = "sort";
inline constexpr char order[] = "order";
inline constexpr char ignorearticle[] = "ignorearticle";
inline constexpr char filter[] = "filter";
inline constexpr char And[] = "and";
inline constexpr char field[] = "field";
inline constexpr char Operator[] = "operator";
inline constexpr char value[] = "value";
inline constexpr char pattern[] = "pattern";
inline constexpr char idlibrary[] = "idlibrary";
inline constexpr char LibraryId[] = "LibraryId";
inline constexpr char type[] = "type";

// The libraries and their folders.
inline constexpr char libraries[] = "libraries";
inline constexpr char Library[] = "Library";
inline constexpr char paths[] = "paths";
inline constexpr char PathId[] = "PathId";
inline constexpr char path[] = "path";
inline constexpr char name[] = "name";
inline constexpr char autoscan[] = "autoscan";
inline constexpr char scraperType[] = "scraperType";
inline constexpr char scanType[] = "scanType";
inline constexpr char deletePath[] = "deletePath";
inline constexpr char update[] = "update";
inline constexpr char rebuild[] = "rebuild";
inline constexpr char language[] = "language";

// The server itself.
inline constexpr char Finished[] = "Finished";
inline constexpr char ScraperFinished[] = "ScraperFinished";
inline constexpr char ip[] = "ip";
inline constexpr char port[] = "port";
inline constexpr char username[] = "username";
inline constexpr char password[] = "password";
inline constexpr char movieServer[] = "movieServer";

// Lists.
inline constexpr char movieTotal[] = "movieTotal";
inline constexpr char movieList[] = "movieList";
inline constexpr char movieDetils[] = "movieDetils";
inline constexpr char groups[] = "groups";
inline constexpr char groupDetails[] = "groupDetails";
inline constexpr char tvshowList[] = "tvshowList";
inline constexpr char seasonList[] = "seasonList";
inline constexpr char seasonDetils[] = "seasonDetils";
inline constexpr char episodeList[] = "episodeList";
inline constexpr char episodeDetils[] = "episodeDetils";
inline constexpr char videoList[] = "videoList";
inline constexpr char avList[] = "avList";
inline constexpr char countries[] = "countries";
inline constexpr char genres[] = "genres";
inline constexpr char years[] = "years";
inline constexpr char SearchMovieList[] = "SearchMovieList";
inline constexpr char SearchTvsList[] = "SearchTvsList";
inline constexpr char musicTotal[] = "musicTotal";
inline constexpr char musicList[] = "musicList";
inline constexpr char playList[] = "playList";
inline constexpr char albums[] = "albums";
inline constexpr char artistList[] = "artistList";

// Records.
inline constexpr char idFile[] = "idFile";
inline constexpr char idGroup[] = "idGroup";
inline constexpr char idMediaGroup[] = "idMediaGroup";
inline constexpr char idTvshow[] = "idTvshow";
inline constexpr char idtvshow[] = "idtvshow";
inline constexpr char idSeason[] = "idSeason";
inline constexpr char iSeason[] = "iSeason";
inline constexpr char iseason[] = "iseason";
inline constexpr char iEpisode[] = "iEpisode";
inline constexpr char iepisode[] = "iepisode";
inline constexpr char idAlbum[] = "idAlbum";
inline constexpr char idPlayList[] = "idPlayList";
inline constexpr char idPlaylist[] = "idPlaylist";
inline constexpr char title[] = "title";
inline constexpr char rating[] = "rating";
inline constexpr char runtime[] = "runtime";
inline constexpr char director[] = "director";
inline constexpr char cast[] = "cast";
inline constexpr char genre[] = "genre";
inline constexpr char overview[] = "overview";
inline constexpr char poster[] = "poster";
inline constexpr char backdrop[] = "backdrop";
inline constexpr char year[] = "year";
inline constexpr char fileCount[] = "fileCount";
inline constexpr char releaseDate[] = "releaseDate";
inline constexpr char strMediaId[] = "strMediaId";
inline constexpr char artist[] = "artist";
inline constexpr char artists[] = "artists";
inline constexpr char album[] = "album";
inline constexpr char ablum_name[] = "ablum_name";
inline constexpr char duration[] = "duration";
inline constexpr char suffix[] = "suffix";
inline constexpr char cuePath[] = "cuePath";
inline constexpr char iTrack[] = "iTrack";
inline constexpr char iLikeFlag[] = "iLikeFlag";
inline constexpr char localPath[] = "localPath";

// Changes.
inline constexpr char deleteFile[] = "deleteFile";
inline constexpr char Delete[] = "delete";
inline constexpr char add[] = "add";
inline constexpr char fix[] = "fix";
inline constexpr char edite[] = "edite";
inline constexpr char modified[] = "modified";
inline constexpr char strScraperName[] = "strScraperName";
inline constexpr char strScraperYear[] = "strScraperYear";
inline constexpr char strSearchFrom[] = "strSearchFrom";
inline constexpr char strScraperFrom[] = "strScraperFrom";
inline constexpr char strScraperId[] = "strScraperId";
inline constexpr char strSourceMediaType[] = "strSourceMediaType";

} // namespace Key

namespace Text {

inline constexpr char all[] = "all";
inline constexpr char Mix[] = "Mix";
inline constexpr char tmdb[] = "tmdb";
inline constexpr char contains[] = "contains";
inline constexpr char country[] = "country";
inline constexpr char genre[] = "genre";
inline constexpr char year[] = "year";
inline constexpr char movie[] = "movie";
inline constexpr char tvshow[] = "tvshow";
inline constexpr char title[] = "title";
inline constexpr char dateadded[] = "dateadded";
inline constexpr char rating[] = "rating";
inline constexpr char modifiedtime[] = "modifiedtime";
inline constexpr char ascending[] = "ascending";
inline constexpr char descending[] = "descending";
inline constexpr char artist[] = "artist";
inline constexpr char album[] = "album";

} // namespace Text

// Seconds that a request may take.
namespace Limit {

inline constexpr int Proxy = 2;      // asked for on the GUI thread
inline constexpr int FilterList = 2; // likewise
inline constexpr int Details = 5;
inline constexpr int Usual = 15;
inline constexpr int MusicSearch = 30;
inline constexpr int Heartbeat = 60;
inline constexpr int Language = 60;

} // namespace Limit

} // namespace Rpc
