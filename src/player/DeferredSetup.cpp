#include "DeferredSetup.h"

#include "EnginePreferences.h"
#include "QPlayer.h"

#include "core/SettingsManager.h"

DeferredSetup::DeferredSetup(QWidget *surface, QObject *parent)
    : QObject(parent)
    , m_surface(surface)
{
    connect(&m_worker, &QThread::finished, this, &DeferredSetup::goOn);
}

DeferredSetup::~DeferredSetup()
{
    cancel();
}

void DeferredSetup::start()
{
    if (m_started || m_outcome != Pending)
        return;
    m_started = true;
    m_worker.setFunction([](void *) { (void)QPlayer::instance(); }, nullptr);
    m_worker.start();
}

// After each step of the worker, on the GUI thread. The worker's own word of a step that was taken up before
// it came finds it at the next one.
void DeferredSetup::goOn()
{
    if (m_outcome != Pending || !m_started || !m_worker.isFinished())
        return;
    if (m_toolStep) {
        const bool isReady = !m_player->rendererFailed();
        const bool soundWaits =
            isReady && EnginePreferences(*SettingsManager::instance(), *m_player).canSoundWait();
        finish(isReady ? Ready : Failed);
        if (soundWaits) {
            m_worker.setFunction(&DeferredSetup::applyWaitingSound, m_player);
            m_worker.start();
        }
        return;
    }
    m_player = QPlayer::instance();
    emit playerMade(m_player);
    if (m_player->rendererFailed() || m_surface.isNull()) {
        finish(Failed);
        return;
    }
    m_player->setVideoParent(m_surface, m_surface->winId());
    m_toolStep = true;
    m_worker.setFunction(&DeferredSetup::setUpOutput, m_player);
    m_worker.start();
}

// On the worker.
void DeferredSetup::setUpOutput(void *player)
{
    auto &output = *static_cast<QPlayer *>(player);
    if (output.ensureTool())
        applyPreferences(output);
}

// On the worker. The list of sound devices may take as long as the picture does to come.
void DeferredSetup::applyPreferences(QPlayer &output)
{
    EnginePreferences preferences(*SettingsManager::instance(), output);
    preferences.applyAllButSound();
    if (!preferences.canSoundWait())
        preferences.applyAudio();
}

// On the worker.
void DeferredSetup::applyWaitingSound(void *player)
{
    EnginePreferences(*SettingsManager::instance(), *static_cast<QPlayer *>(player)).applyAudio();
}

void DeferredSetup::finish(Outcome outcome)
{
    {
        std::lock_guard lock(m_mutex);
        m_outcome = outcome;
    }
    m_done.notify_all();
    if (outcome == Ready)
        emit ready();
    else if (outcome == Failed)
        emit failed();
}

bool DeferredSetup::waitUntilDone()
{
    std::unique_lock lock(m_mutex);
    m_done.wait(lock, [this] { return m_outcome != Pending; });
    return m_outcome == Ready;
}

void DeferredSetup::cancel()
{
    m_worker.wait();
    if (m_outcome == Pending)
        finish(Cancelled);
}
