#include "MusicFolder.h"

#include "CueSongs.h"
#include "FolderPaths.h"

#include "names/ExtraName.h"
#include "names/MediaSuffix.h"
#include "sidecars/ArtworkFiles.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace {

QString variousArtists()
{
    return QStringLiteral("Various Artists");
}

QString suffixOf(const QString &name)
{
    return name.mid(name.lastIndexOf(QLatin1Char('.')) + 1).toLower();
}

// Where the picture of a song lies: in the cache by a bare name, or beside the song.
bool isCached(const QString &poster)
{
    return !poster.isEmpty() && !poster.contains(QLatin1Char('/'));
}

QHash<QString, ScannedSong> byPath(const QVector<ScannedSong> &songs)
{
    QHash<QString, ScannedSong> result;
    for (const ScannedSong &song : songs) {
        if (song.track < 0)
            result.insert(song.path, song);
    }
    return result;
}

bool isAmongPictures(const WalkedFolder &folder)
{
    for (const WalkedFolder *at = &folder; at->parent; at = at->parent.get()) {
        if (ExtraName::isPictureFolder(at->path.mid(at->path.lastIndexOf(QLatin1Char('/')) + 1)))
            return true;
    }
    return false;
}

void takeTags(ScannedSong &song, const SoundTags &tags)
{
    song.title = tags.title;
    song.artist = tags.artist;
    song.albumArtist = tags.albumArtist;
    song.album = tags.album;
    song.genre = tags.genre;
    song.trackNumber = tags.track;
    song.discNumber = tags.disc;
    song.year = tags.year;
    song.runtimeMs = tags.durationMs;
}

// An album of several artists that names none for the whole would fall apart into one for each of them.
void joinCompilations(QVector<ScannedSong> &songs)
{
    QHash<QString, QSet<QString>> artists;
    for (const ScannedSong &song : songs) {
        if (!song.album.isEmpty() && (song.albumArtist.isEmpty() || song.albumArtist == variousArtists()))
            artists[song.album].insert(song.artist);
    }
    for (ScannedSong &song : songs) {
        if (song.albumArtist.isEmpty() && artists.value(song.album).size() > 1)
            song.albumArtist = variousArtists();
    }
}

} // namespace

void MusicFolder::prepare(FolderWork &work, const StoredFolder &stored) const
{
    const WalkedFolder &folder = *work.folder;
    if (isAmongPictures(folder))
        return;
    const QString cover = ArtworkFiles(folder.path, folder.entries).albumCover();
    const QHash<QString, ScannedSong> known = byPath(stored.songs);
    const QSet<QString> divided = CueSongs::add(work);
    for (ScannedSong &song : work.result.songs)
        song.poster = cover;
    for (const FolderEntry &entry : folder.entries) {
        if (entry.isFolder || divided.contains(entry.name)
            || MediaSuffix::kindOf(entry.name) != MediaSuffix::Kind::Audio)
            continue;
        ScannedSong song;
        song.path = FolderPaths::child(folder, entry);
        song.stamp = entry.stamp;
        const auto before = known.constFind(song.path);
        if (before != known.constEnd() && before->stamp == song.stamp) {
            song = *before;
        } else {
            FileTask task;
            task.path = song.path;
            task.firstRecord = work.result.songs.size();
            work.tasks.push_back(task);
        }
        song.suffix = suffixOf(entry.name);
        if (!isCached(song.poster))
            song.poster = cover;
        work.result.songs.append(song);
    }
}

void MusicFolder::finish(FolderWork &work) const
{
    for (std::size_t i = 0; i < work.tasks.size(); ++i) {
        const FileTask &task = work.tasks[i];
        const FileFacts &facts = work.facts[i];
        for (int record = 0; record < task.recordCount; ++record) {
            ScannedSong &song = work.result.songs[task.firstRecord + record];
            if (!facts.picture.isEmpty())
                song.poster = facts.picture;
            if (song.track >= 0)
                CueSongs::complete(song, facts.sound, task, record == task.recordCount - 1);
            else
                takeTags(song, facts.sound);
            // A file that was given up has told nothing at all.
            if (song.title.isEmpty())
                song.title = QFileInfo(song.path).completeBaseName();
        }
    }
    joinCompilations(work.result.songs);
}
