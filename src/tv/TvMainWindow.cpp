#include "TvMainWindow.h"

#include "TvFileSystemManager.h"
#include "TvPlayingWidget.h"
#include "TvScreenManager.h"
#include "TvStartWidget.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "keys/AppEventFilter.h"
#include "online/AdvertismentManagerEx.h"
#include "platform/ScreenSaver.h"
#include "ui/StyleLoader.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QIcon>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int kActivateAgainMs = 500;

bool hasPlayed()
{
    return SettingsManager::instance()->value(QLatin1String(SettingsKeys::PC_Played)).toBool();
}

QString boolText(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

TvMainWindow::TvMainWindow(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_playedBeforeInit(hasPlayed())
{
    qInfo() << "[TV_CheckTime] start load mainwindow";
    setObjectName(QStringLiteral("tvMainWindow"));
    setWindowTitle(ApplicationInfoManager::productName());
    setWindowIcon(QIcon(QLatin1String(StyleLoader::kPicturePrefix) + QLatin1String("appicon.png")));
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::StrongFocus);
    makePages();
    connectParts();
    qInfo() << "[TV_CheckTime] Show FullScreen.";
    placeOn(TvScreenManager::instance()->crtScreenRect());
    showFullScreen();
    SLOT_mouseMoveStop();
}

void TvMainWindow::makePages()
{
    m_stack = new QStackedWidget(this);
    qInfo() << "[TV_CheckTime] Load playingWgt start.";
    m_playingWgt = new TvPlayingWidget(m_stack);
    qInfo() << "[TV_CheckTime] Load playingWgt end.";
    qInfo() << "[TV_CheckTime] Load StartWgt start.";
    m_startWgt = new TvStartWidget(m_stack);
    qInfo() << "[TV_CheckTime] Load StartWgt end.";
    qInfo() << "[TV_CheckTime] InitStack widget.";
    m_stack->addWidget(m_startWgt);
    m_stack->addWidget(m_playingWgt);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
}

void TvMainWindow::connectParts()
{
    auto *filter = AppEventFilter::instance();
    connect(filter, &AppEventFilter::SIG_mouseMove, this, &TvMainWindow::SLOT_haveMouseMove);
    connect(filter, &AppEventFilter::SIG_mouseStopMove, this, &TvMainWindow::SLOT_mouseMoveStop);
    // Any key hides the pointer before the page sees it.
    connect(filter, &AppEventFilter::SIG_TvkeyOperate, this, &TvMainWindow::SLOT_mouseMoveStop);
    connect(filter, &AppEventFilter::SIG_TvkeyOperate, this, &TvMainWindow::SLOT_keyOperate);
    connect(m_playingWgt, &TvPlayingWidget::SIG_exitPlay, this, &TvMainWindow::SLOT_exitPlaying);
    connect(TvScreenManager::instance(), &TvScreenManager::SIG_needUpdateGeometry, this,
            &TvMainWindow::SLOT_updateGeometry);
}

void TvMainWindow::retranslate()
{
    m_startWgt->retranslate();
    m_playingWgt->retranslate();
}

bool TvMainWindow::isPlayingPageShown() const
{
    return m_stack->currentWidget() == m_playingWgt;
}

void TvMainWindow::showPage(QWidget *page)
{
    activateWindow();
    raise();
    m_stack->setCurrentWidget(page);
}

void TvMainWindow::playAtOnce(const QString &path)
{
    SLOT_doubleClickFileToPlay(path);
}

void TvMainWindow::SLOT_doubleClickFileToPlay(QString path)
{
    const QString name = path.section(QLatin1Char('/'), -1);
    SLOT_startPlaying(name, path);
}

void TvMainWindow::SLOT_startPlaying(QString displayText, QString path)
{
    setWindowTitle(QStringLiteral("%1 - %2").arg(displayText, ApplicationInfoManager::productName()));
    showPage(m_playingWgt);
    m_playingWgt->startPlay(path);
}

void TvMainWindow::SLOT_exitPlaying()
{
    setWindowTitle(ApplicationInfoManager::productName());
    showPage(m_startWgt);
    if (m_exitAfterPlaying) {
        SLOT_closeWindow();
        return;
    }
    SLOT_mouseMoveStop();
    QTimer::singleShot(kActivateAgainMs, this, [this] { activateWindow(); });
}

void TvMainWindow::SLOT_keyOperate(KeyOperateType type)
{
    if (isPlayingPageShown())
        m_playingWgt->keyOperate(type);
    if (type == KeyOperate_Close)
        SLOT_closeWindow();
}

void TvMainWindow::SLOT_closeWindow()
{
    TvFileSystemManager::instance()->stopWatching();
    QApplication::closeAllWindows();
}

void TvMainWindow::SLOT_minWindow()
{
    showMinimized();
}

void TvMainWindow::SLOT_updateGeometry(QRect crtScreenRect)
{
    placeOn(crtScreenRect);
    // Its lengths depend on the size of the screen.
    StyleLoader::applyTvStyle(QLatin1String(StyleLoader::kResourceFile));
}

void TvMainWindow::placeOn(const QRect &crtScreenRect)
{
    if (crtScreenRect.isValid()) {
        setFixedSize(crtScreenRect.size());
        move(crtScreenRect.topLeft());
    }
    m_startWgt->updateSizeAndFont();
}

void TvMainWindow::SLOT_haveMouseMove()
{
    setCursor(Qt::ArrowCursor);
}

void TvMainWindow::SLOT_mouseMoveStop()
{
    setCursor(Qt::BlankCursor);
}

void TvMainWindow::enterEvent(QEvent *event)
{
    if (!isActiveWindow()) {
        activateWindow();
        raise();
    }
    QWidget::enterEvent(event);
}

void TvMainWindow::closeEvent(QCloseEvent *event)
{
    ScreenSaver::enable();
    QWidget::closeEvent(event);
    if (m_isClosed)
        return;
    m_isClosed = true;
    AppEventFilter::instance()->stop();
    m_playingWgt->shutDown();
    qInfo().noquote() << "[TV Advertisement] Played Before Init :" << boolText(m_playedBeforeInit);
    qInfo().noquote() << "[TV Advertisement] Played Before Close :" << boolText(hasPlayed());
    AdvertismentManagerEx::instance()->windowClosed(hasPlayed());
    QCoreApplication::quit();
}
