#include "VideoFolder.h"

#include "names/MediaSuffix.h"

#include <QDate>
#include <QHash>

namespace {

constexpr int MsPerMinute = 60 * 1000;
constexpr int IsoDateLength = 10;

// The image of a disc is no container that can be looked into, and a disc folder is no file.
bool canBeOpened(const ScannedVideo &video)
{
    return video.realPath == video.path && MediaSuffix::kindOf(video.path) == MediaSuffix::Kind::Video;
}

bool isCached(const QString &poster)
{
    return !poster.isEmpty() && !poster.contains(QLatin1Char('/'));
}

void takeStored(ScannedVideo &video, const Description &before)
{
    Description &description = video.description;
    if (description.runtimeMinutes == 0)
        description.runtimeMinutes = before.runtimeMinutes;
    if (description.poster.isEmpty() && isCached(before.poster))
        description.poster = before.poster;
    if (description.year == 0 && video.kind == ScannedVideo::Kind::Video) {
        description.year = before.year;
        description.releaseDate = before.releaseDate;
    }
}

// A day that a camera wrote. Films carry that of their encoding there, which says nothing about them.
void takeDate(ScannedVideo &video, const QString &text)
{
    const QDate date = QDate::fromString(text.left(IsoDateLength), Qt::ISODate);
    if (video.kind != ScannedVideo::Kind::Video || video.description.year != 0 || !date.isValid())
        return;
    video.description.year = date.year();
    video.description.releaseDate = date.toString(Qt::ISODate);
}

} // namespace

void VideoFolder::prepare(FolderWork &work, const StoredFolder &stored) const
{
    const WalkedFolder &folder = *work.folder;
    IdentifiedFolder found = m_identifier.identify({folder.path, folder.rootPath, m_adult, folder.entries});
    QHash<QString, const ScannedVideo *> known;
    for (const ScannedVideo &video : stored.videos)
        known.insert(video.path, &video);
    for (int i = 0; i < found.videos.size(); ++i) {
        ScannedVideo &video = found.videos[i];
        if (!canBeOpened(video))
            continue;
        const ScannedVideo *before = known.value(video.path);
        if (before && before->stamp == video.stamp) {
            takeStored(video, before->description);
            continue;
        }
        FileTask task;
        task.path = video.realPath;
        task.kind = FileTask::Kind::Video;
        task.firstRecord = i;
        work.tasks.push_back(task);
    }
    work.result.videos = std::move(found.videos);
    work.result.shows = std::move(found.shows);
}

void VideoFolder::finish(FolderWork &work) const
{
    for (std::size_t i = 0; i < work.tasks.size(); ++i) {
        const FileFacts &facts = work.facts[i];
        ScannedVideo &video = work.result.videos[work.tasks[i].firstRecord];
        Description &description = video.description;
        if (description.runtimeMinutes == 0 && facts.stream.durationMs > 0)
            description.runtimeMinutes = int((facts.stream.durationMs + MsPerMinute / 2) / MsPerMinute);
        if (description.poster.isEmpty())
            description.poster = facts.picture;
        takeDate(video, facts.stream.date);
    }
}
