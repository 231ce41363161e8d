#include "MediaSession.h"

// The transport controls of this desktop are a WinRT interface that the 32-bit tool chain cannot reach; media
// keys still arrive as ordinary keys. The session keeps its state and nobody listens.
class MediaSession::Backend {};

MediaSession::MediaSession(QObject *parent)
    : QObject(parent)
{
}

MediaSession::~MediaSession() = default;

bool MediaSession::open(const QString &, const QString &)
{
    return false;
}

void MediaSession::announceSeek(qint64 positionMs)
{
    m_positionMs = positionMs;
}

void MediaSession::changed(const char *) {}
