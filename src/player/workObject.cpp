#include "workObject.h"

#include "QPlayer.h"

workObject::workObject(QPlayer *player)
    : m_player(player)
{
    m_thread.setObjectName(QStringLiteral("engine commands"));
    m_thread.start(QThread::InheritPriority);
    moveToThread(&m_thread);
}

workObject::~workObject()
{
    m_thread.quit();
    m_thread.wait();
}

void workObject::requestRenderSize(int nW, int nH)
{
    constexpr int kShift = 32;
    const qint64 size = (qint64(qMax(0, nW)) << kShift) | quint32(qMax(0, nH));
    // Who finds something waiting has only replaced it.
    if (m_waitingSize.exchange(size) != NothingWaits)
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const qint64 last = m_waitingSize.exchange(NothingWaits);
            slot_resizeRenderSize(int(last >> kShift), int(quint32(last)));
        },
        Qt::QueuedConnection);
}

void workObject::requestSeek(int nTime)
{
    if (m_waitingSeek.exchange(qMax(0, nTime)) != NothingWaits)
        return;
    QMetaObject::invokeMethod(
        this, [this] { slot_seek(int(m_waitingSeek.exchange(NothingWaits))); }, Qt::QueuedConnection);
}

void workObject::slot_resizeRenderSize(int nW, int nH)
{
    player().resizeSurface(nW, nH);
}

void workObject::slot_seek(int nTime)
{
    player().seek(nTime);
}

void workObject::slot_setup3D()
{
    player().setup3D();
}

void workObject::slot_addSubtitle(QString strPath)
{
    player().addSubtitle(strPath);
}

QPlayer &workObject::player() const
{
    return m_player ? *m_player : *QPlayer::instance();
}
