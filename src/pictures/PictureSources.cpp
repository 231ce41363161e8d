#include "PictureSources.h"

#include "player/QPlayer.h"

PictureSources PictureSources::ofProgram()
{
    PictureSources sources;
    sources.thumbnail = [](const QByteArray &requestJson) {
        return QPlayer::instance()->grabPicture(requestJson);
    };
    return sources;
}
