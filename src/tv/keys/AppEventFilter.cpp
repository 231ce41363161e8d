#include "AppEventFilter.h"

#include "KeyMapTables.h"

#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"

#include <QDebug>
#include <QKeyEvent>
#include <QWheelEvent>

namespace {

// Small jitter of the pointer does not wake the controls.
constexpr int kMovesThatCount = 10;
constexpr int kRestMs = 3000;

// The bars over the picture are windows of their own; their class lives in a layer above this one.
constexpr char kBarClass[] = "NormalTransparentBar";

int keyValue(const QKeyEvent *event)
{
    return event->key() + int(event->modifiers());
}

} // namespace

AppEventFilter *AppEventFilter::instance()
{
    // Never deleted: the application may still deliver events while statics go.
    static auto *filter = new AppEventFilter([](bool tv) {
        auto *info = CommonInfoManager::instance();
        return tv ? info->getTvKeyMap() : info->getPcKeyMap();
    });
    return filter;
}

AppEventFilter::AppEventFilter(MapReader reader, QObject *parent)
    : QObject(parent)
    , m_reader(std::move(reader))
{
    qRegisterMetaType<KeyOperateType>("KeyOperateType");
    // A coarse timer may come early by a twentieth.
    m_stopTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_stopTimer, &QTimer::timeout, this, &AppEventFilter::SLOT_timeOut);
    SLOT_TvUpdateKeyMap();
    SLOT_PcUpdateKeyMap();
}

void AppEventFilter::setMainWindow(QWidget *window, std::function<void(int)> changeVolume)
{
    m_mainWidget = window;
    m_changeVolume = std::move(changeVolume);
}

void AppEventFilter::stop()
{
    m_keyEnabled = false;
    m_mouseMoveEnabled = false;
    m_stopTimer.stop();
    setMainWindow(nullptr, nullptr);
    setKeyOwner(nullptr);
    m_isKeySpent = false;
}

QString AppEventFilter::keyText(bool tv, int type) const
{
    return KeyMapTables::keyText(tv ? m_tvKeyMap : m_pcKeyMap, type);
}

QKeySequence AppEventFilter::keySequence(bool tv, int type) const
{
    return KeyMapTables::keySequence(tv ? m_tvKeyMap : m_pcKeyMap, type);
}

void AppEventFilter::SLOT_TvUpdateKeyMap()
{
    m_tvKeyMap = KeyMapTables::completed(m_reader(true), KeyMapTables::Mode::Tv);
}

void AppEventFilter::SLOT_PcUpdateKeyMap()
{
    m_pcKeyMap = KeyMapTables::completed(m_reader(false), KeyMapTables::Mode::Pc);
}

void AppEventFilter::SLOT_timeOut()
{
    m_stopTimer.stop();
    emit SIG_mouseStopMove();
}

bool AppEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress)
        m_isKeySpent = false;
    if (m_pcMode) {
        if (type == QEvent::KeyPress && m_keyEnabled && isMainWidgetOrBar(watched))
            handlePcKey(static_cast<QKeyEvent *>(event));
        else if (type == QEvent::Wheel && m_keyEnabled && isMainWidgetOrBar(watched))
            handleWheel(static_cast<QWheelEvent *>(event));
        else if (type == QEvent::MouseMove && m_mouseMoveEnabled && belongsToMainWidget(watched))
            countMouseMove();
    } else if ((type == QEvent::KeyPress || type == QEvent::KeyRelease) && m_keyEnabled) {
        const bool consumed = handleTvKey(static_cast<QKeyEvent *>(event));
        m_moveCount = 0;
        if (consumed)
            return true;
    } else if (type == QEvent::MouseMove && m_mouseMoveEnabled) {
        countMouseMove();
    }
    return QObject::eventFilter(watched, event);
}

bool AppEventFilter::isMainWidgetOrBar(const QObject *watched) const
{
    return (m_mainWidget && watched == m_mainWidget) || watched->inherits(kBarClass);
}

bool AppEventFilter::belongsToMainWidget(const QObject *watched) const
{
    for (const QObject *object = watched; m_mainWidget && object != nullptr; object = object->parent()) {
        if (object == m_mainWidget)
            return true;
    }
    return false;
}

void AppEventFilter::handlePcKey(const QKeyEvent *event)
{
    if (m_pcKeyMap.isEmpty())
        SLOT_PcUpdateKeyMap();
    if (KeyMapTables::isModifierOrNone(event->key()))
        return;
    const int type = KeyMapTables::operationOf(m_pcKeyMap, keyValue(event));
    if (type < 0 || (m_takesKey && m_takesKey(*event)))
        return;
    if (!m_keyBlocked) {
        if (ApplicationInfoManager::debugHotKey())
            qInfo().noquote() << QStringLiteral("[PC_Hotkey] pc send key type: %1").arg(type);
        emit SIG_PcKeyOperate(KeyOperateType(type));
    }
    // Only now: other keys may have been pressed in a loop of the operation's own.
    m_isKeySpent = true;
}

bool AppEventFilter::handleTvKey(const QKeyEvent *event)
{
    if (event->type() == QEvent::KeyRelease)
        return true;
    if (m_tvKeyMap.isEmpty())
        SLOT_TvUpdateKeyMap();
    if (m_onlyUpDown) {
        const int up = m_tvKeyMap.value(KeyOperate_Up, 0);
        const int down = m_tvKeyMap.value(KeyOperate_Down, 0);
        const int pressed = KeyMapTables::normalizedKey(keyValue(event));
        if (up == 0 || down == 0
            || (pressed != KeyMapTables::normalizedKey(up) && pressed != KeyMapTables::normalizedKey(down)))
            return false;
    }
    if (KeyMapTables::isModifierOrNone(event->key()))
        return true;
    const int type = KeyMapTables::operationOf(m_tvKeyMap, keyValue(event));
    if (type < 0 || m_keyBlocked)
        return true;
    if (ApplicationInfoManager::debugHotKey())
        qInfo().noquote() << QStringLiteral("[TV_Hotkey] tv send key type: %1").arg(type);
    emit SIG_TvkeyOperate(KeyOperateType(type));
    return true;
}

void AppEventFilter::handleWheel(const QWheelEvent *event)
{
    const int steps = event->angleDelta().y() / 8 / 12;
    if (m_changeVolume)
        m_changeVolume(steps);
}

void AppEventFilter::countMouseMove()
{
    if (++m_moveCount < kMovesThatCount)
        return;
    m_moveCount = 0;
    emit SIG_mouseMove();
    m_stopTimer.stop();
    m_stopTimer.start(kRestMs);
}
