// A program that asks for the screen to stay on before it has an application object, as the player does, and
// then runs until its standard input ends.
#include "platform/Pointer.h"
#include "platform/ScreenSaver.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <unistd.h>

int main(int argc, char **argv)
{
    ScreenSaver::disable();
    Pointer::show();
    QCoreApplication app(argc, argv);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, &QCoreApplication::quit);
    return app.exec();
}
