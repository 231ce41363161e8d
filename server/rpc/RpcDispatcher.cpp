#include "RpcDispatcher.h"

#include "Keys.h"
#include "RequestParser.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QJsonDocument>

#include <exception>

namespace {

const QLatin1String version("2.0");
constexpr int good = 0;
constexpr int failed = 1;
constexpr qint64 slowMs = 1000;

QByteArray written(const QJsonValue &id, const RpcReply &reply)
{
    QJsonObject envelope{{Keys::id, id}, {Keys::jsonrpc, version}};
    if (reply.isGood()) {
        envelope.insert(Keys::ret, good);
        envelope.insert(Keys::result, reply.result);
    } else {
        envelope.insert(Keys::ret, failed);
        envelope.insert(Keys::message, reply.message);
    }
    return QJsonDocument(envelope).toJson(QJsonDocument::Compact);
}

RpcReply call(const MethodRow &method, const RpcRequest &request)
{
    const CheckedParams checked = ParameterChecker::check(method.params, request.params);
    if (!checked.isGood())
        return RpcReply::failed(request.hasParams
                                    ? checked.error
                                    : QStringLiteral("key \"params\" is missing: ") + checked.error);
    try {
        return method.handler(checked.params);
    } catch (const std::exception &exception) {
        qCritical() << "[rpc] method has thrown:" << request.method << exception.what();
    } catch (...) {
        qCritical() << "[rpc] method has thrown:" << request.method;
    }
    return RpcReply::failed(QStringLiteral("the server could not carry out the method"));
}

RpcReply answer(const MethodTable &table, const ParsedRequest &parsed)
{
    if (!parsed.isGood())
        return RpcReply::failed(parsed.error);
    const MethodRow *method = table.find(parsed.request.method);
    if (!method)
        return RpcReply::failed(QStringLiteral("there is no such method: %1").arg(parsed.request.method));
    return call(*method, parsed.request);
}

} // namespace

RpcDispatcher::RpcDispatcher(const Parts &parts)
    : m_server({parts.roots, parts.videos, parts.music}, parts.tasks, parts.metadata)
    , m_folders(parts.roots, parts.tasks)
    , m_videoLists(parts.roots, parts.videos)
    , m_videoChanges(parts.roots, parts.videos, parts.metadata)
    , m_musicLists(parts.roots, parts.music)
    , m_musicChanges(parts.music, parts.metadata)
    , m_musicRemovals(parts.roots, parts.music)
{
    m_server.addTo(m_table);
    m_folders.addTo(m_table);
    m_videoLists.addTo(m_table);
    m_videoChanges.addTo(m_table);
    m_musicLists.addTo(m_table);
    m_musicChanges.addTo(m_table);
    m_musicRemovals.addTo(m_table);
}

QByteArray RpcDispatcher::refused(const QByteArray &body, const QString &why)
{
    const ParsedRequest parsed = RequestParser::parse(body);
    qInfo() << "[rpc] refused:" << parsed.request.method << why;
    return written(parsed.request.id, RpcReply::failed(why));
}

QByteArray RpcDispatcher::handle(const QByteArray &body) const
{
    QElapsedTimer timer;
    timer.start();
    const ParsedRequest parsed = RequestParser::parse(body);
    const RpcReply reply = answer(m_table, parsed);
    if (!reply.isGood())
        qInfo() << "[rpc] refused:" << parsed.request.method << reply.message;
    else if (timer.elapsed() > slowMs)
        qInfo() << "[rpc] took" << timer.elapsed() << "ms:" << parsed.request.method;
    return written(parsed.request.id, reply);
}
