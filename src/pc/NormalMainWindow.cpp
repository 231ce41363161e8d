#include "NormalMainWindow.h"

#include "NormalMessageBox.h"
#include "NormalMessageBoxFactory.h"
#include "NormalPlayControl.h"
#include "NormalPlayView.h"
#include "NormalStartView.h"
#include "NormalTitleBar.h"
#include "PcKeyActions.h"

#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "keys/AppEventFilter.h"
#include "library/MediaServerManager.h"
#include "online/AdvertismentManagerEx.h"
#include "platform/DriveLetters.h"
#include "platform/ScreenSaver.h"
#include "playcontrol/ErrorNote.h"
#include "playcontrol/PlayFailure.h"
#include "playcontrol/ScreenshotWriter.h"
#include "player/DeferredSetup.h"
#include "player/workObject.h"
#include "ui/DisplayScale.h"
#include "ui/QDraggableNoBordersWnd.h"
#include "ui/StyleLoader.h"
#include "ui/VideoSurface.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace {

// Design pixels.
constexpr QSize kDefaultSize{1024, 576};
constexpr QSize kMinimumSize{480, 270};
constexpr int k3dAfterMs = 1000;
constexpr float kFullVolume = 100.0F;

PlaySourcePath sourcePaths()
{
    return {[](const QString &path) { return MediaServerManager::instance()->playPath(path); },
            [](const QString &drive) {
                return drive.size() == 1 ? DriveLetters::instance()->volumeLabel(drive.at(0)) : QString();
            }};
}

QStringList droppedPaths(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

} // namespace

NormalMainWindow::NormalMainWindow(QWidget *parent, bool showNow)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_settings(*SettingsManager::instance())
    , m_placement(m_settings)
{
    setObjectName(QStringLiteral("normalMainWindow"));
    setWindowTitle(ApplicationInfoManager::productName());
    setWindowIcon(QIcon(QLatin1String(StyleLoader::kPicturePrefix) + QLatin1String("appicon.png")));
    setAttribute(Qt::WA_StyledBackground);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    makeViews();
    m_setUp = new DeferredSetup(m_playView->surface(), this);
    m_control = new NormalPlayControl(m_settings, *m_setUp, sourcePaths(), this);
    m_screenshots = new ScreenshotWriter(this);
    m_worker = std::make_unique<workObject>();
    m_borders = std::make_unique<QDraggableNoBordersWnd>(this);
    m_borders->setMinimumSize(kMinimumSize);
    connectParts();
    connectControl();
    retranslate();
    restoreWindow(showNow);
    QTimer::singleShot(0, this, &NormalMainWindow::slot_configLater);
}

NormalMainWindow::~NormalMainWindow()
{
    m_control->shutDown();
}

void NormalMainWindow::makeViews()
{
    m_titleBar = new NormalTitleBar(this);
    m_stack = new QStackedWidget(this);
    m_startView = new NormalStartView(m_stack);
    m_playView = new NormalPlayView(m_stack);
    m_stack->addWidget(m_startView);
    m_stack->addWidget(m_playView);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_titleBar);
    layout->addWidget(m_stack, 1);
}

void NormalMainWindow::connectParts()
{
    connect(m_titleBar, &NormalTitleBar::minClicked, this, &NormalMainWindow::slot_minClicked);
    connect(m_titleBar, &NormalTitleBar::maxClicked, this, &NormalMainWindow::slot_maxClicked);
    connect(m_titleBar, &NormalTitleBar::restoreClicked, this, &NormalMainWindow::slot_restoreClicked);
    connect(m_titleBar, &NormalTitleBar::closeClicked, this, &NormalMainWindow::slot_closeClicked);
    connect(m_startView, &NormalStartView::openMediaClicked, this, &NormalMainWindow::slot_openMedia);

    connect(m_setUp, &DeferredSetup::playerMade, this, &NormalMainWindow::onPlayerMade);
    connect(m_setUp, &DeferredSetup::ready, this, &NormalMainWindow::onEngineReady);
    connect(m_setUp, &DeferredSetup::failed, this, &NormalMainWindow::slot_showInitFailDialog);

    connect(this, &NormalMainWindow::sig_resizeRender, m_worker.get(), &workObject::slot_resizeRenderSize);
    connect(this, &NormalMainWindow::sig_setup3D, m_worker.get(), &workObject::slot_setup3D);
    connect(m_playView->surface(), &VideoSurface::deviceSizeChanged, this, [this](int width, int height) {
        if (m_player != nullptr)
            emit sig_resizeRender(width, height);
    });

    auto *filter = AppEventFilter::instance();
    connect(filter, &AppEventFilter::SIG_PcKeyOperate, this, &NormalMainWindow::slot_hotKey);
    connect(filter, &AppEventFilter::SIG_mouseMove, this, &NormalMainWindow::SLOT_haveMouseMove);
    connect(filter, &AppEventFilter::SIG_mouseStopMove, this, &NormalMainWindow::SLOT_mouseMoveStop);
}

void NormalMainWindow::connectControl()
{
    connect(m_control, &NormalPlayControl::sourceAccepted, this, &NormalMainWindow::showPlayView);
    connect(m_control, &NormalPlayControl::waitingChanged, m_playView, &NormalPlayView::showWaiting);
    connect(m_control, &NormalPlayControl::sourceOpened, this, [this] { applyAlwaysOnTop(true); });
    connect(m_control, &NormalPlayControl::playing, this, [this] {
        m_playView->surface()->setPlaying(true);
        QTimer::singleShot(k3dAfterMs, this, &NormalMainWindow::sig_setup3D);
    });
    connect(m_control, &NormalPlayControl::idle, this, [this] { m_playView->surface()->setPlaying(false); });
    connect(m_control, &NormalPlayControl::selectViewWanted, this, &NormalMainWindow::slot_backToSelectView);
    connect(m_control, &NormalPlayControl::closeWanted, this, &NormalMainWindow::slot_closeClicked);
    connect(m_control, &NormalPlayControl::failureToTell, this, &NormalMainWindow::tellFailure);
    connect(m_control, &NormalPlayControl::noteToTell, this, &NormalMainWindow::tellNote);
}

void NormalMainWindow::restoreWindow(bool showNow)
{
    const auto *scale = DisplayScale::instance();
    const QSize size(scale->scaleWidth(kDefaultSize.width()), scale->scaleHeight(kDefaultSize.height()));
    setMinimumSize(scale->scaleWidth(kMinimumSize.width()), scale->scaleHeight(kMinimumSize.height()));
    m_normalGeometry = m_placement.restored(size, QGuiApplication::primaryScreen()->availableGeometry());
    setGeometry(m_normalGeometry);
    if (showNow)
        show();
    if (m_placement.startsFullScreen())
        QTimer::singleShot(0, this, &NormalMainWindow::slot_fullScreen);
    else if (m_placement.startsMaximized())
        QTimer::singleShot(0, this, &NormalMainWindow::slot_maxClicked);
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
    return m_stack->currentWidget() == m_playView;
}

void NormalMainWindow::retranslate()
{
    m_titleBar->retranslate();
    m_startView->retranslate();
    m_titleBar->setText(isPlayViewShown() ? m_control->displayName() : ApplicationInfoManager::productName());
}

// ---- set-up of the engine

void NormalMainWindow::slot_configLater()
{
    m_setUp->start();
}

void NormalMainWindow::onPlayerMade(QPlayer *player)
{
    m_player = player;
    m_keyActions = std::make_unique<PcKeyActions>(*player, m_settings);
    m_control->connectPlayer(player);
    connect(player, &QPlayer::sig_shotScreen, this, &NormalMainWindow::slot_saveScreenShot);
    connect(player, &QPlayer::sig_videoSizeChanged, this, &NormalMainWindow::slot_fitVideoSize);
}

void NormalMainWindow::onEngineReady()
{
    m_isEngineReady = true;
    const QString key = QLatin1String(SettingsKeys::PC_VolumeCount);
    const int count = m_settings.contains(key) ? m_settings.value(key).toInt() : int(kFullVolume);
    m_player->setVolume(float(qBound(0, count, int(kFullVolume))) / kFullVolume);
    m_player->setMute(m_settings.value(QLatin1String(SettingsKeys::PC_VolumeMute)).toBool());
    const QSize size = m_playView->surface()->deviceSize();
    emit sig_resizeRender(size.width(), size.height());
}

void NormalMainWindow::slot_showInitFailDialog()
{
    if (m_isClosed)
        return;
    NormalMessageBoxFactory::showNote(
        this, tr("Failure initializing playback device, please update your video card and "
                 "sound card drivers. Contact us if that does not fix the problem."));
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
    m_titleBar->setText(title);
    setWindowTitle(QStringLiteral("%1 - %2").arg(title, ApplicationInfoManager::productName()));
    m_stack->setCurrentWidget(m_playView);
    m_playView->surface()->update();
}

void NormalMainWindow::slot_backToSelectView()
{
    unsetCursor();
    m_playView->showWaiting(false);
    m_playView->surface()->setPlaying(false);
    m_stack->setCurrentWidget(m_startView);
    setWindowTitle(ApplicationInfoManager::productName());
    m_titleBar->setText(ApplicationInfoManager::productName());
    applyAlwaysOnTop(false);
}

void NormalMainWindow::tellFailure(int errCode)
{
    const PlayFailure::Row &row = PlayFailure::rowOf(errCode);
    QString text = PlayFailure::text(row, QUrl());
    if (row.code == 0)
        text += QStringLiteral("\n\n") + m_control->currentPath();
    NormalMessageBoxFactory::showNote(this, text, PlayFailure::title(row));
    m_control->failureRead(errCode);
}

void NormalMainWindow::tellNote(int type)
{
    const ErrorNote::Row *row = ErrorNote::rowOf(type);
    if (row == nullptr)
        return;
    NormalMessageBox box(this);
    box.setText(ErrorNote::text(*row));
    box.setCheckBoxHidden(row->suppressKey == nullptr);
    box.addButton(tr("OK"));
    box.exec();
    if (row->suppressKey != nullptr && box.isCheckBoxChecked())
        ErrorNote::suppress(*row, m_settings);
}

void NormalMainWindow::slot_openMedia()
{
    const QString key = QLatin1String(SettingsKeys::PC_AddLastFolder);
    const QString filters =
        tr("Media Files (%1)").arg(CommonInfoManager::playableNameFilters().join(QLatin1Char(' ')))
        + QStringLiteral(";;") + tr("All Files (*)");
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open Media..."), m_settings.value(key).toString(), filters);
    if (path.isEmpty())
        return;
    m_settings.setValue(key, QFileInfo(path).absolutePath());
    slot_playSource(path);
}

void NormalMainWindow::slot_saveScreenShot(unsigned char *RGBA, int Width, int Height)
{
    m_screenshots->write(
        ScreenshotWriter::copyOf(RGBA, Width, Height),
        ScreenshotNaming::target(m_settings, ApplicationInfoManager::instance()->picturesFolder()));
}

// ---- window

void NormalMainWindow::slot_activeWindow()
{
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void NormalMainWindow::slot_closeClicked()
{
    close();
}

void NormalMainWindow::slot_minClicked()
{
    showMinimized();
}

void NormalMainWindow::slot_maxClicked()
{
    showMaximized();
}

void NormalMainWindow::slot_restoreClicked()
{
    if (isFullScreen() && m_maximizedBeforeFullScreen)
        showMaximized();
    else
        showNormal();
}

void NormalMainWindow::slot_fullScreen()
{
    if (isFullScreen()) {
        slot_restoreClicked();
        return;
    }
    m_maximizedBeforeFullScreen = isMaximized();
    showFullScreen();
}

void NormalMainWindow::slot_fitVideoSize(int nWidth, int nHeight)
{
    if (!m_placement.matchesVideo() || isFullScreen() || isMaximized() || nWidth <= 0 || nHeight <= 0)
        return;
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(nWidth, nHeight + m_titleBar->height()).boundedTo(available));
}

void NormalMainWindow::applyAlwaysOnTop(bool playing)
{
    const bool onTop = playing && m_settings.value(QLatin1String(SettingsKeys::PC_AlwaysOnTop)).toBool();
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop)
        return;
    // Through the native window: a change of the widget's flags would hide it and may give the video surface
    // another native window under the engine's feet.
    overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, onTop));
    if (windowHandle() != nullptr)
        windowHandle()->setFlag(Qt::WindowStaysOnTopHint, onTop);
}

void NormalMainWindow::SLOT_haveMouseMove()
{
    if (!isFullScreen())
        return;
    unsetCursor();
    m_titleBar->show();
}

void NormalMainWindow::SLOT_mouseMoveStop()
{
    if (!isFullScreen() || !isPlayViewShown() || m_titleBar->underMouse())
        return;
    setCursor(Qt::BlankCursor);
    m_titleBar->hide();
}

void NormalMainWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    m_titleBar->setVisible(!isFullScreen());
    m_titleBar->setMaximized(isMaximized() || isFullScreen());
    if (!isFullScreen())
        unsetCursor();
}

void NormalMainWindow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    noteNormalGeometry();
    if (m_player != nullptr)
        m_player->forwardWindowMove(event->pos().x(), event->pos().y());
}

void NormalMainWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    noteNormalGeometry();
}

void NormalMainWindow::noteNormalGeometry()
{
    if (isVisible() && !isMaximized() && !isFullScreen() && !isMinimized())
        m_normalGeometry = geometry();
}

// ---- input

void NormalMainWindow::slot_hotKey(KeyOperateType type)
{
    switch (type) {
    case KeyOperate_OpenFile:
        slot_openMedia();
        return;
    case KeyOperate_Close:
        slot_closeClicked();
        return;
    case KeyOperate_FullScreen:
        slot_fullScreen();
        return;
    case KeyOperate_AlwaysOnTop: {
        const QString key = QLatin1String(SettingsKeys::PC_AlwaysOnTop);
        m_settings.setValue(key, !m_settings.value(key).toBool());
        applyAlwaysOnTop(m_control->hasSource());
        return;
    }
    case KeyOperate_Stop:
        if (m_control->hasSource())
            m_control->slot_stopLater();
        return;
    default:
        if (m_keyActions && m_control->hasSource())
            m_keyActions->run(type);
    }
}

void NormalMainWindow::slot_changeVolume(int nCount)
{
    if (m_keyActions && m_control->hasSource())
        m_keyActions->changeVolume(nCount);
}

void NormalMainWindow::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && isFullScreen())
        slot_restoreClicked();
    else if (isEnter && event->modifiers().testFlag(Qt::AltModifier))
        slot_fullScreen();
    else if (event->key() == Qt::Key_Plus)
        slot_changeVolume(1);
    else
        QWidget::keyPressEvent(event);
}

void NormalMainWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (isPlayViewShown())
        slot_fullScreen();
    QWidget::mouseDoubleClickEvent(event);
}

void NormalMainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (droppedPaths(event->mimeData()).isEmpty())
        return;
    m_startView->setDropping(true);
    event->acceptProposedAction();
}

void NormalMainWindow::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_startView->setDropping(false);
    QWidget::dragLeaveEvent(event);
}

void NormalMainWindow::dropEvent(QDropEvent *event)
{
    m_startView->setDropping(false);
    const QStringList paths = droppedPaths(event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    const QString first = paths.first();
    // After the drop has been answered: the other program waits for that.
    QTimer::singleShot(0, this, [this, first] {
        if (m_player != nullptr && m_control->hasSource()
            && CommonInfoManager::kindOf(first) == FileKind::Subtitle)
            m_player->addSubtitle(first);
        else
            slot_playSource(first);
    });
}

// ---- end

void NormalMainWindow::closeEvent(QCloseEvent *event)
{
    ScreenSaver::enable();
    QWidget::closeEvent(event);
    if (m_isClosed)
        return;
    m_isClosed = true;
    m_playView->showWaiting(false);
    m_borders->hideAll();
    storeVolume();
    m_setUp->cancel();
    AppEventFilter::instance()->stop();
    if (m_player != nullptr)
        disconnect(m_player, nullptr, this, nullptr);
    const bool maximized = isMaximized() || (isFullScreen() && m_maximizedBeforeFullScreen);
    const bool fullScreen = isFullScreen();
    m_control->shutDown();
    m_worker.reset();
    m_placement.store(m_normalGeometry, maximized, fullScreen);
    AdvertismentManagerEx::instance()->windowClosed(
        m_settings.value(QLatin1String(SettingsKeys::PC_Played)).toBool());
    QCoreApplication::quit();
}

void NormalMainWindow::storeVolume()
{
    if (!m_isEngineReady)
        return;
    const int count = qBound(0, qRound(m_player->volume() * kFullVolume), int(kFullVolume));
    m_settings.setValue(QLatin1String(SettingsKeys::PC_VolumeCount), count);
}
