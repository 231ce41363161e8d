// What a method answers: a result, or a message that tells why there is none.
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

struct RpcReply {
    QJsonValue result;
    QString message; // empty: the call has done what it was asked for

    [[nodiscard]] bool isGood() const { return message.isEmpty(); }

    [[nodiscard]] static RpcReply good(const QJsonValue &result) { return {result, {}}; }
    [[nodiscard]] static RpcReply failed(const QString &message) { return {{}, message}; }

    // The reply of a change: the one key with true, or the message where it did not happen.
    [[nodiscard]] static RpcReply changed(QLatin1String key, bool done, const QString &message)
    {
        return done ? good(QJsonObject{{key, true}}) : failed(message);
    }
};
