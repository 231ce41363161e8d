// Reads the fields of an answer's objects. What is missing or holds something else reads as the default.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace JsonFields {

// A number reads as its decimal text, for servers that send one where a text is due.
[[nodiscard]] inline QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toVariant().toString();
}

[[nodiscard]] inline int number(const QJsonObject &object, const char *key, int fallback = 0)
{
    return object.value(QLatin1String(key)).toInt(fallback);
}

[[nodiscard]] inline QJsonArray array(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toArray();
}

// The id of a record as the caches know it; empty where the object holds none.
[[nodiscard]] inline QString id(const QJsonObject &object, const char *key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isDouble() ? QString::number(value.toInt()) : QString();
}

// The first part of a list's parameters: the entries from start up to but not including end.
[[nodiscard]] QJsonObject limits(int start, int end);

// The number of a list's entries, in "total" of "limits" or in a key of its own.
[[nodiscard]] int total(const QJsonObject &result, const char *key);

} // namespace JsonFields
