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

QPlayer &workObject::player() const
{
    return m_player ? *m_player : *QPlayer::instance();
}
