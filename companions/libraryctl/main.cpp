// libraryctl [--port N] [--data DIR] [--add-video PATH]... [--add-music PATH]... [--adult PATH]...
// [--wait-scan]
//
// Attaches to the media server on the port, or starts the one beside this program, loads the whole library as
// the player does and prints what the player would hold, as JSON. 0 when it did; 1 without a server, 2 for a
// wrong command line, 3 for a folder that the server does not take, 4 for a scan without an end. Log lines go
// to the standard error output.
#include "LibraryRun.h"

#include "library/IServerStarter.h"
#include "library/JsonRpc.h"
#include "library/LibraryPause.h"
#include "library/LibraryTransport.h"
#include "library/MediaServerManager.h"
#include "library/VideoProtocol.h"

#include "core/SettingsManager.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr char kPortVariable[] = "QUORIN_LIBRARY_PORT";
constexpr char kCommonScraper[] = "common";
constexpr char kAdultScraper[] = "avScraper";
constexpr int kLastPort = 65535;

void append(LibraryWish *wish, const QStringList &paths, const char *scraper)
{
    for (const QString &path : paths)
        wish->folders.append({path, QLatin1String(scraper)});
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription(QStringLiteral("Prints what the player holds of a media library."));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("The server's port."),
                                  QStringLiteral("number"));
    const QCommandLineOption data(QStringLiteral("data"), QStringLiteral("The server's data folder."),
                                  QStringLiteral("folder"));
    const QCommandLineOption video(QStringLiteral("add-video"), QStringLiteral("Adds a folder of videos."),
                                   QStringLiteral("folder"));
    const QCommandLineOption music(QStringLiteral("add-music"), QStringLiteral("Adds a folder of music."),
                                   QStringLiteral("folder"));
    const QCommandLineOption adult(QStringLiteral("adult"), QStringLiteral("Adds a folder of adult videos."),
                                   QStringLiteral("folder"));
    const QCommandLineOption waitScan(
        QStringLiteral("wait-scan"),
        QStringLiteral("Updates the library and waits for the end of the scan."));
    line.addOptions({port, data, video, music, adult, waitScan});
    line.addHelpOption();
    line.process(application);
    if (line.isSet(port)) {
        const int number = line.value(port).toInt();
        if (number <= 0 || number > kLastPort) {
            std::fprintf(stderr, "libraryctl: no port: %s\n", qPrintable(line.value(port)));
            return LibraryRun::WrongUse;
        }
        // The server that is started here listens there, too.
        qputenv(kPortVariable, QByteArray::number(number));
    }

    LibraryWish wish;
    append(&wish, line.values(video), kCommonScraper);
    append(&wish, line.values(adult), kAdultScraper);
    append(&wish, line.values(music), "");
    wish.waitsForScan = line.isSet(waitScan);

    // The player's own settings stay as they are.
    const QTemporaryDir folder;
    SettingsManager settings(folder.filePath(QStringLiteral("config.ini")));
    LibraryParts parts = MediaServerManager::usualParts();
    parts.settings = &settings;
    parts.statistics = {};
    if (line.isSet(data)) {
        parts.dataFolder = QDir(line.value(data)).absolutePath();
        QDir().mkpath(parts.dataFolder);
    }
    // A server that answers is attached to; a second one would only quarrel with it about the port.
    const JsonRpc rpc(*parts.transport, parts.port);
    if (VideoProtocol(rpc).libraryId())
        parts.program.clear();
    MediaServerManager manager(std::move(parts));
    const LibraryRun run(manager, wish);
    return QCoreApplication::exec();
}
