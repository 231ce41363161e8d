#include "MusicListMethods.h"

#include "ListReplies.h"
#include "store/ILibraryRoots.h"
#include "store/IMusicLibrary.h"

namespace {

const QVector<ParamRow> library{{Keys::idlibrary, ParamType::Integer}};
const QVector<ParamRow> part{{Keys::limits, ParamType::Limits}, {Keys::sort, ParamType::Sort}};
const QVector<ParamRow> libraryPart = library + part;

QVector<ParamRow> with(QVector<ParamRow> rows, QLatin1String key, ParamType type)
{
    rows.append({key, type});
    return rows;
}

RpcReply songs(const Page<SongRecord> &page)
{
    return ListReplies::withTotal(Keys::musicTotal, Keys::musicList, page);
}

} // namespace

MusicListMethods::MusicListMethods(const ILibraryRoots &roots, const IMusicLibrary &music)
    : m_roots(roots)
    , m_music(music)
{
}

void MusicListMethods::addTo(MethodTable &table)
{
    addSongLists(table);
    addOtherLists(table);
}

MethodHandler MusicListMethods::ofLibrary(MethodHandler handler) const
{
    return [this, handler = std::move(handler)](const Params &params) {
        const int id = params.integer(Keys::idlibrary);
        return id == m_roots.musicLibraryId() ? handler(params) : ListReplies::unknownLibrary(id);
    };
}

void MusicListMethods::addSongLists(MethodTable &table)
{
    table.add({
        {QLatin1String("VMusicLibrary.GetMusics"), libraryPart, ofLibrary([this](const Params &params) {
             const Page<SongRecord> page = m_music.songs(params.list());
             QJsonArray list;
             for (const SongRecord &song : page.rows)
                 list.append(RecordJson::songWithTrack(song));
             return RpcReply::good(QJsonObject{{Keys::musicTotal, page.total}, {Keys::musicList, list}});
         })},
        {QLatin1String("VMusicLibrary.GetRencentSongs"), libraryPart,
         ofLibrary([this](const Params &params) { return songs(m_music.recentSongs(params.list())); })},
        {QLatin1String("VMusicLibrary.GetPlayListMusics"),
         with(libraryPart, Keys::idPlayList, ParamType::Integer), ofLibrary([this](const Params &params) {
             return songs(m_music.playlistSongs(params.integer(Keys::idPlayList), params.list()));
         })},
        {QLatin1String("VMusicLibrary.GetAlbumMusics"), with(part, Keys::idAlbum, ParamType::Integer),
         [this](const Params &params) {
             return songs(m_music.albumSongs(params.integer(Keys::idAlbum), params.list()));
         }},
        {QLatin1String("VMusicLibrary.GetArtistMusics"), with(libraryPart, Keys::artist, ParamType::Text),
         ofLibrary([this](const Params &params) {
             return songs(m_music.artistSongs(params.text(Keys::artist), params.list()));
         })},
        {QLatin1String("VMusicLibrary.GetGenreMusics"), with(libraryPart, Keys::genre, ParamType::Text),
         ofLibrary([this](const Params &params) {
             return songs(m_music.genreSongs(params.text(Keys::genre), params.list()));
         })},
    });
}

void MusicListMethods::addOtherLists(MethodTable &table)
{
    table.add({
        {QLatin1String("VMusicLibrary.GetAlbums"), libraryPart, ofLibrary([this](const Params &params) {
             return ListReplies::withLimits(Keys::albums, m_music.albums(params.list()), params.list());
         })},
        {QLatin1String("VMusicLibrary.GetPlayLists"), library, ofLibrary([this](const Params &) {
             return RpcReply::good(QJsonObject{{Keys::playList, RecordJson::array(m_music.playlists())}});
         })},
        {QLatin1String("VMusicLibrary.GetArtists"), library, ofLibrary([this](const Params &) {
             return RpcReply::good(QJsonObject{{Keys::artistList, RecordJson::array(m_music.artists())}});
         })},
        {QLatin1String("VMusicLibrary.GetGenres"), library, ofLibrary([this](const Params &) {
             return RpcReply::good(QJsonObject{{Keys::genres, QJsonArray::fromStringList(m_music.genres())}});
         })},
    });
}
