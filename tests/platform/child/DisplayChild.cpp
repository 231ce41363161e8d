// A program with an X connection whose tear-down must never begin: a library that was loaded after its start
// would not survive it. It says that it runs, and goes on until its display goes away.
#include "platform/WindowSystem.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    WindowSystem::choose();
    const QGuiApplication app(argc, argv);
    WindowSystem::endWithDisplay();
    std::atexit([] { std::abort(); });
    std::puts("runs");
    std::fflush(stdout);
    return QGuiApplication::exec();
}
