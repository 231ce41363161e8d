#include "LastStop.h"

#include <utility>

void LastStop::connectPlayer(const QPlayer *player)
{
    m_player = player;
    connect(player, &QPlayer::sig_stopInfoChanged, this, &LastStop::keep, Qt::DirectConnection);
}

void LastStop::begin()
{
    const std::lock_guard lock(m_mutex);
    m_isListening = true;
}

std::optional<PositionStore::Stop> LastStop::end()
{
    const std::lock_guard lock(m_mutex);
    m_isListening = false;
    return std::exchange(m_stop, std::nullopt);
}

PositionStore::Stop LastStop::stopOf(const vdStopPlayInfo &info, const QImage &lastFrame)
{
    PositionStore::Stop stop;
    stop.path = QString::fromUtf8(info.path);
    stop.positionMs = info.positionMs;
    stop.totalMs = info.totalMs;
    stop.reachedEnd = info.reachedEnd != 0;
    stop.lastFrame = lastFrame;
    return stop;
}

void LastStop::keep(const vdStopPlayInfo &info)
{
    const std::lock_guard lock(m_mutex);
    if (m_isListening)
        m_stop = stopOf(info, m_player->lastFrame());
}
