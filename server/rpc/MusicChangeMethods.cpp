#include "MusicChangeMethods.h"

#include "ListReplies.h"
#include "metadata/IMetadataService.h"
#include "store/IMusicLibrary.h"

namespace {

const QVector<ParamRow> oneSong{{Keys::idFile, ParamType::Integer}};
const QVector<ParamRow> playlistTexts{
    {Keys::poster, ParamType::Text}, {Keys::title, ParamType::Text}, {Keys::overview, ParamType::Text}};
const QVector<ParamRow> songInPlaylist{{Keys::idPlayList, ParamType::Integer},
                                       {Keys::idFile, ParamType::Integer}};
const QVector<ParamRow> deleteFlag{{Keys::deleted, ParamType::Flag, Need::Optional}};

PlaylistRecord playlistOf(const Params &params)
{
    PlaylistRecord playlist;
    playlist.title = params.text(Keys::title);
    playlist.overview = params.text(Keys::overview);
    playlist.poster = params.text(Keys::poster);
    return playlist;
}

QString notChanged(const char *what, int id)
{
    return QStringLiteral("the %1 could not be changed: %2").arg(QLatin1String(what)).arg(id);
}

} // namespace

MusicChangeMethods::MusicChangeMethods(IMusicLibrary &music, IMetadataService &metadata)
    : m_music(music)
    , m_metadata(metadata)
{
}

void MusicChangeMethods::addTo(MethodTable &table)
{
    addPlaylists(table);
    addCorrections(table);
    addMarks(table);
    table.add({{QLatin1String("VMusicLibrary.SearchScraperMusics"),
                {{Keys::title, ParamType::Text}, {Keys::artist, ParamType::Text}},
                [this](const Params &params) {
                    const QVector<SongMatchRecord> found =
                        m_metadata.searchSong(params.text(Keys::title), params.text(Keys::artist));
                    return RpcReply::good(QJsonObject{{Keys::musicList, RecordJson::array(found)}});
                }}});
}

void MusicChangeMethods::addPlaylists(MethodTable &table)
{
    table.add({
        {QLatin1String("VMusicLibrary.CreatePlayList"), playlistTexts,
         [this](const Params &params) { return createPlaylist(params); }},
        {QLatin1String("VMusicLibrary.FixPlaylist"),
         QVector<ParamRow>{{Keys::idPlaylist, ParamType::Integer}} + playlistTexts,
         [this](const Params &params) {
             PlaylistRecord playlist = playlistOf(params);
             playlist.idPlayList = params.integer(Keys::idPlaylist);
             return RpcReply::changed(Keys::fix, m_music.changePlaylist(playlist),
                                      notChanged("playlist", playlist.idPlayList));
         }},
        {QLatin1String("VMusicLibrary.DelPlist"),
         QVector<ParamRow>{{Keys::idPlayList, ParamType::Integer}} + deleteFlag,
         [this](const Params &params) {
             const int id = params.integer(Keys::idPlayList);
             return RpcReply::changed(Keys::deleted, m_music.removePlaylist(id), notChanged("playlist", id));
         }},
        {QLatin1String("VMusicLibrary.AddMusicToPlayList"), songInPlaylist,
         [this](const Params &params) {
             const int id = params.integer(Keys::idPlayList);
             return RpcReply::changed(Keys::add, m_music.addToPlaylist(id, params.integer(Keys::idFile)),
                                      notChanged("playlist", id));
         }},
        {QLatin1String("VMusicLibrary.DelMusicToPlayList"), songInPlaylist + deleteFlag,
         [this](const Params &params) {
             const int id = params.integer(Keys::idPlayList);
             return RpcReply::changed(Keys::deleted,
                                      m_music.removeFromPlaylist(id, params.integer(Keys::idFile)),
                                      notChanged("playlist", id));
         }},
    });
}

void MusicChangeMethods::addCorrections(MethodTable &table)
{
    table.add({
        {QLatin1String("VMusicLibrary.FixAlbum"),
         {{Keys::idAlbum, ParamType::Integer}, {Keys::poster, ParamType::Text}},
         [this](const Params &params) {
             const int id = params.integer(Keys::idAlbum);
             return RpcReply::changed(Keys::fix, m_music.setAlbumPoster(id, params.text(Keys::poster)),
                                      notChanged("album", id));
         }},
        {QLatin1String("VMusicLibrary.FixArtist"),
         {{Keys::artist, ParamType::Text}, {Keys::poster, ParamType::Text}},
         [this](const Params &params) {
             const QString artist = params.text(Keys::artist);
             return RpcReply::changed(Keys::fix, m_music.setArtistPoster(artist, params.text(Keys::poster)),
                                      QStringLiteral("the artist could not be changed: %1").arg(artist));
         }},
        {QLatin1String("VMusicLibrary.FixMusic"), oneSong,
         [this](const Params &params) {
             const int id = params.integer(Keys::idFile);
             return RpcReply::changed(Keys::fix, m_metadata.fixMusic(id), notChanged("song", id));
         }},
        {QLatin1String("VMusicLibrary.EditeMusic"),
         {{Keys::idFile, ParamType::Integer},
          {Keys::title, ParamType::Text},
          {Keys::poster, ParamType::Text},
          {Keys::artist, ParamType::Text},
          {Keys::genre, ParamType::Text},
          {Keys::runtime, ParamType::Integer},
          {Keys::year, ParamType::Integer}},
         [this](const Params &params) { return editSong(params); }},
    });
}

void MusicChangeMethods::addMarks(MethodTable &table)
{
    const auto onSong = [this](QLatin1String key, auto change) {
        return [this, key, change](const Params &params) {
            const int id = params.integer(Keys::idFile);
            return RpcReply::changed(key, change(m_music, id), notChanged("song", id));
        };
    };
    table.add({
        {QLatin1String("VMusicLibrary.AddMusicToLike"), oneSong,
         onSong(Keys::add, [](IMusicLibrary &music, int id) { return music.setLiked(id, true); })},
        {QLatin1String("VMusicLibrary.DelMusicToLike"), oneSong,
         onSong(Keys::deleted, [](IMusicLibrary &music, int id) { return music.setLiked(id, false); })},
        {QLatin1String("VMusicLibrary.AddRecentPlaySong"), oneSong,
         onSong(Keys::add, [](IMusicLibrary &music, int id) { return music.notePlayed(id); })},
    });
}

RpcReply MusicChangeMethods::createPlaylist(const Params &params)
{
    const PlaylistRecord playlist = playlistOf(params);
    if (playlist.title.trimmed().isEmpty())
        return RpcReply::failed(QStringLiteral("key \"title\" must not be empty"));
    const int id = m_music.createPlaylist(playlist);
    if (id < 0)
        return RpcReply::failed(QStringLiteral("the playlist could not be created"));
    return RpcReply::good(QJsonObject{{Keys::idPlayList, id}});
}

RpcReply MusicChangeMethods::editSong(const Params &params)
{
    const int id = params.integer(Keys::idFile);
    SongRecord song = m_music.song(id);
    if (song.idFile == 0)
        return RpcReply::failed(QStringLiteral("there is no song with this idFile: %1").arg(id));
    song.title = params.text(Keys::title);
    song.poster = params.text(Keys::poster);
    song.artist = params.text(Keys::artist);
    song.genre = params.text(Keys::genre);
    song.runtime = params.integer(Keys::runtime);
    song.year = params.integer(Keys::year);
    return RpcReply::changed(Keys::edite, m_music.editSong(song), notChanged("song", id));
}
