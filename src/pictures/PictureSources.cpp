#include "PictureSources.h"

#include "library/MediaPath.h"
#include "library/MediaServerManager.h"
#include "online/HttpHelpers.h"
#include "player/QPlayer.h"

namespace {

constexpr int kMsASecond = 1000;

QByteArray fetched(const QString &url, int timeoutMs)
{
    const HttpResult answer = GetText(url, (timeoutMs + kMsASecond - 1) / kMsASecond);
    return answer.isOk() ? answer.bytes : QByteArray();
}

QStringList postersOf(const QString &genre)
{
    const MusicCache &music = MediaServerManager::instance()->music();
    QStringList posters;
    const QStringList songs = music.genre(genre).songs;
    for (const QString &song : songs)
        posters << music.song(song).poster;
    return posters;
}

} // namespace

PictureSources PictureSources::ofProgram()
{
    PictureSources sources;
    sources.fetch = fetched;
    sources.genrePosters = postersOf;
    sources.resolvePath = MediaPath::resolveMediaPath;
    sources.thumbnail = [](const QByteArray &requestJson) {
        return QPlayer::instance()->grabPicture(requestJson);
    };
    return sources;
}
