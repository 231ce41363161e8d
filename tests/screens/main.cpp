// Draws the screens and dialogs of the player into pictures:
//
//   quorin_screens FOLDER SCALE         every widget that stands by itself, at 1 or 2
//   quorin_screens --film FILE          a frame of a film, for the pictures of the running program
#include "FilmFrame.h"
#include "Screens.h"

#include <QApplication>
#include <QResource>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: quorin_screens FOLDER SCALE | --film FILE\n");
        return 2;
    }
    if (arguments.at(1) == QLatin1String("--film"))
        return FilmFrame::make({1280, 720}).save(arguments.at(2)) ? 0 : 1;
    const QString resources = QApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
    if (!QResource::registerResource(resources)) {
        std::fprintf(stderr, "quorin_screens: no %s\n", qPrintable(resources));
        return 1;
    }
    Screens screens(arguments.at(1), arguments.at(2).toInt());
    screens.drawAll();
    return screens.isGood() ? 0 : 1;
}
