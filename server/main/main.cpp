// The media server. One argument: the folder of its data. Without it that of the player is meant.
#include "ParentWatch.h"
#include "ProcessLimits.h"
#include "ServerApplication.h"
#include "ServerParts.h"
#include "StopSignals.h"
#include "http/PortChoice.h"

#include <QCoreApplication>

#include <cstdio>
#include <optional>

int main(int argc, char **argv)
{
    ProcessLimits::raiseOpenFiles();
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() > 2) {
        std::fprintf(stderr, "usage: %s [DATA_FOLDER]\n", argv[0]);
        return ServerApplication::WrongArguments;
    }
    ServerApplication::Settings settings;
    const bool isChild = arguments.size() == 2;
    settings.dataFolder = isChild ? arguments.at(1) : DataFolder::normalPath();
    settings.http.port = PortChoice::read(qgetenv(PortChoice::Variable), HttpServer::DefaultPort);

    // Before anything that takes long: a wish to end is never lost.
    const StopSignals stopSignals;
    // Started by the system, without a folder, it is nobody's child: who asked for it may be gone already.
    std::optional<ParentWatch> parent;
    if (isChild)
        parent.emplace();
    QObject::connect(&stopSignals, &StopSignals::stopRequested, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    if (parent) {
        QObject::connect(&*parent, &ParentWatch::parentEnded, &application, &QCoreApplication::quit,
                         Qt::QueuedConnection);
    }

    ServerApplication server(settings, &ServerParts::make);
    const ServerApplication::Exit status = server.start();
    if (status != ServerApplication::Ended)
        return status;
    const int result = application.exec();
    server.stop();
    return result;
}
