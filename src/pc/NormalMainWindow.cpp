#include "NormalMainWindow.h"

#include "CoverReader.h"
#include "NormalAudioView.h"
#include "NormalPlayControl.h"
#include "NormalPlayView.h"
#include "PcKeyActions.h"
#include "PcMediaSession.h"
#include "PcSettingsHost.h"
#include "dialogs/NormalMessageBoxFactory.h"
#include "dialogs/PcDialogs.h"
#include "menus/OpticalDiscs.h"
#include "overlays/NormalLastPositionLabel.h"
#include "overlays/NormalTitleBar.h"
#include "overlays/NormalTopBar.h"
#include "overlays/NormalTvshowAutoPlayLabel.h"
#include "overlays/PlayOverlays.h"
#include "start/NormalStartView.h"
#include "start/PosterView.h"
#include "transport/NormalOperateBar.h"
#include "transport/VolumeControl.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "keys/AppEventFilter.h"
#include "library/MediaServerManager.h"
#include "online/AdvertismentManagerEx.h"
#include "platform/DriveLetters.h"
#include "platform/ScreenSaver.h"
#include "playcontrol/DiscEventRule.h"
#include "playcontrol/DropReader.h"
#include "playcontrol/FolderEpisodes.h"
#include "playcontrol/ScreenshotWriter.h"
#include "player/DeferredSetup.h"
#include "player/EnginePreferences.h"
#include "player/workObject.h"
#include "preview/SmartPreview.h"
#include "queue/NormalPlaylistView.h"
#include "ui/AnimateMenu.h"
#include "ui/QDraggableNoBordersWnd.h"
#include "ui/StyleLoader.h"
#include "ui/VideoSurface.h"
#include "ui/WindowShadow.h"

#include <QApplication>
#include <QClipboard>
#include <QIcon>
#include <QPointer>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace {

// Design pixels.
constexpr QSize kMinimumSize{480, 270};
constexpr int k3dAfterMs = 1000;

PlaySourcePath sourcePaths()
{
    return {[](const QString &path) { return MediaServerManager::playPath(path); },
            [](const QString &drive) {
                return drive.size() == 1 ? DriveLetters::instance()->volumeLabel(drive.at(0)) : QString();
            }};
}

} // namespace

NormalMainWindow::NormalMainWindow(QWidget *parent, bool showNow)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_settings(*SettingsManager::instance())
    , m_placement(m_settings)
    , m_recent(m_settings)
{
    setObjectName(QStringLiteral("normalMainWindow"));
    setWindowTitle(ApplicationInfoManager::productName());
    setWindowIcon(QIcon(QLatin1String(StyleLoader::kPicturePrefix) + QLatin1String("appicon.png")));
    setAttribute(Qt::WA_StyledBackground);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    makeViews();
    makeMenu();
    m_setUp = new DeferredSetup(m_playView->surface(), this);
    m_setUp->start();
    m_control = new NormalPlayControl(m_settings, *m_setUp, sourcePaths(), this);
    m_overlays = new PlayOverlays(this, m_stack, new FolderEpisodes(this));
    m_dialogs = new PcDialogs(this);
    m_screenshots = new ScreenshotWriter(this);
    m_session = new PcMediaSession(*m_overlays->bar()->volumeControl(), this);
    m_covers = new CoverReader(this);
    m_drops = new DropReader(DropRule(), this);
    m_worker = std::make_unique<workObject>();
    m_shadow = new WindowShadow(this);
    m_borders = std::make_unique<QDraggableNoBordersWnd>(this);
    m_borders->setMinimumSize(kMinimumSize);
    makePlayMenu();
    connectParts();
    connectBar();
    connectControl();
    connectSession();
    retranslate();
    showRecent();
    restoreWindow(showNow);
    m_setUp->goOn();
    QTimer::singleShot(0, this, &NormalMainWindow::slot_configLater);
}

NormalMainWindow::~NormalMainWindow()
{
    // The focus goes with the children, when there is little left to act on that.
    disconnect(qApp, nullptr, this, nullptr);
    m_control->shutDown();
}

void NormalMainWindow::makeViews()
{
    m_titleBar = new NormalTitleBar(this);
    m_stack = new QStackedWidget(this);
    m_startView = new NormalStartView(m_stack);
    m_playView = new NormalPlayView(m_stack);
    m_audioView = new NormalAudioView(m_stack);
    for (QWidget *view : {static_cast<QWidget *>(m_startView), static_cast<QWidget *>(m_playView),
                          static_cast<QWidget *>(m_audioView)})
        m_stack->addWidget(view);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addWidget(m_stack, 1);
}

void NormalMainWindow::makeMenu()
{
    m_menu = new AnimateMenu(this);
    // Above the picture and all that hovers over it; a press on its own button closes it and does not open it
    // anew.
    m_menu->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    m_menu->setAttribute(Qt::WA_NoMouseReplay);
    connect(m_menu, &AnimateMenu::sig_showDialog, this, &NormalMainWindow::openDialog);
}

void NormalMainWindow::connectParts()
{
    connectTitleBar(m_titleBar);
    connectTitleBar(m_overlays->topBar()->titleBar());
    connect(m_startView, &NormalStartView::openMediaClicked, this, &NormalMainWindow::slot_openMedia);

    connect(m_startView, &NormalStartView::recentClicked, this,
            qOverload<QString>(&NormalMainWindow::slot_playSource));
    connect(m_startView, &NormalStartView::recentCleared, this, [this] {
        m_recent.clear();
        showRecent();
    });
    connect(m_drops, &DropReader::decided, this, &NormalMainWindow::takeDrop);

    connect(m_setUp, &DeferredSetup::playerMade, this, &NormalMainWindow::onPlayerMade);
    connect(m_setUp, &DeferredSetup::ready, this, &NormalMainWindow::onEngineReady);
    // Not before the window stands: the dialog turns an event loop of its own.
    connect(m_setUp, &DeferredSetup::failed, this, &NormalMainWindow::slot_showInitFailDialog,
            Qt::QueuedConnection);

    // Called where they are emitted: the worker keeps their order, and of sizes and of seeks that come while
    // the engine is busy the last.
    connect(this, &NormalMainWindow::sig_resizeRender, m_worker.get(), &workObject::requestRenderSize,
            Qt::DirectConnection);
    connect(this, &NormalMainWindow::sig_seek, m_worker.get(), &workObject::requestSeek,
            Qt::DirectConnection);
    connect(this, &NormalMainWindow::sig_setup3D, m_worker.get(), &workObject::requestSetup3D,
            Qt::DirectConnection);
    connect(this, &NormalMainWindow::sig_addSubtitle, m_worker.get(), &workObject::requestSubtitle,
            Qt::DirectConnection);
    connect(m_playView->surface(), &VideoSurface::deviceSizeChanged, this, [this](int width, int height) {
        if (m_player != nullptr)
            emit sig_resizeRender(width, height);
    });
    connect(m_covers, &CoverReader::ready, this,
            [this](const QString &, const QImage &cover) { onCover(cover); });
    connect(m_screenshots, &ScreenshotWriter::failed, this,
            [this](ScreenshotWriter::Error error, const QString &folder) {
                NormalMessageBoxFactory::showNote(this, ScreenshotWriter::errorText(error, folder));
            });

    auto *filter = AppEventFilter::instance();
    filter->setKeyOwner([window = QPointer<NormalMainWindow>(this)](const QKeyEvent &event) {
        return window && window->isKeyOfPart(event);
    });
    connect(filter, &AppEventFilter::SIG_PcKeyOperate, this, &NormalMainWindow::slot_hotKey);
    connect(filter, &AppEventFilter::SIG_mouseMove, this, &NormalMainWindow::SLOT_haveMouseMove);
    connect(filter, &AppEventFilter::SIG_mouseStopMove, this, &NormalMainWindow::SLOT_mouseMoveStop);
    connect(qApp, &QApplication::focusChanged, this, &NormalMainWindow::slot_responseFocusChange);
}

void NormalMainWindow::connectTitleBar(NormalTitleBar *titleBar)
{
    connect(titleBar, &NormalTitleBar::menuClicked, this, &NormalMainWindow::slot_menuClicked);
    connect(titleBar, &NormalTitleBar::minClicked, this, &NormalMainWindow::slot_minClicked);
    connect(titleBar, &NormalTitleBar::maxClicked, this, &NormalMainWindow::slot_maxClicked);
    connect(titleBar, &NormalTitleBar::restoreClicked, this, &NormalMainWindow::slot_restoreClicked);
    connect(titleBar, &NormalTitleBar::closeClicked, this, &NormalMainWindow::slot_closeClicked);
}

void NormalMainWindow::connectBar()
{
    const NormalOperateBar *bar = m_overlays->bar();
    connect(bar, &NormalOperateBar::sig_seek, this, &NormalMainWindow::sig_seek);
    connect(bar, &NormalOperateBar::sig_setup3D, this, &NormalMainWindow::sig_setup3D);
    connect(bar, &NormalOperateBar::sig_stopClicked, m_control, &NormalPlayControl::slot_stopLater);
    connect(bar, &NormalOperateBar::sig_fullScreenClicked, this, &NormalMainWindow::slot_fullScreen);
    connect(bar, &NormalOperateBar::sig_normalScreenClicked, this, &NormalMainWindow::slot_restoreClicked);
    connectPlaylist();
    connect(bar, &NormalOperateBar::sig_resize, this, &NormalMainWindow::slot_resizeFromRightBottom);
    connect(bar, &NormalOperateBar::sig_updateBorder, m_borders.get(),
            &QDraggableNoBordersWnd::slot_resizeBorder);
    connect(bar, &NormalOperateBar::sig_message, this,
            [this](const QString &text) { NormalMessageBoxFactory::showNote(this, text); });
    connect(bar, &NormalOperateBar::sig_userBehaviour, this, noteBehaviour);
    connect(m_overlays, &PlayOverlays::seekWanted, this, &NormalMainWindow::sig_seek);
    connect(m_overlays->preview(), &SmartPreview::sig_message, this,
            [this](const QString &text) { NormalMessageBoxFactory::showNote(this, text); });
    connect(m_overlays->preview(), &SmartPreview::sig_userBehaviour, this, noteBehaviour);
    connect(m_overlays, &PlayOverlays::rested, this, [this] { setCursor(Qt::BlankCursor); });
    connect(m_overlays->lastPosition(), &NormalLastPositionLabel::sig_setupAudioSub, m_control,
            &NormalPlayControl::slot_setupLastPositionAudioSub);
    connect(m_overlays->nextEpisode(), &NormalTvshowAutoPlayLabel::sig_playSource, this,
            qOverload<QString>(&NormalMainWindow::slot_playSource));
}

void NormalMainWindow::connectPlaylist()
{
    const NormalOperateBar *bar = m_overlays->bar();
    NormalPlaylistView *playlist = m_overlays->playlist();
    connect(bar, &NormalOperateBar::sig_playNext, playlist, &NormalPlaylistView::slot_playNext);
    connect(bar, &NormalOperateBar::sig_playLast, playlist, &NormalPlaylistView::slot_playLast);
    connect(playlist, &NormalPlaylistView::sig_playSource, this,
            [this, playlist](const QString &path, int title) {
                if (!m_control->play(path, title))
                    playlist->requestRefused();
            });
    connect(playlist, &NormalPlaylistView::sig_PlayBackEnd, m_control, &NormalPlayControl::finishEnded);
    connect(playlist, &NormalPlaylistView::sig_userBehaviour, this, noteBehaviour);
    connect(playlist, &NormalPlaylistView::sig_notice, this,
            [this](const QString &text) { NormalMessageBoxFactory::showNote(this, text); });
    connect(m_control, &NormalPlayControl::queueTurn, playlist, &NormalPlaylistView::slot_autoPlayNext);
    connect(m_control, &NormalPlayControl::selectViewWanted, playlist, &NormalPlaylistView::dropNext);
    m_control->setQueueTitle([playlist](const QString &path) { return playlist->beginSource(path); });
}

void NormalMainWindow::connectControl()
{
    connect(m_control, &NormalPlayControl::sourceAccepted, this, &NormalMainWindow::showPlayView);
    connect(m_control, &NormalPlayControl::waitingChanged, m_playView, &NormalPlayView::showWaiting);
    connect(m_control, &NormalPlayControl::sourceOpened, this, &NormalMainWindow::onSourceOpened);
    connect(m_control, &NormalPlayControl::playing, this, [this] {
        m_playView->surface()->setPlaying(true);
        addDroppedSubtitles();
        QTimer::singleShot(k3dAfterMs, this, &NormalMainWindow::sig_setup3D);
    });
    connect(m_control, &NormalPlayControl::idle, this, [this] { m_playView->surface()->setPlaying(false); });
    connect(m_control, &NormalPlayControl::seekControlChanged, m_overlays->bar(),
            &NormalOperateBar::setSeekControl);
    connect(m_control, &NormalPlayControl::resumeNoteDue, this, &NormalMainWindow::offerLastPosition);
    connect(m_control, &NormalPlayControl::selectViewWanted, this, &NormalMainWindow::slot_backToSelectView);
    connect(m_control, &NormalPlayControl::closeWanted, this, &NormalMainWindow::slot_closeClicked);
    // A note turns an event loop of its own: not inside the signal of a play that goes on.
    const auto later = Qt::QueuedConnection;
    connect(m_control, &NormalPlayControl::failureToTell, this, &NormalMainWindow::tellFailure, later);
    connect(m_control, &NormalPlayControl::noteToTell, this, &NormalMainWindow::tellNote, later);
    connect(m_control, &NormalPlayControl::bdavNoteDue, this, &NormalMainWindow::tellBdavNote, later);
    m_control->setNextEpisode([this] { return m_overlays->nextEpisode()->nextPath(); });
}

void NormalMainWindow::connectSession()
{
    connect(m_session, &PcMediaSession::raiseWanted, this, &NormalMainWindow::slot_activeWindow);
    connect(m_session, &PcMediaSession::closeWanted, this, &NormalMainWindow::slot_closeClicked);
    connect(m_session, &PcMediaSession::stopWanted, m_control, &NormalPlayControl::slot_stopLater);
    connect(m_session, &PcMediaSession::seekWanted, this, &NormalMainWindow::sig_seek);
    connect(m_session, &PcMediaSession::openWanted, this,
            qOverload<QString>(&NormalMainWindow::slot_playSource));
    connect(m_session, &PcMediaSession::fullScreenWanted, this, [this](bool fullScreen) {
        if (fullScreen != isFullScreen())
            slot_fullScreen();
    });
}

void NormalMainWindow::applyStartFlags(int flags)
{
    if ((flags & StartFullScreen) != 0) {
        QTimer::singleShot(0, this, &NormalMainWindow::slot_fullScreen);
        QTimer::singleShot(0, this, &NormalMainWindow::show);
    }
    if ((flags & StartCloseAtEnd) != 0)
        m_control->setCloseAtEnd(true);
}

bool NormalMainWindow::isPlayViewShown() const
{
    return m_stack->currentWidget() != m_startView;
}

QVector<AnimateMenu::Row> NormalMainWindow::menuRows(bool playing)
{
    using Kind = AnimateMenu::Kind;
    const AnimateMenu::Row line{Kind::Line, {}, {}, false};
    return {{Kind::Dialog, PopDlgTyle::OpenMedia, tr("Open Media..."), true},
            line,
            {Kind::Dialog, PopDlgTyle::VideoControl, tr("Video Control..."), playing},
            {Kind::Dialog, PopDlgTyle::ColorAdjust, tr("Color Adjust..."), playing},
            {Kind::Dialog, PopDlgTyle::LoadSubtitle, tr("Load Subtitle..."), playing},
            line,
            {Kind::Dialog, PopDlgTyle::Setting, tr("Settings..."), true},
            {Kind::Dialog, PopDlgTyle::About, tr("About"), true}};
}

void NormalMainWindow::retranslate()
{
    m_titleBar->retranslate();
    m_startView->retranslate();
    m_overlays->retranslate();
    const bool playing = isPlayViewShown();
    m_menu->setRows(menuRows(playing));
    m_titleBar->setText(playing ? m_control->displayName() : ApplicationInfoManager::productName());
}

// ---- set-up of the engine

void NormalMainWindow::slot_configLater()
{
    m_overlays->playlist()->queue()->load();
    m_session->open(winId());
    for (const char *event : {"ProcessOpened", "ProcessOpenedUser"})
        noteBehaviour(QLatin1String(event), QStringLiteral("true"));
}

void NormalMainWindow::onPlayerMade(QPlayer *player)
{
    m_player = player;
    m_keyActions = std::make_unique<PcKeyActions>(*player, *m_overlays->bar()->volumeControl(),
                                                  [this](KeyOperateType type) { slot_hotKey(type); });
    m_control->connectPlayer(player);
    m_overlays->connectPlayer(player);
    m_session->connectPlayer(player);
    connect(player, &QPlayer::sig_playStatusChanged, this,
            [](QPlayer::QPlayerStatus status) { ScreenSaver::setPlaying(QPlayer::isMoving(status)); });
    connect(player, &QPlayer::sig_DiscEventOccured, this,
            [this](char drive, VD_OPTRA_DISC_NOTIFY_TYPE type) { onDiscEvent(drive, int(type)); });
    connect(player, &QPlayer::sig_errorOccured, this, [this, player](VD_ErrorCallbackType type) {
        // It would come back with each start.
        if (type == libvp::VD_Error_ShaderInvalid)
            EnginePreferences(m_settings, *player).applyShader({});
    });
    connect(player, &QPlayer::sig_shotScreen, this, &NormalMainWindow::slot_saveScreenShot);
    connect(player, &QPlayer::sig_videoSizeChanged, this, &NormalMainWindow::slot_fitVideoSize);
}

void NormalMainWindow::onEngineReady()
{
    m_isEngineReady = true;
    m_overlays->bar()->volumeControl()->restore();
    const QSize size = m_playView->surface()->deviceSize();
    emit sig_resizeRender(size.width(), size.height());
}

void NormalMainWindow::onDiscEvent(char drive, int notifyType)
{
    const QString letter{QLatin1Char(drive)};
    m_discs->refresh();
    if (DiscEventRule::isGone(notifyType))
        m_overlays->playlist()->slot_removeDiscList(letter);
    const bool autoPlay = m_settings.valueOr(QLatin1String(SettingsKeys::PC_AutoPlay), true);
    if (DiscEventRule::opensPlay(notifyType, autoPlay, m_control->hasSource()))
        slot_playSource(letter);
}

// ---- playing

void NormalMainWindow::slot_playSource(QString strPath)
{
    slot_playSource(std::move(strPath), -1);
}

void NormalMainWindow::slot_playSource(QString strPath, int nTitle)
{
    m_control->play(strPath, nTitle);
}

void NormalMainWindow::showPlayView(const QString &title)
{
    applyAlwaysOnTop(true);
    setWindowTitle(QStringLiteral("%1 - %2").arg(title, ApplicationInfoManager::productName()));
    m_audioView->setName(title);
    m_audioView->setCover({});
    m_stack->setCurrentWidget(m_playView);
    m_playView->surface()->update();
    updateTitleBar();
    m_session->beginSource(title, m_control->currentPath());
    m_overlays->beginSource(title, m_control->currentPath());
    retranslate();
}

void NormalMainWindow::onSourceOpened(bool isVideo)
{
    applyAlwaysOnTop(true);
    m_stack->setCurrentWidget(isVideo ? static_cast<QWidget *>(m_playView) : m_audioView);
    m_overlays->setStaying(!isVideo);
    m_overlays->showOpened(m_control->currentPath(), m_control->isDisc());
    // Its titles are chosen there.
    if (m_control->isDisc())
        m_overlays->playlist()->addSources({m_control->askedPath()});
    m_recent.add(m_control->displayName(), m_control->currentPath(),
                 RecentFiles::Type(m_control->sourceKind()));
    // A second reading of a disc would fight with the first for the laser.
    if (m_control->sourceKind() == PlaySource::File)
        m_covers->request(m_control->currentPath());
}

void NormalMainWindow::onCover(const QImage &cover)
{
    m_session->setCover(cover);
    if (m_stack->currentWidget() != m_audioView)
        return;
    m_audioView->setCover(cover);
    m_overlays->bar()->setMusicPixmap(QPixmap::fromImage(cover));
}

void NormalMainWindow::showRecent()
{
    m_startView->setRecent(m_recent.entries());
}

void NormalMainWindow::offerLastPosition()
{
    m_overlays->lastPosition()->setPosition(m_control->storedSeconds(), m_control->resumeImage());
    m_overlays->lastPosition()->slot_showLabel();
}

void NormalMainWindow::slot_backToSelectView()
{
    unsetCursor();
    m_covers->forget();
    m_overlays->endSource();
    m_dialogs->closeAll();
    m_playView->showWaiting(false);
    m_playView->surface()->setPlaying(false);
    m_droppedSubtitles.clear();
    showRecent();
    m_stack->setCurrentWidget(m_startView);
    setWindowTitle(ApplicationInfoManager::productName());
    updateTitleBar();
    retranslate();
    if (!m_sizeBeforeFit.isEmpty() && !isFullScreen() && !isMaximized())
        resize(m_sizeBeforeFit);
    m_sizeBeforeFit = {};
    applyAlwaysOnTop(false);
}

void NormalMainWindow::slot_changePoster(QVariant poster, bool bAnimate)
{
    m_startView->setPoster(poster, bAnimate);
}

void NormalMainWindow::slot_posterProgressChange(QVariant value)
{
    m_startView->poster()->setPosterProgress(value.toDouble());
}

void NormalMainWindow::slot_opacityProgressChange(QVariant value)
{
    m_startView->poster()->setOpacityProgress(value.toDouble());
}

void NormalMainWindow::slot_saveScreenShot(unsigned char *RGBA, int Width, int Height)
{
    const QImage picture = ScreenshotWriter::copyOf(RGBA, Width, Height);
    const ScreenshotNaming::Target target =
        ScreenshotNaming::target(m_settings, ApplicationInfoManager::instance()->picturesFolder());
    m_screenshots->write(picture, target);
    if (target.toClipboard && !picture.isNull()) {
        m_shotForClipboard = picture;
        QTimer::singleShot(0, this, &NormalMainWindow::slot_saveClipboard);
    }
}

void NormalMainWindow::slot_saveClipboard()
{
    const QImage picture = std::exchange(m_shotForClipboard, {});
    if (!picture.isNull())
        QGuiApplication::clipboard()->setImage(picture);
}

// ---- end

void NormalMainWindow::closeEvent(QCloseEvent *event)
{
    ScreenSaver::enable();
    QWidget::closeEvent(event);
    if (m_isClosed)
        return;
    m_isClosed = true;
    const bool maximized = isMaximized() || (isFullScreen() && m_maximizedBeforeFullScreen);
    const bool fullScreen = isFullScreen();
    m_playView->showWaiting(false);
    m_dialogs->closeAll();
    m_overlays->endSource();
    m_borders->hideAll();
    m_shadow->hide();
    // The engine may take its time; the window is gone for the user from here on.
    hide();
    QGuiApplication::sync();
    m_covers->forget();
    m_drops->cancel();
    if (m_isEngineReady)
        m_overlays->bar()->volumeControl()->store();
    m_setUp->cancel();
    m_settingsHost->shutDown();
    AppEventFilter::instance()->stop();
    if (m_player != nullptr) {
        for (QObject *listener :
             {static_cast<QObject *>(this), static_cast<QObject *>(m_session),
              static_cast<QObject *>(m_overlays), static_cast<QObject *>(m_overlays->bar())})
            disconnect(m_player, nullptr, listener, nullptr);
    }
    m_overlays->playlist()->save();
    m_overlays->preview()->shutDown();
    m_control->shutDown();
    m_worker.reset();
    m_placement.store(m_normalGeometry, maximized, fullScreen);
    AdvertismentManagerEx::instance()->windowClosed(
        m_settings.value(QLatin1String(SettingsKeys::PC_Played)).toBool());
    QCoreApplication::quit();
}
