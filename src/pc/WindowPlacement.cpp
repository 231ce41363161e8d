#include "WindowPlacement.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

namespace {

// So much of the window must be on the screen that its title can be grabbed.
constexpr int kVisibleMargin = 80;

QString key(const char *name)
{
    return QLatin1String(name);
}

} // namespace

QRect WindowPlacement::restored(const QSize &defaultSize, const QRect &available) const
{
    QRect rect(QPoint(), defaultSize.boundedTo(available.size()));
    rect.moveCenter(available.center());
    if (matchesVideo())
        return rect;
    const QSize size = m_settings.value(key(SettingsKeys::PC_LastWindowSize)).toSize();
    if (size.isValid() && !size.isEmpty()) {
        rect.setSize(size.boundedTo(available.size()));
        rect.moveCenter(available.center());
    }
    if (m_settings.contains(key(SettingsKeys::PC_LastWindowPos))) {
        const QPoint pos = m_settings.value(key(SettingsKeys::PC_LastWindowPos)).toPoint();
        const QRect grip(pos, QSize(rect.width(), kVisibleMargin));
        const QRect seen = grip & available;
        if (seen.width() >= kVisibleMargin && seen.height() >= kVisibleMargin / 2)
            rect.moveTopLeft(pos);
    }
    return rect;
}

bool WindowPlacement::startsMaximized() const
{
    return m_settings.value(key(SettingsKeys::PC_MaxSize)).toBool();
}

bool WindowPlacement::startsFullScreen() const
{
    return m_settings.value(key(SettingsKeys::PC_FullScreen)).toBool();
}

bool WindowPlacement::matchesVideo() const
{
    return m_settings.value(key(SettingsKeys::PC_WindowSize)).toString() == QLatin1String(MatchVideo);
}

void WindowPlacement::store(const QRect &normalGeometry, bool maximized, bool fullScreen)
{
    m_settings.setValue(key(SettingsKeys::PC_LastWindowSize), normalGeometry.size());
    m_settings.setValue(key(SettingsKeys::PC_LastWindowPos), normalGeometry.topLeft());
    m_settings.setValue(key(SettingsKeys::PC_MaxSize), maximized);
    m_settings.setValue(key(SettingsKeys::PC_FullScreen), fullScreen);
    m_settings.sync();
}
