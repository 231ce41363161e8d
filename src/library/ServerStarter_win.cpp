#include "ServerStarter.h"

#include <QByteArray>

#include <windows.h>

#include <shellapi.h>

bool ServerStarter::startBySystem(const QString &program)
{
    const QByteArray path = program.toUtf8();
    SHELLEXECUTEINFOA order{};
    order.cbSize = sizeof(order);
    order.fMask = SEE_MASK_NOCLOSEPROCESS;
    order.lpFile = path.constData();
    order.lpParameters = "";
    order.nShow = SW_SHOW;
    const bool isStarted = ShellExecuteExA(&order) != FALSE;
    if (order.hProcess)
        CloseHandle(order.hProcess);
    return isStarted;
}
