// The media server. One argument: the folder of its data.
#include "ParentWatch.h"
#include "ProcessLimits.h"
#include "ServerApplication.h"
#include "ServerParts.h"
#include "StopSignals.h"
#include "http/PortChoice.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    ProcessLimits::raiseOpenFiles();
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: %s DATA_FOLDER\n", argv[0]);
        return ServerApplication::WrongArguments;
    }
    ServerApplication::Settings settings;
    settings.dataFolder = arguments.at(1);
    settings.http.port = PortChoice::read(qgetenv(PortChoice::Variable), HttpServer::DefaultPort);

    // Before anything that takes long: a wish to end is never lost.
    const StopSignals stopSignals;
    const ParentWatch parent;
    QObject::connect(&stopSignals, &StopSignals::stopRequested, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    QObject::connect(&parent, &ParentWatch::parentEnded, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);

    ServerApplication server(settings, &ServerParts::make);
    const ServerApplication::Exit status = server.start();
    if (status != ServerApplication::Ended)
        return status;
    const int result = application.exec();
    server.stop();
    return result;
}
