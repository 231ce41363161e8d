#include "WindowSystem.h"

#include <QByteArray>
#include <QtGlobal>

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";
constexpr char kXDisplay[] = "DISPLAY";
constexpr char kXPlatform[] = "xcb";

} // namespace

// A Wayland session asks all programs for its own windows, and its X server serves those that need others.
// What else was asked for, an offscreen run for instance, stays.
void WindowSystem::choose()
{
    const QByteArray asked = qgetenv(kPlatform);
    const bool isOpen = asked.isEmpty() || asked.startsWith("wayland");
    if (isOpen && !qEnvironmentVariableIsEmpty(kXDisplay))
        qputenv(kPlatform, kXPlatform);
}
