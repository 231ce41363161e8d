#include "MusicRemovalMethods.h"

#include "IdListDocument.h"
#include "ListReplies.h"
#include "store/ILibraryRoots.h"
#include "store/IMusicLibrary.h"

#include <QDebug>

#include <limits>

namespace {

const QLatin1String artistType("artist");
const QLatin1String genreType("genre");
const QLatin1String albumType("album");

bool isCueTrack(const SongRecord &song)
{
    return song.iTrack >= 0 || !song.cuePath.isEmpty();
}

} // namespace

MusicRemovalMethods::MusicRemovalMethods(const ILibraryRoots &roots, IMusicLibrary &music)
    : m_roots(roots)
    , m_music(music)
    , m_remover(roots)
{
}

void MusicRemovalMethods::addTo(MethodTable &table)
{
    table.add({
        {QLatin1String("VMusicLibrary.DelMusic"),
         {{Keys::idFile, ParamType::Document}, {Keys::deleted, ParamType::Flag}},
         [this](const Params &params) { return delMusic(params); }},
        {QLatin1String("VMusicLibrary.DelAllMusic"),
         {{Keys::deleted, ParamType::Flag},
          {Keys::type, ParamType::Text},
          {Keys::name, ParamType::Text, Need::Optional},
          {Keys::idAlbum, ParamType::Integer, Need::Optional}},
         [this](const Params &params) { return delAllMusic(params); }},
    });
}

RpcReply MusicRemovalMethods::delMusic(const Params &params)
{
    const IdList list = IdListDocument::parse(params.text(Keys::idFile));
    if (!list.error.isEmpty())
        return RpcReply::failed(list.error);
    return remove(list.ids, params.flag(Keys::deleted));
}

RpcReply MusicRemovalMethods::delAllMusic(const Params &params)
{
    const QString type = params.text(Keys::type);
    const QString name = params.text(Keys::name);
    QVector<int> ids;
    if (type == artistType)
        ids = m_music.songIdsOfArtist(name);
    else if (type == genreType)
        ids = m_music.songIdsOfGenre(name);
    else if (type == albumType)
        ids = m_music.songIdsOfAlbum(params.integer(Keys::idAlbum));
    else
        return RpcReply::failed(QStringLiteral("key \"type\" must be \"artist\", \"genre\" or \"album\""));
    return remove(ids, params.flag(Keys::deleted));
}

QSet<QString> MusicRemovalMethods::neededByOthers(const QVector<int> &ids) const
{
    const bool anyTrack =
        std::any_of(ids.begin(), ids.end(), [this](int id) { return isCueTrack(m_music.song(id)); });
    if (!anyTrack)
        return {};
    const QSet<int> leaving(ids.begin(), ids.end());
    ListRequest all;
    all.end = std::numeric_limits<int>::max();
    QSet<QString> needed;
    for (const SongRecord &song : m_music.songs(all).rows) {
        if (leaving.contains(song.idFile))
            continue;
        needed.insert(song.path);
        if (!song.cuePath.isEmpty())
            needed.insert(song.cuePath);
    }
    return needed;
}

RpcReply MusicRemovalMethods::remove(const QVector<int> &ids, bool withFiles)
{
    const QSet<QString> needed = withFiles ? neededByOthers(ids) : QSet<QString>();
    QVector<int> leaving;
    QString failure;
    for (const int id : ids) {
        QStringList files = m_music.filesOf(id);
        if (files.isEmpty()) {
            qInfo() << "[delete] no song has this idFile:" << id;
            continue;
        }
        const QString shown = files.first();
        files.erase(std::remove_if(files.begin(), files.end(),
                                   [&](const QString &file) { return needed.contains(file); }),
                    files.end());
        const QString problem = withFiles ? m_remover.remove(m_roots.musicLibraryId(), files) : QString();
        if (!problem.isEmpty()) {
            failure = problem;
            continue;
        }
        qInfo() << "[delete] leaves the music library:" << shown;
        leaving.append(id);
    }
    if (leaving.isEmpty() && failure.isEmpty())
        return RpcReply::failed(QStringLiteral("there are no such songs"));
    const Removal removal = withFiles ? Removal::WithFile : Removal::FromLibrary;
    if (!leaving.isEmpty() && !m_music.removeSongs(leaving, removal))
        failure = QStringLiteral("the songs could not be taken out of the library");
    return RpcReply::changed(Keys::deleted, failure.isEmpty(), failure);
}
