#include "JsonRpc.h"

#include "LibraryTransport.h"
#include "ProtocolNames.h"

#include "core/ApplicationInfoManager.h"

#include <QDebug>
#include <QJsonDocument>

namespace {

constexpr char kPortVariable[] = "QUORIN_LIBRARY_PORT";
constexpr int kLastPort = 65535;
constexpr int kNoNumber = -1;

} // namespace

bool JsonRpcReply::says(const char *key) const
{
    return object().value(QLatin1String(key)).toVariant().toBool();
}

int JsonRpc::configuredPort()
{
    if (!qEnvironmentVariableIsSet(kPortVariable))
        return kDefaultPort;
    const int port = qEnvironmentVariableIntValue(kPortVariable);
    if (port > 0 && port <= kLastPort)
        return port;
    qInfo() << "[library] no port:" << qEnvironmentVariable(kPortVariable);
    return kDefaultPort;
}

QString JsonRpc::url(const char *method) const
{
    return QStringLiteral("http://%1:%2/jsonrpc?%3")
        .arg(ApplicationInfoManager::mediaServerHost())
        .arg(m_port)
        .arg(QLatin1String(method));
}

JsonRpcReply JsonRpc::call(const char *method, const QJsonObject &params, int timeoutSeconds) const
{
    const QJsonObject request{{Rpc::Key::id, Rpc::RequestId},
                              {Rpc::Key::jsonrpc, Rpc::Version},
                              {Rpc::Key::method, QLatin1String(method)},
                              {Rpc::Key::params, params}};
    const LibraryReply reply =
        m_transport.postJson(url(method), QJsonDocument(request).toJson(), timeoutSeconds);
    if (!reply.isDelivered || reply.body.isEmpty())
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(reply.body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        qInfo().noquote() << "[library]" << method << "was answered with no object:" << error.errorString();
        return {};
    }
    const QJsonObject answer = document.object();
    // A text, too, would turn into the number 0.
    const QJsonValue ret = answer.value(QLatin1String(Rpc::Key::ret));
    if (ret.toInt(kNoNumber) != 0)
        return {false, ret.isDouble(), QJsonValue::Undefined};
    return {true, false, answer.value(QLatin1String(Rpc::Key::result))};
}
