#include "CueSongs.h"

#include "FolderPaths.h"

#include "media/RegularFile.h"
#include "names/MediaSuffix.h"
#include "sidecars/CueSheet.h"

#include <QDebug>
#include <QHash>

namespace {

QString stemOf(const QString &name)
{
    return name.left(name.lastIndexOf(QLatin1Char('.'))).toLower();
}

// Finds the sound files that sheets name: without regard to case, and under another suffix, since sheets
// outlive a conversion of their sound.
class SoundFiles final {
public:
    explicit SoundFiles(const WalkedFolder &folder)
    {
        for (const FolderEntry &entry : folder.entries) {
            if (entry.isFolder || MediaSuffix::kindOf(entry.name) != MediaSuffix::Kind::Audio)
                continue;
            m_byName.insert(entry.name.toLower(), &entry);
            m_byStem.insert(stemOf(entry.name), &entry);
        }
    }

    [[nodiscard]] const FolderEntry *find(const QString &named) const
    {
        const QString name =
            named.mid(qMax(named.lastIndexOf(QLatin1Char('/')), named.lastIndexOf(QLatin1Char('\\'))) + 1);
        const FolderEntry *entry = m_byName.value(name.toLower());
        return entry ? entry : m_byStem.value(stemOf(name));
    }

private:
    QHash<QString, const FolderEntry *> m_byName;
    QHash<QString, const FolderEntry *> m_byStem;
};

ScannedSong toSong(const CueSheet &sheet, const CueTrack &track, const FolderEntry &sheetEntry,
                   const FolderEntry &sound, const WalkedFolder &folder)
{
    ScannedSong song;
    song.path = FolderPaths::child(folder, sheetEntry);
    song.cuePath = FolderPaths::child(folder, sound);
    song.stamp = {sheetEntry.stamp.size + sound.stamp.size,
                  qMax(sheetEntry.stamp.modifiedMs, sound.stamp.modifiedMs)};
    song.suffix = sound.name.mid(sound.name.lastIndexOf(QLatin1Char('.')) + 1).toLower();
    song.track = track.number;
    song.trackNumber = track.number;
    song.title = track.title;
    song.artist = track.performer.isEmpty() ? sheet.performer : track.performer;
    song.albumArtist = sheet.performer;
    song.album = sheet.title;
    song.genre = sheet.genre;
    song.year = sheet.year;
    song.runtimeMs = track.endFrame < 0 ? 0 : int(qMax<qint64>(0, track.endMs() - track.startMs()));
    return song;
}

void addSheet(FolderWork &work, const FolderEntry &entry, const CueSheet &sheet, const SoundFiles &sounds,
              QSet<QString> &divided)
{
    const FolderEntry *current = nullptr;
    QSet<QString> ofThisSheet;
    for (const CueTrack &track : sheet.tracks) {
        const FolderEntry *sound = sounds.find(track.fileName);
        // Of two sheets for one sound file the first counts.
        if (!sound || (divided.contains(sound->name) && !ofThisSheet.contains(sound->name)))
            continue;
        QVector<ScannedSong> &songs = work.result.songs;
        if (sound == current) {
            ++work.tasks.back().recordCount;
        } else {
            FileTask task;
            task.path = FolderPaths::child(*work.folder, *sound);
            task.firstRecord = songs.size();
            work.tasks.push_back(task);
        }
        songs.append(toSong(sheet, track, entry, *sound, *work.folder));
        work.tasks.back().lastStartMs = int(track.startMs());
        current = sound;
        divided.insert(sound->name);
        ofThisSheet.insert(sound->name);
    }
}

} // namespace

QSet<QString> CueSongs::add(FolderWork &work)
{
    QSet<QString> divided;
    const SoundFiles sounds(*work.folder);
    for (const FolderEntry &entry : work.folder->entries) {
        if (entry.isFolder || MediaSuffix::kindOf(entry.name) != MediaSuffix::Kind::Cue)
            continue;
        const QByteArray text =
            RegularFile::contents(FolderPaths::child(*work.folder, entry), CueSheet::largestFile);
        const CueSheet sheet = CueSheet::parse(text);
        addSheet(work, entry, sheet, sounds, divided);
    }
    return divided;
}

void CueSongs::complete(ScannedSong &song, const SoundTags &tags, const FileTask &task, bool isLast)
{
    if (song.title.isEmpty())
        song.title = QStringLiteral("%1").arg(song.track, 2, 10, QLatin1Char('0'));
    const struct {
        QString ScannedSong::*told;
        const QString &tagged;
    } texts[] = {{&ScannedSong::artist, tags.artist},
                 {&ScannedSong::albumArtist, tags.albumArtist},
                 {&ScannedSong::album, tags.album},
                 {&ScannedSong::genre, tags.genre}};
    for (const auto &text : texts) {
        if ((song.*text.told).isEmpty())
            song.*text.told = text.tagged;
    }
    if (song.year == 0)
        song.year = tags.year;
    song.discNumber = tags.disc;
    if (isLast && tags.durationMs > 0)
        song.runtimeMs = qMax(0, tags.durationMs - task.lastStartMs);
}
