#include "MusicProtocol.h"

#include "JsonFields.h"
#include "JsonRpc.h"
#include "MusicRecords.h"
#include "ProtocolNames.h"

#include <QDebug>
#include <QJsonDocument>

namespace Key = Rpc::Key;
namespace Limit = Rpc::Limit;
namespace Method = Rpc::Method;
namespace Text = Rpc::Text;

// ---- the library and its folders

std::optional<int> MusicProtocol::libraryId() const
{
    return LibraryPaths::firstLibrary(
        m_rpc.call(Method::MusicGetLibraries, {{Key::type, Text::all}}, Limit::Usual));
}

std::optional<LibraryPaths::Map> MusicProtocol::folders(int libraryId) const
{
    return LibraryPaths::folders(
        m_rpc.call(Method::MusicGetLibraryDetail, {{Key::LibraryId, libraryId}}, Limit::Usual));
}

std::optional<int> MusicProtocol::addPath(int libraryId, const QString &path) const
{
    return LibraryPaths::addedFolder(m_rpc.call(
        Method::MusicAddPath,
        {{Key::LibraryId, libraryId}, {Key::path, path}, {Key::name, QString()}, {Key::autoscan, true}},
        Limit::Usual));
}

bool MusicProtocol::deletePath(int libraryId, int pathId) const
{
    return change(Method::MusicDeletePath, {{Key::LibraryId, libraryId}, {Key::PathId, pathId}},
                  Key::deletePath);
}

void MusicProtocol::update(int libraryId) const
{
    (void)m_rpc.call(Method::UpdateLibrary, {{Key::idlibrary, libraryId}}, Limit::Usual);
}

QJsonObject MusicProtocol::statistics() const
{
    const JsonRpcReply reply = m_rpc.call(Method::GetStatisticsData, {}, Limit::Usual);
    if (!reply.isGood)
        return {};
    // The result is a text, and that text is a document of its own.
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(reply.result.toString().toLatin1(), &error);
    if (error.error != QJsonParseError::NoError) {
        qInfo().noquote() << "[json] movieServer json parse error";
        return {};
    }
    return document.object().value(QLatin1String(Key::movieServer)).toObject();
}

// ---- lists

QJsonObject MusicProtocol::page(const MusicListRow &row, int libraryId, const char *sort, int end,
                                const QJsonObject &owner) const
{
    QJsonObject params = owner;
    if (row.hasLibrary)
        params.insert(Key::idlibrary, libraryId);
    params.insert(Key::limits, JsonFields::limits(0, end));
    params.insert(
        Key::sort,
        QJsonObject{{Key::ignorearticle, false}, {Key::method, sort}, {Key::order, Text::descending}});
    return m_rpc.call(row.method, params, Limit::Usual).object();
}

int MusicProtocol::total(const MusicListRow &row, int libraryId, const QJsonObject &owner) const
{
    return JsonFields::total(page(row, libraryId, row.countSort, 0, owner), row.totalKey);
}

QJsonArray MusicProtocol::entries(const MusicListRow &row, int libraryId, int total,
                                  const QJsonObject &owner) const
{
    return JsonFields::array(page(row, libraryId, row.listSort, total, owner), row.listKey);
}

QJsonArray MusicProtocol::whole(const char *method, int libraryId, const char *listKey) const
{
    return JsonFields::array(m_rpc.call(method, {{Key::idlibrary, libraryId}}, Limit::Usual).object(),
                             listKey);
}

QJsonArray MusicProtocol::playlists(int libraryId) const
{
    return whole(Method::GetPlayLists, libraryId, Key::playList);
}

QJsonArray MusicProtocol::artists(int libraryId) const
{
    return whole(Method::GetArtists, libraryId, Key::artistList);
}

QJsonArray MusicProtocol::genres(int libraryId) const
{
    return whole(Method::MusicGetGenres, libraryId, Key::genres);
}

QJsonObject MusicProtocol::ofPlaylist(int idPlayList)
{
    return {{Key::idPlayList, idPlayList}};
}

QJsonObject MusicProtocol::ofAlbum(int idAlbum)
{
    return {{Key::idAlbum, idAlbum}};
}

QJsonObject MusicProtocol::ofArtist(const QString &name)
{
    return {{Key::artist, name}};
}

QJsonObject MusicProtocol::ofGenre(const QString &name)
{
    return {{Key::genre, name}};
}

// ---- changes

bool MusicProtocol::change(const char *method, const QJsonObject &params, const char *key) const
{
    return m_rpc.call(method, params, Limit::Usual).says(key);
}

std::optional<int> MusicProtocol::createPlaylist(const QString &poster, const QString &title,
                                                 const QString &overview) const
{
    const QJsonObject params{{Key::poster, poster}, {Key::title, title}, {Key::overview, overview}};
    const QJsonValue id = m_rpc.call(Method::CreatePlayList, params, Limit::Usual)
                              .object()
                              .value(QLatin1String(Key::idPlayList));
    return id.isDouble() ? std::optional<int>(id.toInt()) : std::nullopt;
}

bool MusicProtocol::fixPlaylist(int idPlaylist, const QString &poster, const QString &title,
                                const QString &overview) const
{
    return change(Method::FixPlaylist,
                  {{Key::idPlaylist, idPlaylist},
                   {Key::poster, poster},
                   {Key::title, title},
                   {Key::overview, overview}},
                  Key::fix);
}

bool MusicProtocol::fixAlbum(int idAlbum, const QString &poster) const
{
    return change(Method::FixAlbum, {{Key::idAlbum, idAlbum}, {Key::poster, poster}}, Key::fix);
}

bool MusicProtocol::fixArtist(const QString &artist, const QString &poster) const
{
    return change(Method::FixArtist, {{Key::artist, artist}, {Key::poster, poster}}, Key::fix);
}

bool MusicProtocol::fixSong(int idFile) const
{
    return change(Method::FixMusic, {{Key::idFile, idFile}}, Key::fix);
}

bool MusicProtocol::editSong(int idFile, const SongTexts &texts) const
{
    return change(Method::EditeMusic,
                  {{Key::idFile, idFile},
                   {Key::title, texts.title},
                   {Key::poster, texts.poster},
                   {Key::artist, texts.artist},
                   {Key::genre, texts.genre},
                   {Key::runtime, texts.runtime},
                   {Key::year, texts.year}},
                  Key::edite);
}

bool MusicProtocol::addToPlaylist(int idPlayList, int idFile) const
{
    return change(Method::AddMusicToPlayList, {{Key::idPlayList, idPlayList}, {Key::idFile, idFile}},
                  Key::add);
}

bool MusicProtocol::removeFromPlaylist(int idPlayList, int idFile, bool deleteFile) const
{
    return change(Method::DelMusicToPlayList,
                  {{Key::idPlayList, idPlayList}, {Key::idFile, idFile}, {Key::Delete, deleteFile}},
                  Key::Delete);
}

bool MusicProtocol::like(int idFile) const
{
    return change(Method::AddMusicToLike, {{Key::idFile, idFile}}, Key::add);
}

bool MusicProtocol::unlike(int idFile) const
{
    return change(Method::DelMusicToLike, {{Key::idFile, idFile}}, Key::Delete);
}

bool MusicProtocol::deletePlaylist(int idPlayList, bool deleteFiles) const
{
    return change(Method::DelPlist, {{Key::Delete, deleteFiles}, {Key::idPlayList, idPlayList}}, Key::Delete);
}

bool MusicProtocol::addRecent(int idFile) const
{
    return change(Method::AddRecentPlaySong, {{Key::idFile, idFile}}, Key::add);
}

bool MusicProtocol::deleteSongs(const QStringList &ids, bool deleteFiles) const
{
    // The ids travel as a document inside a text, which the server parses a second time.
    const QJsonDocument list(QJsonObject{{Key::idFile, QJsonArray::fromStringList(ids)}});
    return change(Method::DelMusic,
                  {{Key::idFile, QString::fromUtf8(list.toJson())}, {Key::Delete, deleteFiles}}, Key::Delete);
}

bool MusicProtocol::deleteAll(const QString &type, const QString &key, bool deleteFiles) const
{
    QJsonObject params{{Key::Delete, deleteFiles}, {Key::type, type}};
    if (type == QLatin1String(Text::album))
        params.insert(Key::idAlbum, key.toInt());
    else
        params.insert(Key::name, key);
    return change(Method::DelAllMusic, params, Key::Delete);
}

QList<MusicMatch> MusicProtocol::searchSongs(const QString &title, const QString &artist) const
{
    const JsonRpcReply reply = m_rpc.call(Method::SearchScraperMusics,
                                          {{Key::title, title}, {Key::artist, artist}}, Limit::MusicSearch);
    QList<MusicMatch> found;
    const QJsonArray array = JsonFields::array(reply.object(), Key::musicList);
    for (const QJsonValue &value : array) {
        if (value.isObject())
            found.append(MusicRecords::match(value.toObject()));
    }
    return found;
}
