// Decoded sound, for those who draw it.
#include "QPlayer.h"

#include "EngineProperties.h"
#include "NotificationScope.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 largestFrame = 64 * 1024 * 1024;

} // namespace

void QPlayer::setPcmTap(bool on)
{
    if (on)
        QDir().mkpath(QFileInfo(m_audioDump).path());
    setIntProperty(EngineProperties::PcmTap, on ? 1 : 0);
}

void QPlayer::setPcmSink(PcmSink sink)
{
    auto shared = sink ? std::make_shared<const PcmSink>(std::move(sink)) : nullptr;
    std::lock_guard lock(m_stateMutex);
    m_pcmSink.swap(shared);
}

// Not logged: it comes many times a second.
void QPlayer::OnAudioFrame(const libvp::VDPcmFrame *frame)
{
    if (!frame || !frame->samples || frame->frameCount <= 0 || frame->bytesPerFrame <= 0)
        return;
    const NotificationScope scope;
    const qint64 bytes = static_cast<qint64>(frame->frameCount) * frame->bytesPerFrame;
    if (bytes > largestFrame)
        return;
    QFile dump(m_audioDump);
    if (dump.open(QIODevice::Append)) {
        dump.write(reinterpret_cast<const char *>(frame->samples), bytes);
        dump.close();
    }
    std::shared_ptr<const PcmSink> sink;
    {
        std::lock_guard lock(m_stateMutex);
        sink = m_pcmSink;
    }
    if (sink)
        (*sink)(*frame);
}
