// The window itself: its states, sizes, places, and the bars that come and go with the mouse.
#include "NormalMainWindow.h"

#include "NormalPlayControl.h"
#include "PcMediaSession.h"
#include "overlays/NormalTitleBar.h"
#include "overlays/PlayOverlays.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "player/QPlayer.h"
#include "ui/AnimateMenu.h"
#include "ui/DisplayScale.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMoveEvent>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace {

// Design pixels.
constexpr QSize kDefaultSize{1024, 576};
constexpr QSize kMinimumSize{480, 270};

} // namespace

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
    if (m_sizeBeforeFit.isEmpty())
        m_sizeBeforeFit = size();
    const int title = m_titleBar->isHidden() ? 0 : m_titleBar->height();
    resize(QSize(nWidth, nHeight + title).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}

void NormalMainWindow::slot_resizeFromRightBottom(QPoint pt)
{
    const QSize wanted(pt.x() - x() + 1, pt.y() - y() + 1);
    resize(wanted.expandedTo(minimumSize()));
}

void NormalMainWindow::slot_updatePosition(QPoint pt)
{
    move(pt);
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

void NormalMainWindow::toggleAlwaysOnTop()
{
    const QString key = QLatin1String(SettingsKeys::PC_AlwaysOnTop);
    m_settings.setValue(key, !m_settings.value(key).toBool());
    applyAlwaysOnTop(m_control->hasSource());
}

void NormalMainWindow::SLOT_haveMouseMove()
{
    if (!isPlayViewShown())
        return;
    unsetCursor();
    m_overlays->wake();
}

// What the user has paused stays so.
void NormalMainWindow::pauseWhileMinimized()
{
    if (m_player == nullptr || !m_control->hasSource())
        return;
    if (isMinimized()) {
        // The system may tell of it more than once.
        if (m_isPausedByMinimize || !m_player->isPlaying() || m_player->isPaused()
            || !m_settings.valueOr(QLatin1String(SettingsKeys::PC_PausePlay), false))
            return;
        m_isPausedByMinimize = true;
        m_player->togglePause();
    } else if (std::exchange(m_isPausedByMinimize, false) && m_player->isPaused()) {
        m_player->resume();
    }
}

void NormalMainWindow::SLOT_mouseMoveStop()
{
    if (isPlayViewShown() && m_overlays->rest())
        setCursor(Qt::BlankCursor);
}

// Over the picture the title hovers; everywhere else it stands above the view.
void NormalMainWindow::updateTitleBar()
{
    m_titleBar->setVisible(!isPlayViewShown());
}

void NormalMainWindow::placeMenu()
{
    const int top = m_titleBar->height();
    m_menu->setOpenGeometry({mapToGlobal(QPoint(0, top)), QSize(m_menu->sizeHint().width(), height() - top)},
                            Qt::LeftEdge);
}

void NormalMainWindow::slot_menuClicked()
{
    if (m_menu->isOpen()) {
        m_menu->slideOut();
        return;
    }
    placeMenu();
    m_menu->slideIn();
}

void NormalMainWindow::slot_responseFocusChange(QWidget *old, QWidget *now)
{
    Q_UNUSED(old)
    // The whole program has lost the keyboard: what hovers over the picture need not wait for a mouse that is
    // elsewhere.
    if (now == nullptr && isPlayViewShown() && !isActiveWindow())
        m_overlays->restSoon();
}

void NormalMainWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || m_overlays == nullptr)
        return;
    const bool fillsScreen = isMaximized() || isFullScreen();
    m_titleBar->setMaximized(fillsScreen);
    m_overlays->setMaximized(fillsScreen);
    m_overlays->setFullScreen(isFullScreen());
    m_session->setFullScreen(isFullScreen());
    unsetCursor();
    m_overlays->wake();
    pauseWhileMinimized();
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
    if (m_menu != nullptr)
        placeMenu();
}

void NormalMainWindow::noteNormalGeometry()
{
    if (isVisible() && !isMaximized() && !isFullScreen() && !isMinimized())
        m_normalGeometry = geometry();
}
