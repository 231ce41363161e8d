#include "WindowSystem.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDebug>
#include <QX11Info>

#include <cstdlib>

#include <X11/Xlib.h>
#include <xcb/xcb.h>

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";
constexpr char kXDisplay[] = "DISPLAY";
constexpr char kXPlatform[] = "xcb";

constexpr int kLostStatus = 1;

// Any thread that has a connection of its own.
[[noreturn]] void leave()
{
    qInfo() << "[Process] the display is gone";
    std::_Exit(kLostStatus);
}

int connectionLost(Display *)
{
    leave();
}

// The toolkit notices on the main thread and asks the process to exit in the usual way.
void atExit()
{
    if (QCoreApplication::instance() == nullptr || !QX11Info::isPlatformX11())
        return;
    xcb_connection_t *connection = QX11Info::connection();
    if (connection != nullptr && xcb_connection_has_error(connection) != 0)
        leave();
}

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

void WindowSystem::endWithDisplay()
{
    if (!QX11Info::isPlatformX11())
        return;
    XSetIOErrorHandler(connectionLost);
    std::atexit(atExit);
}
