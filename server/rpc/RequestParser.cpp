#include "RequestParser.h"

#include "JsonBounds.h"
#include "Keys.h"

#include <QJsonDocument>

namespace RequestParser {

namespace {

constexpr JsonBounds bounds{LargestBody, DeepestBody, MostValues};

QString readEnvelope(const QJsonObject &envelope, RpcRequest &request)
{
    request.id = envelope.contains(Keys::id) ? envelope.value(Keys::id) : QJsonValue();

    const QJsonValue method = envelope.value(Keys::method);
    if (method.isUndefined())
        return QStringLiteral("key \"method\" is missing");
    if (!method.isString())
        return QStringLiteral("key \"method\" must be a text");
    if (method.toString().isEmpty() || method.toString().size() > LongestMethod)
        return QStringLiteral("key \"method\" names no method");
    request.method = method.toString();

    const QJsonValue params = envelope.value(Keys::params);
    if (params.isUndefined())
        return {};
    if (!params.isObject())
        return QStringLiteral("key \"params\" must be an object");
    request.params = params.toObject();
    request.hasParams = true;
    return {};
}

} // namespace

ParsedRequest parse(const QByteArray &body)
{
    ParsedRequest parsed;
    if (body.trimmed().isEmpty()) {
        parsed.error = QStringLiteral("the request is empty");
        return parsed;
    }
    const QString objection = bounds.objection(body);
    if (!objection.isEmpty()) {
        parsed.error = QStringLiteral("the request is refused: ") + objection;
        return parsed;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError) {
        parsed.error = QStringLiteral("the request is no JSON: %1 at byte %2")
                           .arg(error.errorString())
                           .arg(error.offset);
        return parsed;
    }
    if (!document.isObject()) {
        parsed.error = QStringLiteral("the request is no JSON object");
        return parsed;
    }
    parsed.error = readEnvelope(document.object(), parsed.request);
    return parsed;
}

} // namespace RequestParser
