#include "ParameterChecker.h"

#include "Keys.h"

#include <QJsonArray>

#include <cmath>
#include <limits>
#include <optional>

namespace ParameterChecker {

namespace {

constexpr int shownText = 64; // characters of a foreign text that an error repeats
// Beyond it a number of JSON is not the one that was written, and so no text either.
constexpr double exactNumbers = 9007199254740992.0;

struct NamedSort {
    QLatin1String text;
    SortMethod method;
};
const NamedSort sortMethods[] = {
    {QLatin1String("title"), SortMethod::Title},
    {QLatin1String("year"), SortMethod::Year},
    {QLatin1String("dateadded"), SortMethod::DateAdded},
    {QLatin1String("rating"), SortMethod::Rating},
    {QLatin1String("modifiedtime"), SortMethod::ModifiedTime},
};

struct NamedOrder {
    QLatin1String text;
    bool ascending;
};
const NamedOrder orders[] = {{QLatin1String("ascending"), true}, {QLatin1String("descending"), false}};

const QLatin1String filterFields[] = {QLatin1String("country"), QLatin1String("genre"),
                                      QLatin1String("year")};
const QLatin1String contains("contains");

QString missing(const QString &key)
{
    return QStringLiteral("key \"%1\" is missing").arg(key);
}

QString mustBe(const QString &key, const char *type)
{
    return QStringLiteral("key \"%1\" must be %2").arg(key, QLatin1String(type));
}

QString unknown(const QString &key, const QString &text)
{
    return QStringLiteral("key \"%1\" has an unknown value \"%2\"").arg(key, text.left(shownText));
}

std::optional<int> wholeNumber(const QJsonValue &value)
{
    if (!value.isDouble())
        return std::nullopt;
    const double number = value.toDouble();
    if (!std::isfinite(number) || number != std::trunc(number))
        return std::nullopt;
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return int(qBound(lowest, number, highest));
}

// The text under a key of a nested object; the error names the way to it.
QString readText(const QJsonObject &object, QLatin1String key, const QString &shown, QString &text)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return missing(shown);
    if (!value.isString())
        return mustBe(shown, "a text");
    text = value.toString();
    return text.size() > LongestText ? mustBe(shown, "a shorter text") : QString();
}

QString joined(QLatin1String outer, QLatin1String inner)
{
    return outer + QLatin1Char('.') + inner;
}

QString readLimits(const QJsonObject &limits, ListRequest &list)
{
    struct Row {
        QLatin1String key;
        int *target;
    };
    const Row rows[] = {{Keys::start, &list.start}, {Keys::end, &list.end}};
    for (const Row &row : rows) {
        const QJsonValue value = limits.value(row.key);
        if (value.isUndefined())
            return missing(joined(Keys::limits, row.key));
        const std::optional<int> number = wholeNumber(value);
        if (!number)
            return mustBe(joined(Keys::limits, row.key), "a whole number");
        *row.target = *number;
    }
    list.start = qMax(list.start, 0);
    list.end = qMax(list.end, list.start);
    return {};
}

QString readSort(const QJsonObject &sort, ListRequest &list)
{
    const QString methodKey = joined(Keys::sort, Keys::method);
    QString text;
    QString error = readText(sort, Keys::method, methodKey, text);
    if (!error.isEmpty())
        return error;
    const auto method = std::find_if(std::begin(sortMethods), std::end(sortMethods),
                                     [&](const NamedSort &row) { return text == row.text; });
    if (method == std::end(sortMethods))
        return unknown(methodKey, text);

    const QString orderKey = joined(Keys::sort, Keys::order);
    error = readText(sort, Keys::order, orderKey, text);
    if (!error.isEmpty())
        return error;
    const auto order = std::find_if(std::begin(orders), std::end(orders),
                                    [&](const NamedOrder &row) { return text == row.text; });
    if (order == std::end(orders))
        return unknown(orderKey, text);
    list.sort = method->method;
    list.ascending = order->ascending;
    return {};
}

QString readFilterElement(const QJsonObject &element, ListRequest &list)
{
    const QString fieldKey = joined(Keys::filter, Keys::field);
    QString field;
    QString error = readText(element, Keys::field, fieldKey, field);
    if (!error.isEmpty())
        return error;
    if (std::find(std::begin(filterFields), std::end(filterFields), field) == std::end(filterFields))
        return unknown(fieldKey, field);

    const QString operatorKey = joined(Keys::filter, Keys::filterOperator);
    QString operation;
    error = readText(element, Keys::filterOperator, operatorKey, operation);
    if (!error.isEmpty())
        return error;
    if (operation != contains)
        return unknown(operatorKey, operation);

    QString value;
    const std::optional<int> number = wholeNumber(element.value(Keys::value));
    if (number)
        value = QString::number(*number);
    else
        error = readText(element, Keys::value, joined(Keys::filter, Keys::value), value);
    if (error.isEmpty() && !value.isEmpty())
        list.filters.append({field, value});
    return error;
}

QString readFilter(const QJsonObject &filter, ListRequest &list)
{
    const QString shown = joined(Keys::filter, Keys::filterAnd);
    const QJsonValue conditions = filter.value(Keys::filterAnd);
    if (conditions.isUndefined())
        return {};
    if (!conditions.isArray())
        return mustBe(shown, "an array");
    const QJsonArray array = conditions.toArray();
    if (array.size() > MostFilters)
        return mustBe(shown, "a shorter array");
    for (const QJsonValue &element : array) {
        if (!element.isObject())
            return mustBe(shown, "an array of objects");
        const QString error = readFilterElement(element.toObject(), list);
        if (!error.isEmpty())
            return error;
    }
    return {};
}

using ObjectReader = QString (*)(const QJsonObject &, ListRequest &);

QString readObject(QLatin1String key, const QJsonValue &value, ObjectReader reader, ListRequest &list)
{
    return value.isObject() ? reader(value.toObject(), list) : mustBe(key, "an object");
}

QString readLooseText(const ParamRow &row, const QJsonValue &value, Params &params)
{
    const std::optional<int> number = wholeNumber(value);
    if (row.type == ParamType::LooseText && number && std::fabs(value.toDouble()) <= exactNumbers) {
        params.setText(row.key, QString::number(qRound64(value.toDouble())));
        return {};
    }
    if (!value.isString())
        return mustBe(row.key, "a text");
    if (row.type != ParamType::Document && value.toString().size() > LongestText)
        return mustBe(row.key, "a shorter text");
    params.setText(row.key, value.toString());
    return {};
}

QString readValue(const ParamRow &row, const QJsonValue &value, Params &params)
{
    switch (row.type) {
    case ParamType::Integer: {
        const std::optional<int> number = wholeNumber(value);
        if (!number)
            return mustBe(row.key, "a whole number");
        params.setInteger(row.key, *number);
        return {};
    }
    case ParamType::Text:
    case ParamType::LooseText:
    case ParamType::Document:
        return readLooseText(row, value, params);
    case ParamType::Flag:
        if (!value.isBool())
            return mustBe(row.key, "true or false");
        params.setFlag(row.key, value.toBool());
        return {};
    case ParamType::Limits:
        return readObject(row.key, value, readLimits, params.list());
    case ParamType::Sort:
        return readObject(row.key, value, readSort, params.list());
    case ParamType::Filter:
        return readObject(row.key, value, readFilter, params.list());
    }
    return {};
}

} // namespace

CheckedParams check(const QVector<ParamRow> &rows, const QJsonObject &params)
{
    CheckedParams checked;
    for (const ParamRow &row : rows) {
        const QJsonValue value = params.value(row.key);
        if (!value.isUndefined())
            checked.error = readValue(row, value, checked.params);
        else if (row.need == Need::Required)
            checked.error = missing(row.key);
        if (!checked.error.isEmpty())
            return checked;
    }
    checked.params.list().pattern = checked.params.text(Keys::pattern);
    return checked;
}

} // namespace ParameterChecker
