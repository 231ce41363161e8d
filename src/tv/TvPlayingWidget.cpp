#include "TvPlayingWidget.h"

#include "TvPlayingThread.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "library/MediaServerManager.h"
#include "platform/ScreenSaver.h"
#include "player/DeferredSetup.h"
#include "player/PlaySourcePath.h"
#include "player/PreferredLanguages.h"
#include "player/workObject.h"
#include "ui/VideoSurface.h"

#include <QDebug>
#include <QFrame>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int kLoudest = 100;
constexpr float kFullVolume = 100.0F;

QString key(const char *name)
{
    return QLatin1String(name);
}

} // namespace

TvPlayingWidget::TvPlayingWidget(QWidget *parent)
    : QStackedWidget(parent)
{
    setObjectName(QStringLiteral("tvPlayingPage"));
    m_surface = new VideoSurface(this);
    addWidget(m_surface);
    makeMessagePage();

    m_setUp = new DeferredSetup(m_surface, this);
    m_thread = new TvPlayingThread(*m_setUp, this);
    m_worker = std::make_unique<workObject>();
    connect(m_setUp, &DeferredSetup::playerMade, this, &TvPlayingWidget::onPlayerMade);
    connect(m_setUp, &DeferredSetup::ready, this, &TvPlayingWidget::SLOT_initFinished);
    connect(m_setUp, &DeferredSetup::failed, this, &TvPlayingWidget::SLOT_initPlayerFailed);

    const auto &settings = *SettingsManager::instance();
    if (settings.contains(key(SettingsKeys::PC_VolumeCount)))
        m_volumeCount = qBound(0, settings.value(key(SettingsKeys::PC_VolumeCount)).toInt(), kLoudest);
    m_muted = settings.value(key(SettingsKeys::PC_VolumeMute)).toBool();

    qInfo() << "[TV_CheckTime] Init play config start.";
    QTimer::singleShot(0, m_setUp, &DeferredSetup::start);
}

TvPlayingWidget::~TvPlayingWidget()
{
    shutDown();
}

void TvPlayingWidget::makeMessagePage()
{
    m_messagePage = new QWidget(this);
    auto *panel = new QFrame(m_messagePage);
    panel->setObjectName(QStringLiteral("tvDialogPanel"));
    const auto makeLabel = [panel](const char *name) {
        auto *label = new QLabel(panel);
        label->setObjectName(QLatin1String(name));
        label->setTextFormat(Qt::PlainText);
        return label;
    };
    m_messageTitle = makeLabel("tvDialogTitle");
    m_messageText = makeLabel("tvDialogText");
    m_messageText->setWordWrap(true);
    m_messageButton = makeLabel("tvDialogButton");

    auto *inner = new QVBoxLayout(panel);
    inner->setContentsMargins(60, 48, 60, 48);
    inner->setSpacing(36);
    inner->addWidget(m_messageTitle);
    inner->addWidget(m_messageText, 1);
    inner->addWidget(m_messageButton, 0, Qt::AlignRight);
    auto *outer = new QVBoxLayout(m_messagePage);
    panel->setMinimumWidth(960);
    outer->addWidget(panel, 0, Qt::AlignCenter);
    addWidget(m_messagePage);
    retranslate();
}

void TvPlayingWidget::retranslate()
{
    m_messageTitle->setText(tr("Playback Failed!"));
    m_messageButton->setText(tr("OK"));
}

bool TvPlayingWidget::isMessageShown() const
{
    return currentWidget() == m_messagePage;
}

// ---- set-up

void TvPlayingWidget::onPlayerMade(QPlayer *player)
{
    m_player = player;
    connect(player, &QPlayer::sig_playStatusChanged, this, &TvPlayingWidget::SLOT_playStatusChanged);
    connect(player, &QPlayer::sig_playFailChanged, this, &TvPlayingWidget::SLOT_playFailChanged);
    connect(m_surface, &VideoSurface::deviceSizeChanged, m_worker.get(), &workObject::slot_resizeRenderSize);
}

void TvPlayingWidget::SLOT_initFinished()
{
    qInfo() << "[TV_CheckTime] Init play config end.";
    m_initFinished = true;
    emit SIG_initFinished();
    if (!m_pendingPath.isEmpty())
        play(std::exchange(m_pendingPath, QString()));
}

void TvPlayingWidget::SLOT_initPlayerFailed()
{
    m_pendingPath.clear();
    if (isVisible())
        showMessage(
            tr("Failure initializing playback device, please update your video card and sound card drivers. "
               "Contact us if that does not fix the problem."));
}

// ---- playing

bool TvPlayingWidget::startPlay(const QString &path)
{
    m_path = path;
    setCurrentWidget(m_surface);
    if (m_setUp->hasFailed()) {
        SLOT_initPlayerFailed();
        return false;
    }
    if (!m_initFinished) {
        m_pendingPath = path;
        return true;
    }
    if (m_thread->isRunning())
        return false;
    play(path);
    return true;
}

void TvPlayingWidget::play(const QString &path)
{
    const PlaySourcePath paths([](const QString &asked) { return MediaServerManager::playPath(asked); },
                               nullptr);
    const PlaySource source = paths.resolve(path);
    m_isPlayingHere = true;
    const SettingsManager &settings = *SettingsManager::instance();
    m_thread->start({source.path, source.kind, -1, source.cueTitle, 0, PreferredLanguages::ofSound(settings),
                     PreferredLanguages::ofSubtitles(settings)});
}

void TvPlayingWidget::SLOT_playStatusChanged(QPlayer::QPlayerStatus status)
{
    ScreenSaver::setPlaying(QPlayer::isMoving(status));
    switch (status) {
    case QPlayer::QPlayerStatus_Playing:
        m_surface->setPlaying(true);
        SettingsManager::instance()->setValue(key(SettingsKeys::PC_Played), true);
        m_player->setVolume(float(m_volumeCount) / kFullVolume);
        m_player->setMute(m_muted);
        break;
    case QPlayer::QPlayerStatus_Ended:
        if (m_isPlayingHere)
            exitPlay(true);
        break;
    default:
        break;
    }
}

void TvPlayingWidget::SLOT_playFailChanged(int errCode, vdFileInfo fileInfo)
{
    Q_UNUSED(fileInfo)
    qInfo() << "[Player fail]: code" << errCode << m_path;
    m_isPlayingHere = false;
    showMessage(tr("This source can't be played. It may be damaged, protected or of an unknown format.")
                + QStringLiteral("\n\n") + m_path);
}

void TvPlayingWidget::showMessage(const QString &text)
{
    m_surface->setPlaying(false);
    m_messageText->setText(text);
    setCurrentWidget(m_messagePage);
}

void TvPlayingWidget::exitPlay(bool askStop)
{
    m_pendingPath.clear();
    m_isPlayingHere = false;
    m_surface->setPlaying(false);
    if (askStop && m_player != nullptr) {
        // The engine may take its time to close a disc; the page does not wait for it.
        QPlayer *player = m_player;
        auto *stop = QThread::create([player] { player->stop(); });
        connect(stop, &QThread::finished, stop, &QObject::deleteLater);
        stop->setParent(this);
        stop->start();
    }
    setCurrentWidget(m_surface);
    emit SIG_exitPlay();
}

void TvPlayingWidget::shutDown()
{
    if (m_isClosed)
        return;
    m_isClosed = true;
    m_setUp->cancel();
    if (m_player != nullptr) {
        disconnect(m_player, nullptr, this, nullptr);
        m_player->stop();
    }
    m_thread->wait();
    const QList<QThread *> stops = findChildren<QThread *>();
    for (QThread *stop : stops)
        stop->wait();
    if (m_player != nullptr)
        m_player->stop();
    m_worker.reset();
}

// ---- keys

bool TvPlayingWidget::keyOperate(KeyOperateType type)
{
    if (isMessageShown()) {
        if (type == KeyOperate_Accept || type == KeyOperate_Return)
            exitPlay(true);
        return true;
    }
    const struct {
        KeyOperateType type;
        std::function<void()> action;
    } rows[] = {
        {KeyOperate_Return, [this] { exitPlay(true); }},
        {KeyOperate_Stop, [this] { exitPlay(true); }},
        {KeyOperate_Mute, [this] { toggleMute(); }},
        {KeyOperate_PreviousChapter, [this] { m_player->lastChapter(); }},
        {KeyOperate_NextChapter, [this] { m_player->nextChapter(); }},
        {KeyOperate_PlayPause, [this] { m_player->togglePause(); }},
        {KeyOperate_VolumeUp, [this] { changeVolume(true); }},
        {KeyOperate_VolumeDown, [this] { changeVolume(false); }},
        {KeyOperate_FastForward, [this] { m_player->speedUp(true); }},
        {KeyOperate_Rewind, [this] { m_player->speedUp(false); }},
        {KeyOperate_RotateCW, [this] { m_player->flip(1); }},
        {KeyOperate_RotateCCW, [this] { m_player->flip(2); }},
        {KeyOperate_FlipVertically, [this] { m_player->flip(5); }},
        {KeyOperate_FlipHorizontally, [this] { m_player->flip(4); }},
        {KeyOperate_ForwardStep, [this] { seekBy(StepSeconds); }},
        {KeyOperate_BackwardStep, [this] { seekBy(-StepSeconds); }},
    };
    for (const auto &row : rows) {
        if (row.type != type)
            continue;
        const bool leaves = type == KeyOperate_Return || type == KeyOperate_Stop;
        if (leaves || m_player != nullptr)
            row.action();
        return true;
    }
    return false;
}

void TvPlayingWidget::toggleMute()
{
    m_muted = !m_muted;
    SettingsManager::instance()->setValue(key(SettingsKeys::PC_VolumeMute), m_muted);
    m_player->setMute(m_muted);
}

void TvPlayingWidget::changeVolume(bool up)
{
    m_volumeCount = qBound(0, m_volumeCount + (up ? 1 : -1), kLoudest);
    if (m_muted)
        toggleMute();
    SettingsManager::instance()->setValue(key(SettingsKeys::PC_VolumeCount), m_volumeCount);
    m_player->setVolume(float(m_volumeCount) / kFullVolume);
}

void TvPlayingWidget::seekBy(int seconds)
{
    m_player->seek(qBound(0.0, m_player->currentTime() + seconds, m_player->totalTime()));
}
