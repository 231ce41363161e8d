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
    request(Kind::RenderSize, [this, nW, nH] { slot_resizeRenderSize(qMax(0, nW), qMax(0, nH)); });
}

void workObject::requestSeek(int nTime)
{
    request(Kind::Seek, [this, nTime] { slot_seek(qMax(0, nTime)); });
}

void workObject::requestSetup3D()
{
    request(Kind::Single, [this] { slot_setup3D(); });
}

void workObject::requestSubtitle(const QString &path)
{
    request(Kind::Single, [this, path] { slot_addSubtitle(path); });
}

// Only the newest entry may be replaced: an older one stands before something else that was asked for later.
void workObject::request(Kind kind, std::function<void()> run)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (kind != Kind::Single && !m_waiting.empty() && m_waiting.back().kind == kind) {
            m_waiting.back().run = std::move(run);
            return;
        }
        m_waiting.push_back({kind, std::move(run)});
    }
    QMetaObject::invokeMethod(this, &workObject::runNext, Qt::QueuedConnection);
}

void workObject::runNext()
{
    Command next;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        next = std::move(m_waiting.front());
        m_waiting.pop_front();
    }
    next.run();
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
