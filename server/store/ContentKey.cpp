#include "ContentKey.h"

#include "TextFold.h"

#include <QFileInfo>
#include <QStringList>

namespace {

// No tag and no title holds it.
const QChar kSeparator(0x1f);

QString joined(const QStringList &values)
{
    return TextFold::nameKey(values.join(kSeparator));
}

} // namespace

QString ContentKey::ofSong(const ScannedSong &song)
{
    if (song.title.isEmpty())
        return {};
    return joined({song.title, song.artist, song.album, QString::number(song.trackNumber),
                   QString::number(song.discNumber)});
}

QString ContentKey::ofVideo(const ScannedVideo &video)
{
    const Description &description = video.description;
    if (description.title.isEmpty())
        return {};
    return joined({description.title, QFileInfo(video.showKey).fileName(), QString::number(description.year),
                   QString::number(video.season), QString::number(video.episode),
                   QString::number(description.runtimeMinutes)});
}
