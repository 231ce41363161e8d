#include "ServerApplication.h"

#include "base/ServerLog.h"
#include "http/ImageFiles.h"
#include "rpc/RpcDispatcher.h"

#include <QDebug>

#include <cstdio>
#include <utility>

namespace {

constexpr int ok = 200;
constexpr int notFound = 404;
constexpr int unavailable = 503;

} // namespace

ServerApplication::ServerApplication(const Settings &settings, PartsFactory makeParts, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_makeParts(std::move(makeParts))
    , m_folder(settings.dataFolder)
    , m_lock(m_folder.path() + QStringLiteral("/server.lock"))
{
    // A lock is old only when the one who took it is gone, however long the server runs.
    m_lock.setStaleLockTime(0);
}

ServerApplication::~ServerApplication()
{
    stop();
}

ServerApplication::Exit ServerApplication::start()
{
    using Step = Exit (ServerApplication::*)();
    m_gate.reset();
    for (const Step step : {&ServerApplication::takeFolder, &ServerApplication::listen,
                            &ServerApplication::openParts, &ServerApplication::takeRequests}) {
        const Exit status = (this->*step)();
        if (status != Ended) {
            stop();
            return status;
        }
    }
    m_parts->start();
    m_isUp = true;
    return Ended;
}

ServerApplication::Exit ServerApplication::failed(Exit status, const QString &message)
{
    qInfo() << "[server] cannot start:" << message;
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    return status;
}

ServerApplication::Exit ServerApplication::takeFolder()
{
    if (!m_folder.isUsable())
        return failed(NoDataFolder,
                      QStringLiteral("the data folder cannot be used: %1").arg(m_folder.path()));
    // Before the log: a second server must not write into that of the first.
    if (!m_lock.tryLock())
        return failed(AlreadyRunning,
                      QStringLiteral("another server works on the data folder: %1").arg(m_folder.path()));
    m_log = std::make_unique<ServerLog>(m_folder.logPath());
    m_log->install();
    qInfo() << "[server] starts with" << m_folder.path();
    return Ended;
}

ServerApplication::Exit ServerApplication::openParts()
{
    m_parts = m_makeParts(m_folder, ServerConfiguration::read(m_folder.configurationPath()));
    QString error;
    if (!m_parts || !m_parts->open(error))
        return failed(NoDatabase, QStringLiteral("the database cannot be opened: %1").arg(error));
    return Ended;
}

ServerApplication::Exit ServerApplication::listen()
{
    m_http = std::make_unique<HttpServer>(
        HttpServer::Handlers{[this](const QByteArray &body) { return answer(body); },
                             [this](const QByteArray &key) { return picture(key); }},
        m_settings.http);
    switch (m_http->start()) {
    case HttpServer::Start::Started:
        return Ended;
    case HttpServer::Start::PortTaken:
        return failed(PortTaken,
                      QStringLiteral("port %1 is taken by another program").arg(m_settings.http.port));
    case HttpServer::Start::Failed:
        break;
    }
    return failed(PortTaken, QStringLiteral("port %1 cannot be listened on").arg(m_settings.http.port));
}

ServerApplication::Exit ServerApplication::takeRequests()
{
    m_dispatcher = std::make_unique<RpcDispatcher>(RpcDispatcher::Parts{
        m_parts->roots(), m_parts->videos(), m_parts->music(), m_parts->tasks(), m_parts->metadata()});
    m_images = std::make_unique<ImageFiles>(m_folder.imageFolder(), m_parts->roots(), m_parts->artwork());
    m_gate.open();
    qInfo() << "[server] takes requests";
    return Ended;
}

QByteArray ServerApplication::answer(const QByteArray &body)
{
    if (m_gate.wait(m_settings.startWait))
        return m_dispatcher->handle(body);
    return RpcDispatcher::refused(body, QStringLiteral("the server is starting or ending"));
}

HttpReply ServerApplication::picture(const QByteArray &key)
{
    HttpReply reply;
    if (!m_gate.wait(std::chrono::milliseconds::zero())) {
        reply.status = unavailable;
        return reply;
    }
    ImageFile image = m_images->open(key);
    reply.status = image.file.isOpen() ? ok : notFound;
    reply.contentType = image.contentType;
    reply.file = std::move(image.file);
    return reply;
}

void ServerApplication::stop()
{
    const bool wasUp = std::exchange(m_isUp, false);
    if (!wasUp)
        m_gate.close(); // a start that failed: who waits for its end has nothing to wait for
    if (m_http)
        m_http->stop();
    if (m_parts && wasUp)
        m_parts->stop();
    m_http.reset();
    m_images.reset();
    m_dispatcher.reset();
    m_parts.reset();
    if (wasUp)
        qInfo() << "[server] has ended";
    m_log.reset();
    m_lock.unlock();
}

quint16 ServerApplication::port() const
{
    return m_http ? m_http->port() : quint16(0);
}
