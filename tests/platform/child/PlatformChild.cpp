// A program that asks for the screen to stay on before it has an application object, as the player does. It
// plays while the last character of its standard input is a "1", and runs until that input ends.
#include "platform/Pointer.h"
#include "platform/ScreenSaver.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <unistd.h>

int main(int argc, char **argv)
{
    ScreenSaver::disable();
    ScreenSaver::setPlaying(argc > 1);
    Pointer::show();
    QCoreApplication app(argc, argv);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &app, [] {
        char order = 0;
        if (read(STDIN_FILENO, &order, 1) == 1)
            ScreenSaver::setPlaying(order == '1');
        else
            QCoreApplication::quit();
    });
    return app.exec();
}
