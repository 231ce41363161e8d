#include "PositionStore.h"

#include "ResumeRule.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QBuffer>
#include <QDebug>

#include <limits>

namespace {

QByteArray pngOf(const QImage &frame)
{
    const QSize limit = PositionStore::PictureSize;
    const bool fits = frame.width() <= limit.width() && frame.height() <= limit.height();
    const QImage picture = fits ? frame : frame.scaled(limit, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, "PNG")) {
        qInfo() << "[Play control] last picture could not be stored, size" << frame.size();
        return {};
    }
    return png;
}

} // namespace

PositionStore::PositionStore(SettingsManager &settings)
    : m_settings(settings)
{
}

PositionStore::Entry PositionStore::read(const QString &key) const
{
    return {qMax(m_settings.lastPosition(key), 0), m_settings.lastPositionPixmap(key),
            m_settings.lastPositionAudioIndex(key), m_settings.lastPositionSub(key)};
}

bool PositionStore::record(const Stop &stop, const QString &discName)
{
    const qint64 position = ResumeRule::secondsOf(stop.positionMs);
    const qint64 total = ResumeRule::secondsOf(stop.totalMs);
    if (stop.reachedEnd || stop.path.isEmpty() || !ResumeRule::storesPosition(position, total)
        || position > std::numeric_limits<int>::max())
        return false;
    const QString key = ResumeRule::storeKey(stop.path, discName);
    m_settings.setLastPosition(key, int(position));
    if (stop.lastFrame.isNull())
        return true;
    const QByteArray png = pngOf(stop.lastFrame);
    if (!png.isEmpty())
        m_settings.setLastPositionPixmap(key, png);
    return true;
}

void PositionStore::storeTracks(const QString &key, int audioIndex, const QByteArray &subtitle)
{
    if (key.isEmpty())
        return;
    m_settings.setLastPositionAudioIndex(key, audioIndex);
    m_settings.setLastPositionSub(key, subtitle);
}

bool PositionStore::remembersPosition() const
{
    return m_settings.value(SettingsKeys::PC_RememberPosition).toBool();
}
