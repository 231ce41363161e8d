#include "PlayOverlays.h"

#include "NormalLastPositionLabel.h"
#include "NormalMetaView.h"
#include "NormalTipLabel.h"
#include "NormalTitleBar.h"
#include "NormalTopBar.h"
#include "NormalTvshowAutoPlayLabel.h"
#include "transport/NormalOperateBar.h"
#include "transport/NormalPlaySpeedBar.h"
#include "transport/VolumeControl.h"

#include "core/SettingsManager.h"
#include "keys/AppEventFilter.h"
#include "player/QPlayer.h"
#include "preview/PlayerPreviewSource.h"
#include "preview/SmartPreview.h"
#include "queue/NormalPlaylistSwitch.h"
#include "queue/NormalPlaylistView.h"
#include "ui/OverlayHost.h"

#include <QApplication>
#include <QCursor>

namespace {

constexpr int kRestMs = 3000;
// A source that opens fast shows its first picture before the bars come.
constexpr int kWakeMs = 250;

// Design pixels from the edges of the picture.
constexpr int kSide = 24;
constexpr int kUnderTitle = 64;
constexpr int kUnderSpeed = 112;
constexpr int kAboveBar = 128;

enum Level { InformationLevel, StripLevel, NoteLevel, BarLevel, PopLevel };

int tipOf(QPlayer::QPlayerStatus status)
{
    switch (status) {
    case QPlayer::QPlayerStatus_Playing:
        return NormalTipLabel::Playing;
    case QPlayer::QPlayerStatus_Paused:
        return NormalTipLabel::Paused;
    case QPlayer::QPlayerStatus_Forward:
        return NormalTipLabel::FastForward;
    case QPlayer::QPlayerStatus_Rewind:
        return NormalTipLabel::Rewind;
    default:
        return 0;
    }
}

// What the playlist asks of the engine, on its worker.
NormalPlaylistView::Services playlistServices()
{
    NormalPlaylistView::Services services;
    services.queue.titles = [](const QString &path, int itemType) {
        return QPlayer::instance()->prepareDisc(path, itemType);
    };
    return services;
}

} // namespace

PlayOverlays::PlayOverlays(QWidget *window, QWidget *area, INextEpisodeSource *episodes)
    : QObject(window)
    , m_host(new OverlayHost(window, area))
    , m_bar(new NormalOperateBar(window))
    , m_topBar(new NormalTopBar(window))
    , m_meta(new NormalMetaView(window))
    , m_tip(new NormalTipLabel(window))
    , m_speed(new NormalPlaySpeedBar(window))
    , m_lastPosition(new NormalLastPositionLabel(window))
    , m_nextEpisode(new NormalTvshowAutoPlayLabel(episodes, window))
    , m_preview(new SmartPreview(window, std::make_shared<PlayerPreviewSource>(),
                                 [this](double seconds) { emit seekWanted(int(seconds)); }))
    , m_playlist(new NormalPlaylistView(*SettingsManager::instance(), playlistServices(), window))
    , m_playlistSwitch(new NormalPlaylistSwitch(window))
{
    m_wakeTimer.setSingleShot(true);
    m_wakeTimer.setInterval(kWakeMs);
    connect(&m_wakeTimer, &QTimer::timeout, this, &PlayOverlays::wake);
    m_restTimer.setSingleShot(true);
    m_restTimer.setInterval(kRestMs);
    connect(&m_restTimer, &QTimer::timeout, this, [this] {
        if (rest())
            emit rested();
    });
    m_bar->setKeyText([](int operation) {
        return AppEventFilter::instance()->keySequence(false, operation).toString(QKeySequence::NativeText);
    });
    m_preview->connectBar(m_bar);
    m_tip->setSpeedText([] {
        auto *player = QPlayer::instance();
        return player->speedTexts().value(player->speedIndex());
    });
    place();
    connectPlaylist();
}

PlayOverlays::~PlayOverlays() = default;

void PlayOverlays::place()
{
    using Anchor = OverlayRule::Anchor;
    const struct {
        QWidget *widget;
        OverlayRule rule;
    } rows[] = {
        {m_bar, {Anchor::Bottom, {}, BarLevel}},
        {m_topBar, {Anchor::Top, {}, BarLevel}},
        {m_speed, {Anchor::TopLeft, {kSide, kUnderTitle, kSide, 0}, InformationLevel}},
        {m_meta, {Anchor::TopLeft, {kSide, kUnderSpeed, kSide, 0}, InformationLevel}},
        {m_tip, {Anchor::TopRight, {kSide, kUnderTitle, kSide, 0}, InformationLevel}},
        {m_lastPosition, {Anchor::BottomLeft, {kSide, 0, kSide, kAboveBar}, NoteLevel}},
        {m_nextEpisode, {Anchor::BottomRight, {kSide, 0, kSide, kAboveBar}, NoteLevel}},
    };
    for (const auto &row : rows)
        m_host->add(row.widget, row.rule);
    m_preview->addTo(*m_host, StripLevel, PopLevel);
    m_host->add(m_playlist, NormalPlaylistView::rule(StripLevel));
    m_host->add(m_playlistSwitch, NormalPlaylistSwitch::rule(false, StripLevel));
}

void PlayOverlays::connectPlaylist()
{
    connect(m_bar, &NormalOperateBar::sig_playlistClicked, m_playlist, &NormalPlaylistView::setOpen);
    connect(m_playlistSwitch, &NormalPlaylistSwitch::sig_switched, m_playlist, &NormalPlaylistView::setOpen);
    connect(m_playlist, &NormalPlaylistView::sig_widgetStateChanged, this, [this](bool isOpen) {
        m_bar->slot_updatePlaylistButton(isOpen);
        m_playlistSwitch->slot_setPanelOpen(isOpen);
        m_host->setRule(m_playlistSwitch, NormalPlaylistSwitch::rule(isOpen, StripLevel));
        m_restTimer.start();
    });
}

void PlayOverlays::connectPlayer(QPlayer *player)
{
    connect(player, &QPlayer::sig_playStatusChanged, m_bar, &NormalOperateBar::slot_setUiByStatus);
    connect(player, &QPlayer::sig_timeChanged, m_bar, &NormalOperateBar::slot_setTimeInfo);
    connect(player, &QPlayer::sig_playStatusChanged, m_playlist, &NormalPlaylistView::slot_setPlayStatus);
    connect(player, &QPlayer::sig_playMetaChanged, m_playlist, &NormalPlaylistView::slot_setMetaInfo);
    connect(player, &QPlayer::sig_timeChanged, m_preview, &SmartPreview::slot_setTimeInfo);
    connect(player, &QPlayer::sig_seekState, m_bar, &NormalOperateBar::slot_responseSeekState);
    connect(player, &QPlayer::sig_volumeChanged, m_bar->volumeControl(), &VolumeControl::showVolume);
    connect(player, &QPlayer::sig_muteChanged, m_bar->volumeControl(), &VolumeControl::showMute);
    connect(player, &QPlayer::sig_playMetaChanged, m_meta, &NormalMetaView::slot_setMetaInfo);
    connect(player, &QPlayer::sig_playMetaChanged, m_nextEpisode,
            &NormalTvshowAutoPlayLabel::slot_setMetaInfo);
    connect(player, &QPlayer::sig_playStatusChanged, this, [this](QPlayer::QPlayerStatus status) {
        if (!m_hasSource)
            return;
        // The session with its pictures ends with the play.
        if (status == QPlayer::QPlayerStatus_Stopped || status == QPlayer::QPlayerStatus_Ended
            || status == QPlayer::QPlayerStatus_Failed)
            m_preview->endSource();
        if (m_wakeTimer.isActive())
            wake();
        m_tip->showTip(tipOf(status));
        m_speed->slot_updateSpeed(status);
    });
}

void PlayOverlays::beginSource(const QString &displayName, const QString &path)
{
    m_hasSource = true;
    m_bar->reset(displayName);
    m_bar->slot_setTimeInfo(0, 0);
    m_meta->setDisplayName(displayName);
    m_speed->disappear();
    m_preview->endSource();
    m_lastPosition->slot_hideLabel();
    m_nextEpisode->slot_hideLabel();
    m_nextEpisode->setSource(path);
    m_topBar->titleBar()->setText(displayName);
    m_wakeTimer.start();
}

void PlayOverlays::showOpened(const QString &path, bool isDisc)
{
    m_preview->beginSource(path, isDisc ? SmartPreview::Kind::Disc : SmartPreview::Kind::File);
}

void PlayOverlays::endSource()
{
    m_playlist->closeNow();
    m_preview->endSource();
    m_hasSource = false;
    m_staying = false;
    m_wakeTimer.stop();
    m_restTimer.stop();
    m_lastPosition->slot_hideLabel();
    m_nextEpisode->slot_hideLabel();
    m_meta->clear();
    m_bar->reset({});
    m_host->hideAll();
}

void PlayOverlays::setStaying(bool staying)
{
    m_staying = staying;
    wake();
}

void PlayOverlays::setFullScreen(bool fullScreen)
{
    m_bar->setFullScreen(fullScreen);
}

void PlayOverlays::setMaximized(bool maximized)
{
    m_topBar->titleBar()->setMaximized(maximized);
    m_bar->setGripEnabled(!maximized);
}

void PlayOverlays::wake()
{
    m_wakeTimer.stop();
    if (!m_hasSource)
        return;
    m_bar->appear();
    m_topBar->appear();
    m_playlistSwitch->appear();
    m_restTimer.start();
}

bool PlayOverlays::rest()
{
    if (!m_hasSource || m_staying)
        return false;
    if (isHeld()) {
        m_restTimer.start();
        return false;
    }
    m_restTimer.stop();
    m_bar->disappear();
    m_topBar->disappear();
    m_playlistSwitch->disappear();
    return true;
}

bool PlayOverlays::isAwake() const
{
    return m_bar->isWanted();
}

bool PlayOverlays::isHeld() const
{
    if (QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr
        || QApplication::mouseButtons() != Qt::NoButton || m_preview->isStripOpen())
        return true;
    const QPoint pointer = QCursor::pos();
    for (const OverlayWidget *bar :
         {static_cast<const OverlayWidget *>(m_bar), static_cast<const OverlayWidget *>(m_topBar),
          static_cast<const OverlayWidget *>(m_playlist),
          static_cast<const OverlayWidget *>(m_playlistSwitch)}) {
        if (bar->isVisible() && bar->takesMouseAt(bar->mapFromGlobal(pointer)))
            return true;
    }
    return false;
}

void PlayOverlays::retranslate()
{
    m_bar->retranslate();
    m_speed->retranslate();
    m_preview->retranslate();
    m_playlist->retranslate();
    m_playlistSwitch->retranslate();
    m_topBar->titleBar()->retranslate();
}
