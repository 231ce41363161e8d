#include "HttpEngine.h"

#include "HttpAnswer.h"
#include "LoopbackAddress.h"

#include <QDebug>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <exception>
#include <limits>

namespace {

constexpr unsigned movingThreads = 2;
constexpr size_t connectionMemory = 32 * 1024; // bytes for the head of a request
constexpr int absorbed = 2;                    // a refused body is read up to so many times its limit
constexpr char jsonType[] = "application/json; charset=UTF-8";

constexpr int tooLarge = 413;
constexpr int serverError = 500;
constexpr int unavailable = 503;

// What can be said without a tree and without memory for one.
constexpr char couldNot[] =
    R"({"id":null,"jsonrpc":"2.0","message":"the server could not carry out the request","ret":1})";

MHD_Result collect(void *values, MHD_ValueKind, const char *key, const char *value)
{
    auto &head = *static_cast<HttpHead *>(values);
    if (qstricmp(key, MHD_HTTP_HEADER_HOST) == 0)
        head.hosts.append(value);
    else if (qstricmp(key, MHD_HTTP_HEADER_ORIGIN) == 0)
        head.origins.append(value);
    return MHD_YES;
}

// More than any body may be for a length that is no number: the library has refused those before.
qint64 announcedLength(MHD_Connection *connection)
{
    const char *text =
        MHD_lookup_connection_value(connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_CONTENT_LENGTH);
    if (!text)
        return 0;
    bool good = false;
    const qulonglong length = QByteArray(text).toULongLong(&good);
    constexpr qulonglong highest = qulonglong(std::numeric_limits<qint64>::max());
    return qint64(good ? qMin(length, highest) : highest);
}

} // namespace

HttpServer::Engine::Engine(Handlers handlers, const Settings &settings)
    : m_handlers(std::move(handlers))
    , m_settings(settings)
{
    m_pool.setMaxThreadCount(settings.threads);
    m_pool.setExpiryTimeout(-1); // each keeps what it has opened
}

HttpServer::Start HttpServer::Engine::start()
{
    if (m_daemon)
        return Start::Started;
    m_stopping = false;
    const QByteArray address = loopbackAddress(m_settings.port);
    errno = 0;
    m_daemon = MHD_start_daemon(
        MHD_USE_EPOLL_INTERNAL_THREAD | MHD_ALLOW_SUSPEND_RESUME | MHD_USE_ERROR_LOG, m_settings.port,
        nullptr, nullptr, &Engine::onRequest, this, MHD_OPTION_EXTERNAL_LOGGER, &Engine::onLog, this,
        MHD_OPTION_SOCK_ADDR, reinterpret_cast<const sockaddr *>(address.constData()),
        MHD_OPTION_THREAD_POOL_SIZE, movingThreads, MHD_OPTION_CONNECTION_LIMIT, m_settings.connections,
        MHD_OPTION_CONNECTION_TIMEOUT, m_settings.idleSeconds, MHD_OPTION_CONNECTION_MEMORY_LIMIT,
        connectionMemory, MHD_OPTION_STRICT_FOR_CLIENT, 1, MHD_OPTION_UNESCAPE_CALLBACK, &Engine::onUnescape,
        this, MHD_OPTION_NOTIFY_COMPLETED, &Engine::onCompleted, this, MHD_OPTION_END);
    if (!m_daemon) {
        const int error = errno;
        qInfo() << "[http] cannot listen on port" << m_settings.port << qt_error_string(error);
        return error == EADDRINUSE ? Start::PortTaken : Start::Failed;
    }
    const MHD_DaemonInfo *info = MHD_get_daemon_info(m_daemon, MHD_DAEMON_INFO_BIND_PORT);
    m_port = info && info->port != 0 ? info->port : m_settings.port;
    qInfo() << "[http] listens on 127.0.0.1 port" << m_port;
    return Start::Started;
}

void HttpServer::Engine::stop()
{
    if (!m_daemon)
        return;
    {
        std::lock_guard lock(m_workMutex);
        m_stopping = true;
    }
    // Whoever works still resumes its connection; nobody starts to work from here on.
    m_pool.waitForDone();
    MHD_stop_daemon(m_daemon);
    m_daemon = nullptr;
    m_port = 0;
}

void HttpServer::Engine::onLog(void *, const char *format, va_list arguments)
{
    // The library tells of a failed start here and leaves its reason in errno for whoever started it.
    const int error = errno;
    char text[512];
    if (std::vsnprintf(text, sizeof text, format, arguments) > 0)
        qInfo() << "[http]" << QByteArray(text).trimmed();
    errno = error;
}

// Paths stay as they came: the key of a picture is decoded once, by the one who checks it.
size_t HttpServer::Engine::onUnescape(void *, MHD_Connection *, char *text)
{
    return qstrlen(text);
}

void HttpServer::Engine::onCompleted(void *self, MHD_Connection *, void **context, MHD_RequestTerminationCode)
{
    // It may have been carried out and never be looked at again.
    std::lock_guard lock(static_cast<Engine *>(self)->m_workMutex);
    delete static_cast<HttpExchange *>(*context);
    *context = nullptr;
}

MHD_Result HttpServer::Engine::onRequest(void *self, MHD_Connection *connection, const char *url,
                                         const char *method, const char *version, const char *bytes,
                                         size_t *size, void **context)
{
    auto &engine = *static_cast<Engine *>(self);
    try {
        if (!*context)
            return engine.begin(connection, url, method, version, context);
        return engine.proceed(connection, *static_cast<HttpExchange *>(*context), bytes, size);
    } catch (...) {
        // No memory for an answer: the connection is closed and the server goes on.
        return MHD_NO;
    }
}

MHD_Result HttpServer::Engine::begin(MHD_Connection *connection, const char *url, const char *method,
                                     const char *version, void **context)
{
    HttpHead head{method, url, version, {}, {}};
    MHD_get_connection_values(connection, MHD_HEADER_KIND, &collect, &head);
    auto exchange = std::make_unique<HttpExchange>(HttpRoutes::decide(head), m_together);
    const HttpRoute &route = exchange->route();
    if (route.target == HttpRoute::Target::Refused) {
        qInfo() << "[http] refused with" << route.status << head.method << head.path.left(256) << head.hosts;
        return HttpAnswer::queueStatus(connection, route.status, route.allow);
    }
    if (announcedLength(connection) > m_settings.largestBody)
        return HttpAnswer::queueStatus(connection, tooLarge);
    *context = exchange.release();
    return MHD_YES;
}

MHD_Result HttpServer::Engine::proceed(MHD_Connection *connection, HttpExchange &exchange, const char *bytes,
                                       size_t *size)
{
    if (*size > 0) {
        exchange.append(bytes, *size, m_settings.largestBody, m_settings.largestTogether);
        *size = 0;
        // The library has no answer for a body that has no end: a patient sender is told at the end of the
        // body, an endless one is cut off.
        return exchange.received() > absorbed * m_settings.largestBody ? MHD_NO : MHD_YES;
    }
    const HttpExchange::State state = stateOf(exchange);
    if (exchange.refusal != 0)
        return HttpAnswer::queueStatus(connection, exchange.refusal);
    if (state == HttpExchange::State::ReadingBody)
        return startWork(connection, exchange) ? MHD_YES : HttpAnswer::queueStatus(connection, unavailable);
    if (state == HttpExchange::State::Answered)
        return HttpAnswer::queue(connection, std::move(exchange.reply));
    return MHD_YES;
}

HttpExchange::State HttpServer::Engine::stateOf(const HttpExchange &exchange)
{
    std::lock_guard lock(m_workMutex);
    return exchange.state;
}

bool HttpServer::Engine::startWork(MHD_Connection *connection, HttpExchange &exchange)
{
    std::lock_guard lock(m_workMutex);
    if (m_stopping)
        return false;
    m_waiting.push_back({connection, &exchange});
    exchange.state = HttpExchange::State::Working;
    MHD_suspend_connection(connection);
    try {
        m_pool.start([this] { carryOutNext(); });
    } catch (...) {
        // The connection must be resumed with something to say.
        m_waiting.pop_back();
        exchange.refusal = unavailable;
        exchange.dropBody();
        exchange.state = HttpExchange::State::Answered;
        MHD_resume_connection(connection);
    }
    return true;
}

void HttpServer::Engine::carryOutNext()
{
    Work work{};
    {
        std::lock_guard lock(m_workMutex);
        work = m_waiting.front();
        m_waiting.pop_front();
    }
    HttpReply reply;
    int refusal = 0;
    try {
        reply = carriedOut(*work.exchange);
    } catch (...) {
        refusal = unavailable;
    }
    {
        std::lock_guard lock(m_workMutex);
        work.exchange->reply = std::move(reply);
        work.exchange->refusal = refusal;
        work.exchange->dropBody();
        work.exchange->state = HttpExchange::State::Answered;
    }
    // Whatever failed, there is an answer. The library has locks of its own, so ours is given back before.
    MHD_resume_connection(work.connection);
}

HttpReply HttpServer::Engine::carriedOut(const HttpExchange &exchange) const
{
    const bool isRpc = exchange.route().target == HttpRoute::Target::Rpc;
    HttpReply reply;
    try {
        if (!isRpc)
            return m_handlers.image(exchange.route().key);
        reply.status = MHD_HTTP_OK;
        reply.contentType = jsonType;
        reply.body = m_handlers.rpc(exchange.body());
        return reply;
    } catch (const std::exception &exception) {
        qInfo() << "[http] request has thrown:" << exception.what();
    } catch (...) {
        qInfo() << "[http] request has thrown";
    }
    reply.status = isRpc ? MHD_HTTP_OK : serverError;
    reply.contentType = isRpc ? jsonType : "text/plain";
    reply.body = isRpc ? QByteArray::fromRawData(couldNot, int(sizeof couldNot) - 1) : QByteArray();
    return reply;
}
