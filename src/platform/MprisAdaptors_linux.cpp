#include "MprisAdaptors_linux.h"

#include "MediaTypes.h"

namespace {

constexpr qint64 UsPerMs = 1000;

} // namespace

MprisRootAdaptor::MprisRootAdaptor(QObject *busObject, MediaSession *session, QString identity,
                                   QString desktopEntry)
    : QDBusAbstractAdaptor(busObject)
    , m_session(session)
    , m_identity(std::move(identity))
    , m_desktopEntry(std::move(desktopEntry))
{
}

QStringList MprisRootAdaptor::mimeTypes() const
{
    QStringList types;
    for (const char *type : kMediaTypes)
        types << QLatin1String(type);
    return types;
}

MprisPlayerAdaptor::MprisPlayerAdaptor(QObject *busObject, MediaSession *session)
    : QDBusAbstractAdaptor(busObject)
    , m_session(session)
{
}

QString MprisPlayerAdaptor::playbackStatus() const
{
    switch (m_session->state()) {
    case MediaSession::State::Playing:
        return QStringLiteral("Playing");
    case MediaSession::State::Paused:
        return QStringLiteral("Paused");
    case MediaSession::State::Stopped:
        break;
    }
    return QStringLiteral("Stopped");
}

QDBusObjectPath MprisPlayerAdaptor::trackPath() const
{
    if (m_session->metadata().url.isEmpty())
        return QDBusObjectPath(QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack"));
    return QDBusObjectPath(QStringLiteral("/org/quorin/track/%1").arg(m_session->trackNumber()));
}

QVariantMap MprisPlayerAdaptor::metadata() const
{
    const MediaSession::Metadata &data = m_session->metadata();
    QVariantMap map{{QStringLiteral("mpris:trackid"), QVariant::fromValue(trackPath())}};
    if (data.url.isEmpty())
        return map;
    map.insert(QStringLiteral("xesam:url"), data.url.toString(QUrl::FullyEncoded));
    map.insert(QStringLiteral("xesam:title"), data.title);
    if (data.lengthMs > 0)
        map.insert(QStringLiteral("mpris:length"), data.lengthMs * UsPerMs);
    if (!data.artUrl.isEmpty())
        map.insert(QStringLiteral("mpris:artUrl"), data.artUrl.toString(QUrl::FullyEncoded));
    if (!data.album.isEmpty())
        map.insert(QStringLiteral("xesam:album"), data.album);
    if (!data.artists.isEmpty())
        map.insert(QStringLiteral("xesam:artist"), data.artists);
    return map;
}

void MprisPlayerAdaptor::setVolume(double volume)
{
    emit m_session->volumeRequested(qBound(0.0, volume, 2.0));
}

void MprisPlayerAdaptor::Next()
{
    if (m_session->canGoNext())
        emit m_session->nextRequested();
}

void MprisPlayerAdaptor::Previous()
{
    if (m_session->canGoPrevious())
        emit m_session->previousRequested();
}

void MprisPlayerAdaptor::Seek(qlonglong Offset)
{
    if (m_session->canSeek())
        emit m_session->seekRequested(Offset / UsPerMs);
}

void MprisPlayerAdaptor::SetPosition(const QDBusObjectPath &TrackId, qlonglong Position)
{
    const qint64 positionMs = Position / UsPerMs;
    const qint64 lengthMs = m_session->metadata().lengthMs;
    const bool isInside = Position >= 0 && (lengthMs <= 0 || positionMs <= lengthMs);
    if (m_session->canSeek() && isInside && TrackId == trackPath())
        emit m_session->positionRequested(positionMs);
}

void MprisPlayerAdaptor::OpenUri(const QString &Uri)
{
    const QUrl url(Uri, QUrl::StrictMode);
    if (url.isLocalFile())
        emit m_session->openRequested(url);
}
