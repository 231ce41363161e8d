#include "MediaSession.h"

namespace {

template<typename T>
bool assign(T &target, const T &value)
{
    if (target == value)
        return false;
    target = value;
    return true;
}

} // namespace

void MediaSession::setState(State state)
{
    if (!assign(m_state, state))
        return;
    changed("PlaybackStatus");
    changed("CanPause");
}

void MediaSession::setMetadata(const Metadata &metadata)
{
    if (metadata.url != m_metadata.url)
        ++m_trackNumber;
    m_metadata = metadata;
    changed("Metadata");
}

void MediaSession::setVolume(double volume)
{
    if (assign(m_volume, volume))
        changed("Volume");
}

void MediaSession::setRate(double rate)
{
    if (assign(m_rate, rate))
        changed("Rate");
}

void MediaSession::setCanSeek(bool can)
{
    if (assign(m_canSeek, can))
        changed("CanSeek");
}

void MediaSession::setCanGoNext(bool can)
{
    if (assign(m_canGoNext, can))
        changed("CanGoNext");
}

void MediaSession::setCanGoPrevious(bool can)
{
    if (assign(m_canGoPrevious, can))
        changed("CanGoPrevious");
}

void MediaSession::setFullScreen(bool fullScreen)
{
    if (assign(m_fullScreen, fullScreen))
        changed("Fullscreen");
}
