#include "PlayerPreviewSource.h"

#include "player/QPlayer.h"

namespace {

constexpr int MainTitle = -1;

} // namespace

PlayerPreviewSource::PlayerPreviewSource(QPlayer *player)
    : m_player(player)
{
}

QPlayer &PlayerPreviewSource::player() const
{
    return m_player ? *m_player : *QPlayer::instance();
}

bool PlayerPreviewSource::open(const QString &path)
{
    return player().openThumbnails(path, libvp::VD_Item_File, MainTitle, PictureSize.width(),
                                   PictureSize.height())
           != 0;
}

PreviewPicture PlayerPreviewSource::grab(int positionMs)
{
    PreviewPicture picture;
    picture.image = player().grabThumbnail(positionMs, false, &picture.shownMs);
    return picture;
}

void PlayerPreviewSource::close()
{
    player().closeThumbnails();
}
