#include "WindowSystem.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QThread>
#include <QX11Info>

#include <cstdlib>

#include <X11/Xlib.h>
#include <xcb/xcb.h>

namespace {

constexpr char kPlatform[] = "QT_QPA_PLATFORM";
constexpr char kXDisplay[] = "DISPLAY";
constexpr char kXPlatform[] = "xcb";

constexpr int kLostStatus = 1;

QtMessageHandler s_nextHandler{nullptr};

// Any thread that has a connection of its own. A line of qInfo() would not get into the log from within the
// handler of messages.
[[noreturn]] void leave()
{
    if (s_nextHandler != nullptr)
        s_nextHandler(QtInfoMsg, QMessageLogContext(), QStringLiteral("[Process] the display is gone"));
    std::_Exit(kLostStatus);
}

int connectionLost(Display *)
{
    leave();
}

// For the main thread: the toolkit's own connection.
bool isConnectionLost()
{
    if (QCoreApplication::instance() == nullptr || !QX11Info::isPlatformX11())
        return false;
    xcb_connection_t *connection = QX11Info::connection();
    return connection != nullptr && xcb_connection_has_error(connection) != 0;
}

// The toolkit notices on the main thread, says so and asks the process to exit in the usual way. Its word is
// the last moment before the tear-down begins, with the libraries that were loaded last.
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QCoreApplication *application = QCoreApplication::instance();
    const bool isMain = application != nullptr && application->thread() == QThread::currentThread();
    if (type == QtWarningMsg && isMain && isConnectionLost())
        leave();
    if (s_nextHandler != nullptr)
        s_nextHandler(type, context, message);
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
    if (const QtMessageHandler before = qInstallMessageHandler(handleMessage); before != handleMessage)
        s_nextHandler = before;
}
