// Takes the body of a request apart: its envelope, and nothing that a method means by its parameters.
//
// Pure; any thread. The texts of errors are for the log and for whoever reads the reply.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

struct RpcRequest {
    QJsonValue id; // as it came, any value; null where there was none
    QString method;
    QJsonObject params;
    bool hasParams{false};
};

struct ParsedRequest {
    RpcRequest request; // its id is filled as far as it could be read, also beside an error
    QString error;      // empty: the request is good

    [[nodiscard]] bool isGood() const { return error.isEmpty(); }
};

namespace RequestParser {

inline constexpr int LargestBody = 16 * 1024 * 1024; // bytes
inline constexpr int DeepestBody = 32;
inline constexpr int MostValues = 100000;
inline constexpr int LongestMethod = 128;

[[nodiscard]] ParsedRequest parse(const QByteArray &body);

} // namespace RequestParser
