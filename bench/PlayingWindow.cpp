#include "PlayingWindow.h"

#include "overlays/PlayOverlays.h"
#include "pc/NormalMainWindow.h"
#include "player/QPlayer.h"

#include <QApplication>
#include <QEventLoop>
#include <QResource>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int PatienceMs = 60000;
constexpr int RestMs = 500;

// Turns the event loop until the player tells that status; false when it does not.
bool waitForStatus(QPlayer::QPlayerStatus wanted)
{
    QEventLoop loop;
    bool isReached = QPlayer::instance()->status() == wanted;
    QObject::connect(QPlayer::instance(), &QPlayer::sig_playStatusChanged, &loop,
                     [&](QPlayer::QPlayerStatus status) {
                         isReached = isReached || status == wanted;
                         if (isReached)
                             loop.quit();
                     });
    QTimer::singleShot(PatienceMs, &loop, &QEventLoop::quit);
    if (!isReached)
        loop.exec();
    return isReached;
}

} // namespace

void PlayingWindow::prepare(const Files &files)
{
    qputenv("QUORIN_ENGINE", files.engine.c_str());
    for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        qputenv(name, files.home.c_str());
    for (const Qt::ApplicationAttribute attribute :
         {Qt::AA_UseHighDpiPixmaps, Qt::AA_DontCreateNativeWidgetSiblings, Qt::AA_ForceRasterWidgets})
        QCoreApplication::setAttribute(attribute);
}

PlayingWindow::PlayingWindow(const Files &files)
    : m_clip(files.clip)
{
    QApplication::setQuitOnLastWindowClosed(false);
    if (!QResource::registerResource(QString::fromStdString(files.resources)))
        std::fprintf(stderr, "no resources in %s\n", files.resources.c_str());
    m_window = std::make_unique<NormalMainWindow>(nullptr, true);
}

PlayingWindow::~PlayingWindow()
{
    m_window->close();
    m_window.reset();
    QPlayer::releaseInstance();
}

bool PlayingWindow::waitForPicture()
{
    m_window->slot_playSource(QString::fromStdString(m_clip));
    if (!waitForStatus(QPlayer::QPlayerStatus_Playing))
        return false;
    m_window->overlays()->wake();
    settle(RestMs);
    return true;
}

void PlayingWindow::settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
