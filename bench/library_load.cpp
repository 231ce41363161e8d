// The player's load of 10,000 films, one record a request, against a bare loop of the same requests over the
// same transport. What the load does beside the requests is told apart: making their bodies, reading the
// answers, keeping and telling the records.
//
//   bench_library_load SERVER_PROGRAM [PAIRS]
#include "LibraryServer.h"
#include "Report.h"
#include "StoredLibrary.h"

#include "core/SettingsManager.h"
#include "library/HttpTransport.h"
#include "library/LibraryPause.h"
#include "library/MediaServerManager.h"
#include "library/ServerStarter.h"
#include "library/VideoRecords.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdlib>
#include <mutex>

namespace {

constexpr int Films = 10000;
constexpr int Port = 32185;
constexpr int RequestSeconds = 15;
constexpr int Movies = int(LibraryRole::Movies);
constexpr double LoadLimit = 1.3;

double ms(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "benchmark: %s\n", what);
    std::exit(1);
}

struct Exchange {
    QString url;
    QByteArray body;
    QByteArray answer;
};

// Notes the exchanges of a load, while it is told to.
class NotingTransport final : public LibraryTransport {
public:
    LibraryReply postJson(const QString &url, const QByteArray &body, int timeoutSeconds) override
    {
        const LibraryReply reply = m_transport.postJson(url, body, timeoutSeconds);
        std::lock_guard lock(m_mutex);
        if (m_notes && url.endsWith(QLatin1String("GetMovies")))
            m_exchanges.push_back({url, body, reply.body});
        return reply;
    }
    void stop() override { m_transport.stop(); }
    void note(bool notes)
    {
        std::lock_guard lock(m_mutex);
        m_notes = notes;
    }
    [[nodiscard]] const std::vector<Exchange> &exchanges() const { return m_exchanges; }

private:
    HttpTransport m_transport;
    std::mutex m_mutex;
    std::vector<Exchange> m_exchanges;
    bool m_notes{false};
};

// Until the last record has come to this thread, as a view has it.
double loadWithPlayer(MediaServerManager &manager)
{
    int told = 0;
    QObject context;
    QObject::connect(&manager, &MediaServerManager::sig_newMovieLoaded, &context, [&told] { ++told; });
    QElapsedTimer timer;
    timer.start();
    manager.reloadLibrary(Movies);
    while (told < Films) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        require(manager.isLoading(Movies) || told > 0, "the load has ended without films");
    }
    manager.waitForLoad(Movies);
    const double needed = ms(timer);
    require(manager.videos().count(VideoCache::Movies) == Films, "films are missing");
    return needed;
}

double loadBare(const std::vector<Exchange> &exchanges)
{
    HttpTransport transport;
    QElapsedTimer timer;
    timer.start();
    for (const Exchange &exchange : exchanges)
        require(transport.postJson(exchange.url, exchange.body, RequestSeconds).isDelivered, "no answer");
    return ms(timer);
}

void reportRest(const std::vector<Exchange> &exchanges)
{
    std::vector<QJsonDocument> requests;
    for (const Exchange &exchange : exchanges)
        requests.push_back(QJsonDocument::fromJson(exchange.body));
    QElapsedTimer timer;
    timer.start();
    qint64 bytes = 0;
    for (const QJsonDocument &request : requests)
        bytes += request.toJson().size();
    const double writing = ms(timer);
    timer.start();
    VideoCache cache;
    for (const Exchange &exchange : exchanges) {
        const QJsonArray films = QJsonDocument::fromJson(exchange.answer)
                                     .object()
                                     .value(QStringLiteral("result"))
                                     .toObject()
                                     .value(QStringLiteral("movieList"))
                                     .toArray();
        for (const QJsonValue &film : films) {
            const QJsonObject object = film.toObject();
            cache.insert(VideoCache::Movies, QString::number(object.value(QStringLiteral("idFile")).toInt()),
                         VideoRecords::movie(object));
        }
    }
    std::printf("# of the rest: writing %lld bytes of requests %.1f ms, reading the answers %.1f ms\n",
                static_cast<long long>(bytes), writing, ms(timer));
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    require(argc > 1, "usage: bench_library_load SERVER_PROGRAM [PAIRS]");
    const int pairs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 5;
    QTemporaryDir folder;
    const QString data = folder.filePath(QStringLiteral("data"));
    require(StoredLibrary::addFilms(data, folder.filePath(QStringLiteral("films")), Films), "no library");
    LibraryServer server(QString::fromLocal8Bit(argv[1]), data, Port);

    SettingsManager settings(folder.filePath(QStringLiteral("player.ini")));
    LibraryParts parts;
    auto noting = std::make_unique<NotingTransport>();
    NotingTransport &transport = *noting;
    parts.transport = std::move(noting);
    parts.starter = std::make_unique<ServerStarter>(); // without a program: the server runs
    parts.pause = std::make_unique<WakeablePause>();
    parts.statistics = [](const QString &, const QString &, const QString &) {};
    parts.settings = &settings;
    parts.port = Port;
    MediaServerManager manager(std::move(parts));
    QEventLoop ready;
    QObject::connect(&manager, &MediaServerManager::sig_meidaServerPathLoaded, &ready, &QEventLoop::quit,
                     Qt::QueuedConnection);
    if (!manager.isServerReady())
        ready.exec();

    transport.note(true);
    (void)loadWithPlayer(manager);
    transport.note(false);
    std::vector<double> ours;
    std::vector<double> bare;
    for (int round = 0; round < pairs; ++round) {
        bare.push_back(loadBare(transport.exchanges()));
        ours.push_back(loadWithPlayer(manager));
    }
    const bool kept = reportRatio("10,000 films, one a request, against bare", "ms", ours, bare, LoadLimit);
    reportRest(transport.exchanges());
    return kept ? 0 : 1;
}
