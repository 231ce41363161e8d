#include "LibraryServer.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTcpSocket>
#include <QThread>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int StartMs = 30 * 1000;
constexpr int AnswerMs = 60 * 1000;
// The protocol tells the end of a scan to those who ask alone; more often than this takes a tenth of a core
// from it.
constexpr unsigned long PauseMs = 10;

[[noreturn]] void giveUp(const QString &why)
{
    std::fprintf(stderr, "benchmark: the server %s\n", qPrintable(why));
    std::exit(1);
}

} // namespace

LibraryServer::LibraryServer(const QString &program, const QString &dataFolder, int port)
    : m_port(port)
    , m_process({program.toStdString(), dataFolder.toStdString()},
                {"QUORIN_LIBRARY_PORT=" + std::to_string(port)})
{
    QElapsedTimer timer;
    timer.start();
    while (post(QStringLiteral("Server.Heartbeat"), R"({"method":"Server.Heartbeat","params":{},"id":"1"})")
               .isEmpty()) {
        if (!m_process.isRunning() || timer.elapsed() > StartMs)
            giveUp(QStringLiteral("does not answer"));
        QThread::msleep(PauseMs);
    }
    // It listens before its database is open; this is answered once that is.
    ask(QStringLiteral("VMusicLibrary.GetLibraries"), {{QStringLiteral("type"), QStringLiteral("all")}});
}

QByteArray LibraryServer::post(const QString &method, const QByteArray &body) const
{
    QTcpSocket socket;
    socket.connectToHost(QStringLiteral("127.0.0.1"), quint16(m_port));
    if (!socket.waitForConnected(AnswerMs))
        return {};
    socket.write("POST /jsonrpc?" + method.toUtf8()
                 + " HTTP/1.1\r\nHost: 127.0.0.1:" + QByteArray::number(m_port)
                 + "\r\nContent-Type: application/json;charset=UTF-8\r\nConnection: close\r\nContent-Length: "
                 + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    QByteArray answer;
    while (socket.waitForReadyRead(AnswerMs))
        answer += socket.readAll();
    answer += socket.readAll();
    const int begin = answer.indexOf("\r\n\r\n");
    return begin < 0 ? QByteArray() : answer.mid(begin + 4);
}

QJsonObject LibraryServer::ask(const QString &method, const QJsonObject &params)
{
    const QJsonObject request{{QStringLiteral("id"), QStringLiteral("1")},
                              {QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                              {QStringLiteral("method"), method},
                              {QStringLiteral("params"), params}};
    const QByteArray text = post(method, QJsonDocument(request).toJson());
    const QJsonObject answer = QJsonDocument::fromJson(text).object();
    if (answer.value(QStringLiteral("ret")).toInt(-1) != 0)
        giveUp(QStringLiteral("answers %1 with %2").arg(method, QString::fromUtf8(text)));
    return answer.value(QStringLiteral("result")).toObject();
}

namespace {

int libraryId(LibraryServer &server, const char *method)
{
    const QJsonObject result =
        server.ask(QLatin1String(method), {{QStringLiteral("type"), QStringLiteral("all")}});
    return result.value(QStringLiteral("libraries"))
        .toArray()
        .first()
        .toObject()
        .value(QStringLiteral("Library"))
        .toInt();
}

QJsonObject page(int library)
{
    return {{QStringLiteral("idlibrary"), library},
            {QStringLiteral("limits"), QJsonObject{{QStringLiteral("start"), 0}, {QStringLiteral("end"), 1}}},
            {QStringLiteral("sort"), QJsonObject{{QStringLiteral("method"), QStringLiteral("title")},
                                                 {QStringLiteral("order"), QStringLiteral("ascending")}}},
            {QStringLiteral("pattern"), QString()},
            {QStringLiteral("filter"), QJsonObject{{QStringLiteral("and"), QJsonArray()}}}};
}

} // namespace

void LibraryServer::addMusic(const QString &folder)
{
    ask(QStringLiteral("VMusicLibrary.AddPath"),
        {{QStringLiteral("LibraryId"), libraryId(*this, "VMusicLibrary.GetLibraries")},
         {QStringLiteral("path"), folder},
         {QStringLiteral("name"), QString()},
         {QStringLiteral("autoscan"), true}});
}

void LibraryServer::addVideos(const QString &folder)
{
    ask(QStringLiteral("VLibrary.AddPath"),
        {{QStringLiteral("LibraryId"), libraryId(*this, "Server.GetLibraries")},
         {QStringLiteral("path"), folder},
         {QStringLiteral("name"), QString()},
         {QStringLiteral("type"), QStringLiteral("Mix")},
         {QStringLiteral("scraperType"), QString()},
         {QStringLiteral("autoscan"), true}});
}

void LibraryServer::updateMusic()
{
    ask(QStringLiteral("VMusicLibrary.UpdateLibrary"),
        {{QStringLiteral("idlibrary"), libraryId(*this, "VMusicLibrary.GetLibraries")}});
}

bool LibraryServer::isScanFinished()
{
    return ask(QStringLiteral("Server.Heartbeat")).value(QStringLiteral("Finished")).toString()
           != QLatin1String("0");
}

void LibraryServer::waitForScan()
{
    while (!isScanFinished())
        QThread::msleep(PauseMs);
}

int LibraryServer::songs()
{
    return ask(QStringLiteral("VMusicLibrary.GetMusics"),
               page(libraryId(*this, "VMusicLibrary.GetLibraries")))
        .value(QStringLiteral("musicTotal"))
        .toInt();
}

int LibraryServer::videos()
{
    const QJsonObject params = page(libraryId(*this, "Server.GetLibraries"));
    const int films =
        ask(QStringLiteral("VLibrary.GetMovies"), params).value(QStringLiteral("movieTotal")).toInt();
    const QJsonObject limits =
        ask(QStringLiteral("VLibrary.GetVideos"), params).value(QStringLiteral("limits")).toObject();
    return films + limits.value(QStringLiteral("total")).toInt();
}
