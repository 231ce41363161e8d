#include "PlayerPictureControl.h"

#include "player/QPlayer.h"

IPictureControl *PlayerPictureControl::instance()
{
    static PlayerPictureControl control;
    return &control;
}

void PlayerPictureControl::setBrightness(float value)
{
    QPlayer::instance()->setBrightness(value);
}

void PlayerPictureControl::setSaturation(float value)
{
    QPlayer::instance()->setSaturation(value);
}

void PlayerPictureControl::setContrast(float value)
{
    QPlayer::instance()->setContrast(value);
}

void PlayerPictureControl::setZoomAmount(float zoom)
{
    QPlayer::instance()->setZoomAmount(zoom);
}

void PlayerPictureControl::setVerticalShift(float shift)
{
    QPlayer::instance()->setVerticalShift(shift);
}

void PlayerPictureControl::setPixelRatio(float ratio)
{
    QPlayer::instance()->setPixelRatio(ratio);
}

void PlayerPictureControl::setCustomView()
{
    QPlayer::instance()->setViewMode(libvp::VD_View_Custom);
}
