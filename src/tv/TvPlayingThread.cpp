#include "TvPlayingThread.h"

#include "player/DeferredSetup.h"

TvPlayingThread::TvPlayingThread(DeferredSetup &setUp, QObject *parent)
    : QThread(parent)
    , m_setUp(setUp)
{
}

TvPlayingThread::~TvPlayingThread()
{
    wait();
}

bool TvPlayingThread::start(const PlayOrder &order)
{
    if (isRunning())
        return false;
    m_order = order;
    QThread::start(QThread::TimeCriticalPriority);
    return true;
}

void TvPlayingThread::run()
{
    if (!m_setUp.waitUntilDone())
        return;
    PlayRunner::close(*m_setUp.player());
    PlayRunner::open(*m_setUp.player(), m_order);
}
