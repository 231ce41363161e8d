#include "TvScreenManager.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "ui/DisplayScale.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace {

constexpr int kDefaultDpi = 96;

QList<QRect> realScreens()
{
    QList<QRect> rects;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        rects << screen->geometry();
    return rects;
}

// The first of the largest ones; null without any.
QRect largest(const QList<QRect> &screens)
{
    QRect result;
    qint64 area = 0;
    for (const QRect &rect : screens) {
        const qint64 size = qint64(rect.width()) * rect.height();
        if (size > area) {
            area = size;
            result = rect;
        }
    }
    return result;
}

} // namespace

TvScreenManager::TvScreenManager()
    : m_store(*SettingsManager::instance())
    , m_screens(realScreens)
{
    if (QGuiApplication::primaryScreen() == nullptr) {
        qInfo() << "[ASSERT] desktop func return NULL";
        return;
    }
    watchScreens();
    SLOT_screenChanged();
}

TvScreenManager::TvScreenManager(SettingsManager &store, ScreenSource screens)
    : m_store(store)
    , m_screens(std::move(screens))
{
    SLOT_screenChanged();
}

void TvScreenManager::watchScreens()
{
    const auto watch = [this](QScreen *screen) {
        connect(screen, &QScreen::geometryChanged, this, &TvScreenManager::SLOT_screenChanged);
        connect(screen, &QScreen::availableGeometryChanged, this, &TvScreenManager::SLOT_screenChanged);
    };
    const auto countChanged = [this] {
        SLOT_screenChanged();
        emit SIG_screenCountChanged(screenCount());
    };
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *screen : screens)
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [watch, countChanged](QScreen *screen) {
        watch(screen);
        countChanged();
    });
    // A removed screen is still in the list while the signal runs.
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, countChanged, Qt::QueuedConnection);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &TvScreenManager::SLOT_screenChanged);
}

int TvScreenManager::screenCount() const
{
    return m_screens().size();
}

int TvScreenManager::crtScreenDpi() const
{
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens) {
        if (screen->geometry() == m_crtScreenRect)
            return int(std::lround(screen->logicalDotsPerInch()));
    }
    return kDefaultDpi;
}

void TvScreenManager::SLOT_screenChanged()
{
    const QList<QRect> screens = m_screens();
    const QRect stored = m_store.currentScreenRect();
    const bool hasStored =
        m_store.contains(QLatin1String(SettingsKeys::TV_crtScreenRect)) && stored.isValid();
    QRect rect = hasStored && screens.contains(stored) ? stored : largest(screens);
    if (!rect.isValid())
        rect = m_crtScreenRect;
    if (rect != m_crtScreenRect)
        moveTo(rect);
}

void TvScreenManager::SLOT_switchScreen()
{
    const QRect rect = nextScreen(true);
    if (!rect.isValid() || rect == m_crtScreenRect)
        return;
    moveTo(rect);
    m_store.setCurrentScreenRect(rect);
}

QRect TvScreenManager::nextScreen(bool forward) const
{
    const QList<QRect> screens = m_screens();
    if (screens.size() < 2)
        return m_crtScreenRect;
    const int index = screens.indexOf(m_crtScreenRect);
    if (index < 0)
        return largest(screens);
    const int step = forward ? 1 : screens.size() - 1;
    return screens.at((index + step) % screens.size());
}

void TvScreenManager::moveTo(const QRect &rect)
{
    m_crtScreenRect = rect;
    DisplayScale::instance()->setScreenSize(rect.width(), rect.height());
    emit SIG_needUpdateGeometry(rect);
}
